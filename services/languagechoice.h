// The language that the user chose for the program in place of the locale's, and those on offer.
#pragma once

#include <QList>
#include <QLocale>
#include <QString>

namespace docbench {

// Where the choice is stored, as the name of the language's folder.
inline constexpr char kLanguageKey[] = "Software\\Tessaforma\\TessaformaDocbench";
inline constexpr char kLanguageValue[] = "Language";

struct OfferedLanguage {
    QString folder;  // its name below "lang", such as "german"
    QString name;    // in the language itself, such as "Deutsch"
};

// The name of a locale's folder: its language in English, such as "german", whether or not there is
// one. The locales without a language speak English; the two scripts of Chinese are two languages
// to a reader.
QString LanguageFolderOf(const QLocale& locale);

// The locale of a folder's language; the one of no language for a name that is none's.
QLocale LocaleOfLanguage(const QString& folder);

// The languages whose texts are below the program's folder, in the order of their folders.
QList<OfferedLanguage> OfferedLanguages(const QString& programFolder);

// The folder of the chosen language: the user's choice, else the one made for all users of the
// computer; empty if there is none, and the locale decides. What is no name of a folder counts as
// none.
QString ChosenLanguage();

// Stores the choice; an empty folder gives it back to the locale. It holds from the next start on.
// False: not written.
bool ChooseLanguage(const QString& folder);

}  // namespace docbench
