// What the program was asked for on its command line.
#pragma once

#include <QString>
#include <QStringList>

namespace docbench {

struct CommandLine {
    enum class Does { Window, Command, Help, Version, WrongUsage };

    Does does = Does::Window;
    QString file;     // document to open; empty for none
    QString command;  // its name; `words` are what stands behind it
    QStringList words;
    QString screenshot;          // picture to write instead of waiting for the user; empty for none
    bool quitWhenShown = false;  // ends once the window is on screen: for measuring the start
    QString theme = QStringLiteral("system");
    QString message;  // what is wrong with the usage
};

// `arguments` begins with the program's name.
CommandLine ParseCommandLine(const QStringList& arguments);

// Needs the application object, for the program's name.
QString HelpText();

}  // namespace docbench
