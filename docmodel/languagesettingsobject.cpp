#include "docmodel/languagesettingsobject.h"

#include <QLocale>

#include "services/languagechoice.h"
#include "services/localefont.h"

namespace docmodel {

// What the user chose comes before what the locale says. The folder may not exist.
QString LanguageSettingsObject::GetLanguageFolder() {
    const QString folder = QStringLiteral("/lang/");
    if (const QString chosen = docbench::ChosenLanguage(); !chosen.isEmpty())
        return folder + chosen;
    const QStringList languages = QLocale::system().uiLanguages();
    if (languages.isEmpty())
        return {};
    return folder + docbench::LanguageFolderOf(QLocale(languages.first()));
}

void LanguageSettingsObject::ApplyLocaleFont(QFont& font) {
    docbench::ApplyFontOfLocale(font, QLocale::system());
}

}  // namespace docmodel
