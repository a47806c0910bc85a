#include "docmodel/filelock.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <memory>

#include "docmodel/packagedata.h"
#include "docmodel/packageerror.h"
#include "docmodel/packagelimits.h"

namespace docmodel {

namespace {

struct flock WholeFile(short type) {
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    return lock;  // start and length 0: all of it
}

QByteArray RealPath(const QString& path, const QString& shownPath) {
    const std::unique_ptr<char, decltype(&std::free)> real(
        realpath(SystemPath(path).constData(), nullptr), &std::free);
    if (!real)
        throw SystemError(shownPath, QStringLiteral("opened for writing"), errno);
    return real.get();
}

// Looks before opening: opening a device or a pipe for writing may already do something.
void CheckWritable(const QByteArray& realPath, const QString& path) {
    const QString done = QStringLiteral("written");
    struct stat status;
    if (stat(realPath.constData(), &status) != 0)
        throw SystemError(path, done, errno);
    if (S_ISDIR(status.st_mode))
        throw FailedError(path, done, QStringLiteral("it is a folder. Choose a document"));
    if (!S_ISREG(status.st_mode))
        throw SystemError(path, done, ENXIO);
    if (IsReadOnly(status))
        throw FailedError(path, done,
                          QStringLiteral("it is read-only. Give it write permission, or work on a "
                                         "copy"));
}

void WaitForLock(int file, const QString& path) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(kLockWaitMilliseconds);
    while (!TryLock(file)) {
        if (errno == EINTR)
            continue;
        if (errno != EAGAIN && errno != EACCES)
            throw SystemError(path, QStringLiteral("locked for writing"), errno);
        if (Clock::now() >= end)
            throw DocumentError(
                QStringLiteral("The document %1 is in use by another program. Close it there and "
                               "try again.")
                    .arg(path));
        const timespec pause = {0, kLockPollMilliseconds * 1'000'000L};
        nanosleep(&pause, nullptr);
    }
}

}  // namespace

bool TryLock(int file) {
    struct flock lock = WholeFile(F_WRLCK);
    return fcntl(file, F_OFD_SETLK, &lock) == 0;
}

void Unlock(int file) {
    struct flock lock = WholeFile(F_UNLCK);
    fcntl(file, F_OFD_SETLK, &lock);  // can't fail for a lock that is held
}

bool IsLockedByOther(int file) {
    struct flock lock = WholeFile(F_WRLCK);
    return fcntl(file, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

bool IsReadOnly(const struct stat& status) {
    return (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
}

bool IsSameFile(const QByteArray& realPath, const struct stat& status) {
    struct stat now;
    return stat(realPath.constData(), &now) == 0 && now.st_dev == status.st_dev &&
           now.st_ino == status.st_ino;
}

LockedFile OpenLocked(const QString& path, const QString& shownPath, struct stat& status) {
    LockedFile locked;
    for (int i = 0; i < kMaxReopens; ++i) {
        locked.realPath = RealPath(path, shownPath);
        CheckWritable(locked.realPath, shownPath);
        locked.file = FileDescriptor(
            open(locked.realPath.constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
        if (!locked.file.IsOpen())
            throw SystemError(shownPath, QStringLiteral("opened for writing"), errno);
        WaitForLock(locked.file.Get(), shownPath);
        if (fstat(locked.file.Get(), &status) != 0)
            throw SystemError(shownPath, QStringLiteral("read"), errno);
        // While this waited, a compaction may have put another file in the place of the locked one.
        if (IsSameFile(locked.realPath, status))
            return locked;
    }
    throw FailedError(shownPath, QStringLiteral("written"),
                      QStringLiteral("other programs keep replacing it. Try again later"));
}

}  // namespace docmodel
