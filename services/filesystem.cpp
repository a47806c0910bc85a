#include "services/filesystem.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "services/docaccess.h"
#include "services/seams.h"

namespace docbench {
namespace {

[[noreturn]] void Fail(const QString& from, const QString& to, int error) {
    const QString reason = error == EEXIST ? QStringLiteral("there is such a file already")
                                           : QString::fromLocal8Bit(std::strerror(error));
    throw DocumentError(
        QStringLiteral("The file %1 can't be renamed to %2: %3. Check the new name and "
                       "that you may write in the folder.")
            .arg(from, to, reason));
}

// The holders are written next, and synced one by one: their new path must not outlast a power
// failure that the file's new name doesn't.
void SyncFolderOf(const QString& path) {
    const int folder = open(QFile::encodeName(QFileInfo(path).path()).constData(),
                            O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);  // where it can't be done there is nothing else to do
    close(folder);
}

}  // namespace

bool MoveByLink(const char* from, const char* to) {
    if (link(from, to) != 0)
        return false;
    if (unlink(from) == 0)
        return true;
    const int error = errno;
    unlink(to);
    errno = error;
    return false;
}

void FileSystem::Move(const QString& from, const QString& to) {
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    const bool moved = renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(),
                                 RENAME_NOREPLACE) == 0;
    if (!moved && errno != EINVAL && errno != ENOSYS)
        Fail(from, to, errno);
    if (!moved && !MoveByLink(source.constData(), target.constData()))
        Fail(from, to, errno);
    SyncFolderOf(to);
}

FileSystem& Files() {
    static FileSystem disk;
    return gSeams.files ? *gSeams.files : disk;
}

}  // namespace docbench
