#include "docmodel/languagesettingsobject.h"

#include <QLocale>

#include "services/localefont.h"

namespace docmodel {

// The folder is named after the language in English, such as "/lang/german", whether or not it
// exists.
QString LanguageSettingsObject::GetLanguageFolder() {
    const QStringList languages = QLocale::system().uiLanguages();
    if (languages.isEmpty())
        return {};
    const QLocale::Language language = QLocale(languages.first()).language();
    if (language == QLocale::C || language == QLocale::AnyLanguage)
        return {};
    return QStringLiteral("/lang/") + QLocale::languageToString(language).toLower();
}

void LanguageSettingsObject::ApplyLocaleFont(QFont& font) {
    docbench::ApplyFontOfLocale(font, QLocale::system());
}

}  // namespace docmodel
