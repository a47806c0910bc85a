#include "services/filesystem.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
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

// Where the disk can't rename without replacing: a second name fails if there is such a file.
bool LinkAndUnlink(const char* from, const char* to) {
    if (link(from, to) != 0)
        return false;
    if (unlink(from) == 0)
        return true;
    const int error = errno;
    unlink(to);
    errno = error;
    return false;
}

}  // namespace

void FileSystem::Move(const QString& from, const QString& to) {
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) ==
        0)
        return;
    if (errno != EINVAL && errno != ENOSYS)
        Fail(from, to, errno);
    if (!LinkAndUnlink(source.constData(), target.constData()))
        Fail(from, to, errno);
}

FileSystem& Files() {
    static FileSystem disk;
    return gSeams.files ? *gSeams.files : disk;
}

}  // namespace docbench
