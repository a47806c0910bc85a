// The words that have no number: those of the desktop's own windows and of the toolkit's dialogs.
#pragma once

#include <QTranslator>

namespace docbench {

// Translates them for its own life. They stand in English in the program; a language has them
// beside its numbered texts ("windows.qm"), and the toolkit brings its own.
class WindowTexts {
public:
    // Takes the user's language from below the program's folder. Without the document library, or
    // where the language has no such words, all stays English. Needs the application object.
    void Load(const QString& programFolder);

private:
    QTranslator windows_;  // a translator that goes away takes its words along
    QTranslator toolkit_;
};

}  // namespace docbench
