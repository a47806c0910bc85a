// Operations on files that a test must be able to fail.
#pragma once

#include <QString>
#include <QStringList>

namespace docbench {

// All raise DocumentError, naming the file and the reason; nothing has changed then.
class FileSystem {
public:
    enum class IfThere { Refuse, Replace };

    virtual ~FileSystem() = default;
    // Renames in one step, within a disk. A file that is there under the new name is never
    // replaced, also when it appears at this very moment.
    virtual void Move(const QString& from, const QString& to);
    // Makes a copy that may be written and has the source's time. It takes its name when it is
    // whole, so that no failure leaves a part of it, and none costs the file that it replaces.
    // False: there is a file of that name, which was to be left alone.
    virtual bool Copy(const QString& from, const QString& to, IfThere ifThere);
    // Returns when all that was written to the disks of these folders will outlast a power failure.
    virtual void Sync(const QStringList& folders);
};

// The disk, unless a test has put something else in its place (gSeams.files).
FileSystem& Files();

// Two names of one file. False when one of them is not there.
bool IsSameFile(const QString& one, const QString& other);

// The path of the file without links in it; of an address, and where there is no such file, the
// path as it is. Equal for two ways to one file.
QString PathWithoutLinks(const QString& path);

// A file or folder on the disk without the right to be written. Asked by mode: who may do anything
// is told of write protection all the same.
bool IsReadOnlyFile(const QString& path);
// Gives the owner the right to write.
void AllowWriting(const QString& path);

}  // namespace docbench
