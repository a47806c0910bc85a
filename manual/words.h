// What a word of a usage stands for, for completing it.
#pragma once

#include <QString>
#include <QStringList>

namespace manual {

enum class WordKind {
    Document,  // a part, assembly or drawing
    Folder,
    Choice,   // typed as it stands; several are separated by "|"
    NewName,  // a text that is nowhere yet
    File,     // anything else
};

// Of a word that ArgumentsOf gives.
WordKind KindOfArgument(const QString& word);
// Of an option's value, such as "FOLDER".
WordKind KindOfValue(const QString& value);

// What stands at each position of a usage, without options and brackets: "FILE", "NEWNAME..."; of
// alternatives, the words that are typed as they stand: "rename|delete".
QStringList ArgumentsOf(const QString& usage);

// The extensions of documents, in lower case.
QStringList DocumentExtensions();

}  // namespace manual
