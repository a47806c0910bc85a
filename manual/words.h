// What a word of a usage stands for, for completing it.
#pragma once

#include <QString>
#include <QStringList>

namespace manual {

enum class WordKind {
    Document,  // a part, assembly or drawing
    Folder,
    Choice,   // one of the words that are separated by "|"
    NewName,  // a text that is nowhere yet
    File,     // anything else
};

// Of a word that stands for an argument of a command, such as "FILE..." or "[NAME".
WordKind KindOfArgument(const QString& word);
// Of an option's value, such as "FOLDER".
WordKind KindOfValue(const QString& value);

// The words of a usage without the options: "FILE", "NEWNAME".
QStringList ArgumentsOf(const QString& usage);

// The extensions of documents, in lower case.
QStringList DocumentExtensions();

}  // namespace manual
