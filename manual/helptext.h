// A program's help, taken apart: manual pages and completions are made of what it tells users.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace manual {

// A line of one of the tables: "--in <FOLDER>" with what stands beside it.
struct HelpEntry {
    QString name = {};
    QString text = {};
};

// An option's spellings, and what its value is called; empty for one without a value.
struct OptionNames {
    QStringList names = {};  // "-o", "--output"
    QString value = {};      // "FILE"
};

struct HelpText {
    QString program = {};  // "docbench"
    QString command = {};  // "rename"; empty for the help of the program itself
    QString usage = {};    // what stands behind these: "[options] FILE NEWNAME"
    QString summary = {};  // one line without a full stop, beginning as it stands in a sentence
    QStringList description = {};  // its lines; indented ones are examples
    QList<HelpEntry> options = {};
    QList<HelpEntry> arguments = {};
    QList<HelpEntry> commands = {};
    QStringList exitCodes = {};  // lines "0 done", "2 wrong usage"
};

// What "PROGRAM --help" or "PROGRAM COMMAND --help" printed. Raises std::runtime_error for a text
// that does not begin as a help does.
HelpText ParseHelp(const QString& text, const QString& program, const QString& command);

OptionNames NamesOf(const HelpEntry& option);

// The help of a program, followed by that of each of its commands in their order, with the summary
// that the program gives of it. Runs the program, which needs no display. Raises std::runtime_error
// when it can't be run.
QList<HelpText> HelpOfProgram(const QString& file);

}  // namespace manual
