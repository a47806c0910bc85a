// A subcommand of the command line: one class each.
#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

#include "panes/usekinds.h"
#include "services/docaccess.h"
#include "services/listtable.h"

namespace docbench {

class Console;

class Command {
public:
    virtual ~Command() = default;

    virtual QString Name() const = 0;       // "rename"
    virtual QString Summary() const = 0;    // one line, for the list of commands
    virtual QString Arguments() const = 0;  // "FILE NEWNAME"
    virtual QString Help() const = 0;       // what it does, with an example; paragraphs
    // Its own; those that every command has are told by OptionsOf.
    virtual QList<QCommandLineOption> Options() const { return {}; }
    // How many words it takes.
    virtual int FewestWords() const { return 1; }
    virtual int MostWords() const { return 1; }
    // How many of the first words name something, and so can't be empty.
    virtual int Names() const { return MostWords(); }

    // Does it and gives the program's exit code. Errors may be raised; they are told, and end with
    // the code for what was done in part, or with that of their class.
    virtual int Run(const QCommandLineParser& line, Console& console) const = 0;

protected:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
};

// Raised for words or options that make no sense: ends with the code of wrong usage.
class UsageError : public DocumentError {
    using DocumentError::DocumentError;
};

// Raised when the document that a command is about can't be opened: ends with the code for that.
class NoDocumentError : public DocumentError {
    using DocumentError::DocumentError;
};

// The document at a path or address, open. Raises NoDocumentError.
std::unique_ptr<DocumentFile> OpenDocument(const QString& path);

// Raise DocumentError for a document that is too old to have tables, that may not be written, or
// that somebody has reserved.
void RequireTables(DocumentFile& file, const QString& path);
void RequireWritable(const QString& path);
void RequireUnlocked(const QString& path);
// Why a document may not be written, and who has reserved it; empty when it may, and is free.
QString WritingProblem(const QString& path);
QString ReservationProblem(const QString& path);

// The whole path of a document that was named on the line; an address as it stands.
QString DocumentPath(const QString& word);

// What is wrong with words of which one is an address with a password; empty when none is.
QString PasswordProblem(const QStringList& words);

// Text for a terminal: its paragraphs in lines of at most 80 characters; indented ones stay.
QString Wrapped(const QString& text);

// True for the address of a web folder; not for a folder that has http in its name.
bool IsAddress(const QString& folder);

// Folders to search: those of the options, else `otherwise`, named lists expanded. Raises
// UsageError for one that is not there or that can't be searched, DocumentError for a gone one of a
// list.
QList<QCommandLineOption> FolderOptions(const QString& otherwise);
bool LimitsSearch(const QCommandLineParser& line);  // by one of them, or by the kinds below
bool WithSubfolders(const QCommandLineParser& line);
QString FoldersToSearch(const QCommandLineParser& line, const QString& otherwise);
// For who must have seen every folder: raises DocumentError.
[[noreturn]] void RaiseUnsearched(const QString& folder, const QString& reason);

// Which kinds of use a search for the users of a document looks for. Raises UsageError.
QCommandLineOption KindsOption();
UseKinds KindsToFind(const QCommandLineParser& line);

// The file that a list is written to, and writing it; nothing is written without the option.
QCommandLineOption OutputOption();
void WriteOutput(const TextTable& table, const QCommandLineParser& line);

}  // namespace docbench
