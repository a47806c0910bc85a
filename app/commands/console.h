// Where a command prints: tables for people, JSON for programs, progress for who is watching.
#pragma once

#include <QCommandLineOption>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QTextStream>

#include "services/listtable.h"

class QCommandLineParser;

namespace docbench {

// The text with a mark for each line break and other control character, which would break a table's
// lines, or steer the terminal.
QString OneLine(QString text);

class Console {
public:
    enum class Format { Text, Json, Null };

    Console(const QString& command, Format format);
    ~Console();

    bool IsJson() const { return format_ == Format::Json; }
    bool IsNull() const { return format_ == Format::Null; }
    QTextStream& Out() { return out_; }

    // A table with its headers in the first row, columns aligned, or nothing when only JSON is
    // wanted. With `-0` the first column alone, each entry with a NUL behind it.
    void PrintTable(const TextTable& table);
    // The table of a plan for whoever is asked about it.
    void ShowPlan(const TextTable& table);
    // {"version": 1, "command": ..., and the members of `result`}, on one line.
    void PrintJson(QJsonObject result);
    // Ends what PrintTable and PrintJson wrote. False when the output took not all of it.
    bool Finish();

    // One line on standard error that is written over by the next; only on a terminal.
    void ShowProgress(const QString& text);
    void Warn(const QString& text);
    void WarnOfUnread(int documents);  // nothing for 0

    // Asks on the terminal; anything but "y" is no.
    bool Ask(const QString& question);
    static bool IsInteractive();

private:
    const QString command_;
    const Format format_;
    QTextStream out_;
    QTextStream err_;
    const bool watched_;  // standard error is a terminal
    bool coloured_;
    bool progressShown_ = false;
};

// What changes documents says first what it is going to change.
QList<QCommandLineOption> ChangeOptions();
bool IsDryRun(const QCommandLineParser& line);
enum class Decision { Go, DryRun, No, NeedsYes };
// `plan` has headers in its first row. Prints it unless the command was told --yes, and asks on a
// terminal.
Decision DecideAbout(const TextTable& plan, const QCommandLineParser& line, Console& console);
// The exit code of a decision that is not to go on; tells why.
int ExitCodeOf(Decision decision, Console& console);

// Prints what became of the one document that a command changed, and gives the exit code.
int TellChanged(const QString& document, bool isChanged, bool done, Console& console);

// The table as JSON: one object a row, its members named as the headers, in lower case.
// Positions and sizes are numbers, all else texts.
QJsonArray RowsAsJson(const TextTable& table);

}  // namespace docbench
