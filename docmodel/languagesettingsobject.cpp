#include "docmodel/languagesettingsobject.h"

#include <QLocale>

#include "services/localefont.h"

namespace docmodel {

// The folder is named after the language in English, such as "/lang/german", whether or not it
// exists. The locales without a language speak English; the two scripts of Chinese are two
// languages to a reader.
QString LanguageSettingsObject::GetLanguageFolder() {
    const QStringList languages = QLocale::system().uiLanguages();
    if (languages.isEmpty())
        return {};
    const QLocale locale(languages.first());
    const QString folder = QStringLiteral("/lang/");
    switch (locale.language()) {
        case QLocale::C:
        case QLocale::AnyLanguage:
            return folder + QStringLiteral("english");
        case QLocale::Chinese:
            return folder + (locale.script() == QLocale::TraditionalHanScript
                                 ? QStringLiteral("chinese-traditional")
                                 : QStringLiteral("chinese-simplified"));
        default:
            return folder + QLocale::languageToString(locale.language()).toLower();
    }
}

void LanguageSettingsObject::ApplyLocaleFont(QFont& font) {
    docbench::ApplyFontOfLocale(font, QLocale::system());
}

}  // namespace docmodel
