// The commands of the tool: how each reads its arguments, and what main() knows of it.
#pragma once

#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <exception>

#include "services/docaccess.h"

namespace docmodel::tool {

// Raised for arguments that make no sense. `what` is a sentence for the user.
class UsageError : public std::exception {
public:
    explicit UsageError(QString text) : text_(std::move(text)) {}
    const QString& Text() const { return text_; }

private:
    QString text_;
};

// Raised when a document can't be opened at all, for the exit code of its own.
class OpenError : public docbench::DocumentError {
    using DocumentError::DocumentError;
};

// An argument that is no option. "[NAME]" may be left out, "NAME..." is one or more.
struct Position {
    QString name;
    QString description;
};

// The arguments of one command. Its options are added to `Parser()` before `Read`.
class Arguments {
public:
    Arguments(const QString& command, const QString& description, const QList<Position>& positions);
    QCommandLineParser& Parser() { return parser_; }
    // False when the user asked for help, which is then printed. Raises UsageError.
    bool Read(const QStringList& arguments);

    QStringList All() const { return parser_.positionalArguments(); }
    QString At(int position) const { return All().value(position); }  // empty if left out
    bool IsSet(const QString& option) const { return parser_.isSet(option); }
    QString Value(const QString& option) const { return parser_.value(option); }
    // A whole number from `least` to `most`; raises UsageError for anything else.
    qint64 Number(const QString& option, qint64 least, qint64 most) const;

private:
    QCommandLineParser parser_;
    QString command_;
    QList<Position> positions_;
};

struct Command {
    const char* name;
    const char* summary;                       // one line for the list of commands
    int (*run)(const QStringList& arguments);  // without the program and the command; an exit code
};

// In the order in which the help lists them.
const QList<Command>& Commands();

QTextStream& Out();
QTextStream& Err();

// Raises OpenError when the file is no readable document.
void RequireDocument(const QString& path);

int RunNew(const QStringList& arguments);
int RunShow(const QStringList& arguments);
int RunSetProperty(const QStringList& arguments);
int RunAddReference(const QStringList& arguments);
int RunSetPreview(const QStringList& arguments);
int RunAddConfiguration(const QStringList& arguments);
int RunAddHyperlink(const QStringList& arguments);
int RunLock(const QStringList& arguments);
int RunCheck(const QStringList& arguments);
int RunCompact(const QStringList& arguments);
int RunMakeLibrary(const QStringList& arguments);

}  // namespace docmodel::tool
