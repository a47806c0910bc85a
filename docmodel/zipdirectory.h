// The central directory of a package: its parts, checked and ready to be looked up.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QVarLengthArray>

#include "docmodel/zipformat.h"

namespace docmodel {

// One part, or a folder, as the directory describes it.
struct DirectoryEntry {
    zip::CentralRecord record;
    quint32 recordOffset = 0;  // of its raw record in the directory
    quint32 hash = 0;          // of the name in lower case
    quint64 limit = 0;         // where the next part, or the directory, begins
};

// Whether two part names mean the same part: equal but for ASCII case.
bool SameName(QByteArrayView a, QByteArrayView b);

// Why `name` can't be a part's name; empty if it can. The whole rule: 1 to 4096 bytes of UTF-8
// without NUL and backslash, segments that are not empty and neither "." nor ".." between slashes.
QString NameFault(QByteArrayView name);

// Views a directory that somebody else keeps in memory, unmoved, for as long as this object lives.
class ZipDirectory {
public:
    // Reads the directory at `bytes` as `end` describes it. Raises DocumentError, naming `path`,
    // when it is malformed, has too many or overlapping parts, a bad name or one name twice.
    void Parse(const uchar* bytes, const zip::EndRecord& end, const QString& path);

    qsizetype Count() const { return entries_.size(); }
    const DirectoryEntry& At(qsizetype index) const { return entries_[index]; }
    const DirectoryEntry* Find(QByteArrayView name) const;  // null when there is none
    QByteArrayView Name(const DirectoryEntry& entry) const;
    QByteArrayView RawRecord(const DirectoryEntry& entry) const;
    static bool IsFolder(QByteArrayView name) { return name.endsWith('/'); }

    // Bytes that the parts take in the file, as far as the directory tells: local extra fields and
    // data descriptors are not in it.
    quint64 PartBytes() const;

private:
    void Add(quint32 offset, const zip::CentralRecord& record, const QString& path);
    void CheckDuplicates(const QString& path);
    void CheckExtents(quint64 directoryOffset, const QString& path);

    static constexpr qsizetype kUsualParts = 24;
    const uchar* bytes_ = nullptr;
    QVarLengthArray<DirectoryEntry, kUsualParts> entries_;
    QVarLengthArray<quint32, kUsualParts> byHash_;  // positions in entries_, sorted for look-up
};

}  // namespace docmodel
