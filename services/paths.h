// Taking paths and web addresses apart; only FileExists and CreateFolderPath look at the disk.
#pragma once

#include <QString>
#include <QStringList>

namespace docbench {

// In all of these a separator is "/" or "\", and ":" ends a drive, as the second character only.

enum class DocType { None = 0, Assembly = 1, Part = 2, Drawing = 3 };

// The bits of a file's attributes that have a letter.
enum FileAttribute : quint8 {
    kAttributeReadOnly = 1,
    kAttributeHidden = 2,
    kAttributeFolder = 16,  // the value of a plain folder
    kAttributeArchive = 32,
    kAttributeCompressed = 128,
};

QString ExtensionOf(const QString& path);        // behind the last "."; without one, the whole text
QString ExtensionOrEmpty(const QString& path);   // behind the last "."; without one, nothing
QString FileNameOf(const QString& path);         // behind the last separator
QString FolderOf(const QString& path);           // up to and including the last separator or ":"
QString FolderNoSeparator(const QString& path);  // FolderOf less a separator at its end; ":" stays
QString BaseNameOf(const QString& path);         // a document's file name without its extension

// By the extension in any case. ".drw" is no drawing here, though OpenDocumentExternally takes it
// as one.
DocType DocTypeOf(const QString& path);

// True where "http" occurs anywhere in any case, in a local path too.
bool IsWebPath(const QString& path);

// Whether a name fits a pattern, in which "*" stands for any text and "?" for one character; "*.*"
// is every name.
bool MatchesPattern(QStringView name, QStringView pattern);

// A file or folder of that name is there. In the name, not in its folder, "*" stands for any text
// and
// "?" for one character; "*.*" is every file.
bool FileExists(const QString& path);

// Makes a folder with all that is missing above it. True if it is there afterwards.
bool CreateFolderPath(const QString& path);

// The letters C, A, H and R, in this order, for the attributes that are set.
QString FileAttributeText(quint8 attributes);

qint16 AtLeastOne(qint16 value);    // 1 for anything below
qint16 ClampToInt16(qint64 value);  // 0 for a negative value, the largest for one beyond the range

// The first of equal entries each, in order, without the empty ones. Blanks the later ones in
// `entries`.
QStringList RemoveDuplicates(QStringList& entries);

}  // namespace docbench
