// A subcommand of the command line: one class each.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace docbench {

class Console;

class Command {
public:
    virtual ~Command() = default;

    virtual QString Name() const = 0;       // "rename"
    virtual QString Summary() const = 0;    // one line, for the list of commands
    virtual QString Arguments() const = 0;  // "FILE NEWNAME"
    virtual QString Help() const = 0;       // what it does, with an example; paragraphs
    virtual void AddOptions(QCommandLineParser& parser) const = 0;
    // How many words it takes.
    virtual int FewestWords() const { return 1; }
    virtual int MostWords() const { return 1; }

    // Does it and gives the program's exit code. Errors may be raised; they are told, and end with
    // the code for what was done in part.
    virtual int Run(const QCommandLineParser& line, Console& console) const = 0;

protected:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
};

// The whole path of a document that was named on the line; an address as it stands.
QString DocumentPath(const QString& word);

// What is wrong with words of which one is an address with a password; empty when none is.
QString PasswordProblem(const QStringList& words);

// Text for a terminal: its paragraphs in lines of at most 80 characters; indented ones stay.
QString Wrapped(const QString& text);

// Folders to search: those of the option, or the one that the document is in.
void AddFolderOptions(QCommandLineParser& parser);
bool WithSubfolders(const QCommandLineParser& line);
QString FoldersToSearch(const QCommandLineParser& line, const QString& document);

}  // namespace docbench
