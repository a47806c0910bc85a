// Operations on files that a test must be able to fail.
#pragma once

#include <QString>

namespace docbench {

// All raise DocumentError, naming the file and the reason; nothing has changed then.
class FileSystem {
public:
    virtual ~FileSystem() = default;
    // Renames in one step, within a disk. A file that is there under the new name is never
    // replaced, also when it appears at this very moment.
    virtual void Move(const QString& from, const QString& to);
};

// The move for disks that can't rename without replacing: a second name, then the first one goes.
// False with errno set, and nothing changed, when there is such a file already.
bool MoveByLink(const char* from, const char* to);

// The disk, unless a test has put something else in its place (gSeams.files).
FileSystem& Files();

}  // namespace docbench
