// What is behind an open package; for the sources of the package layer alone.
#pragma once

#include <sys/stat.h>

#include "docmodel/fileops.h"
#include "docmodel/package.h"
#include "docmodel/packagetail.h"
#include "docmodel/partdecoder.h"
#include "docmodel/zipdirectory.h"

namespace docmodel {

struct Package::Data {
    Data() {}  // not "= default", which would clear the tail's buffer in make_unique

    // Reads the newest state of `file`, whose `path` and `status` are set. Raises DocumentError.
    void ReadState();

    PackageSource Source() const { return {file.Get(), tail, path}; }
    const DirectoryEntry& Entry(QByteArrayView name) const;  // raises DocumentError
    // Reads the whole part and throws it away. Raises DocumentError when it is damaged.
    void Check(const DirectoryEntry& entry) const;
    // What a file with this state and nothing else would have less.
    quint64 DeadBytes() const;

    QString path;
    FileDescriptor file;
    quint64 fileSize = 0;
    struct stat status;  // of the file when its state was read
    PackageTail tail;
    ZipDirectory directory;
};

// Opens the document `name` of the open folder `folder` (or AT_FDCWD) for reading and makes sure
// that it is a regular file, never waiting for the other end of a pipe. Raises DocumentError, which
// names `path`.
FileDescriptor OpenForReading(int folder, const char* name, const QString& path,
                              struct stat& status);

// The path as the system calls take it. Raises DocumentError if it can't be one.
QByteArray SystemPath(const QString& path);

}  // namespace docmodel
