// The commands that there are, and running one of them.
#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "app/commands/command.h"

namespace docbench {

const std::vector<std::unique_ptr<Command>>& AllCommands();
// Null for a word that is no command.
const Command* FindCommand(const QString& name);

// All options that a command takes, those that every command has first.
QList<QCommandLineOption> OptionsOf(const Command& command);

// The help of one command, as "docbench NAME --help" prints it.
QString HelpOf(const Command& command);

// Runs a command on the words behind its name, with all that it needs of the outside. Needs the
// application object. Gives the program's exit code.
int RunCommand(const Command& command, const QStringList& words);

}  // namespace docbench
