// The texts of the user interface, read by number from the language file, and the language's fonts.
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>
#include <array>

namespace docbench {

inline constexpr int kLastText = 401;
inline constexpr int kLongestText = 511;  // bytes in UTF-8; longer ones are cut

// By number; entry 0 and the numbers that no text has stay empty. Everything is "" before the load,
// and after one that failed.
extern std::array<QString, kLastText + 1> gStrings;

extern bool gResourcesLoaded;  // the load has begun

// Texts that are known by a name as well.
extern QString gAppTitle;  // title of all boxes
extern QString gPreviewHelp;
extern QString gOpenFilter;  // of the open dialog: "Label|*.a;*.b|Label|*.c"
extern QString gOldFormatText;
extern QString gRelationDefault;
extern QString gRelationAssembly;
extern QString gRelationPart;

extern QString gHelpFile;  // the program's help file, whether or not it is there

// Loads the texts of the user's language, else the English ones, from below the program's folder.
// Only the first call of the process does anything. A failure is told in a box; the program goes on
// without texts.
void LoadResources();
void LoadResources(const QString& programFolder);
// Forgets the texts, so that the next call loads again: for hosts that change the language, and
// tests.
void UnloadResources();

// Puts the values in place of the "%s" of a text, in order. A wrong number of values is told in a
// box; what is left of the text is appended, and values left over are dropped.
QString sprintf(const QString& format, const QStringList& values);

// Sets a font that can show the user's language, where it is one that needs it.
void ApplyLanguageFont(QFont& font);

}  // namespace docbench
