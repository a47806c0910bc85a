#include "services/filecopy.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

#include "services/docaccess.h"

namespace docbench {
namespace {

constexpr int kTries = 3;                   // for a source that changes meanwhile
constexpr size_t kChunk = 1024 * 1024;      // bytes that this process copies at a time
constexpr size_t kKernelChunk = 1U << 30U;  // and that it asks the kernel for

class Descriptor {
public:
    explicit Descriptor(int file) : file_(file) {}
    ~Descriptor() {
        if (file_ >= 0)
            close(file_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return file_; }
    bool IsOpen() const { return file_ >= 0; }

private:
    int file_;
};

// The file that grows beside its later place; gone with this object unless it was placed.
class NewSibling {
public:
    NewSibling(const QByteArray& target, mode_t mode)
        : path_(SiblingOf(target)),
          file_(open(path_.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode)) {
        if (!file_.IsOpen())
            path_.clear();
    }
    ~NewSibling() {
        if (!path_.isEmpty())
            unlink(path_.constData());
    }
    NewSibling(const NewSibling&) = delete;
    NewSibling& operator=(const NewSibling&) = delete;

    int Get() const { return file_.Get(); }
    bool IsOpen() const { return file_.IsOpen(); }
    bool Place(const QByteArray& target, FileSystem::IfThere ifThere) {
        const bool placed = ifThere == FileSystem::IfThere::Replace
                                ? std::rename(path_.constData(), target.constData()) == 0
                                : RenameUnlessThere(path_, target);
        if (placed)
            path_.clear();
        return placed;
    }

private:
    static QByteArray SiblingOf(const QByteArray& target) {
        constexpr qsizetype kLongestName = 255;
        const qsizetype name = target.lastIndexOf('/') + 1;
        const QByteArray end =
            '.' + QByteArray::number(QRandomGenerator::system()->generate64(), 16) + ".tmp";
        return target.left(name) + '.' + target.mid(name, kLongestName - 1 - end.size()) + end;
    }

    QByteArray path_;  // empty when there is nothing to remove
    Descriptor file_;
};

bool IsSameState(const struct stat& one, const struct stat& other) {
    const auto same = [](const timespec& a, const timespec& b) {
        return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
    };
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino &&
           one.st_size == other.st_size && same(one.st_mtim, other.st_mtim) &&
           same(one.st_ctim, other.st_ctim);
}

// From where the two files stand to the source's end.
bool CopyInProcess(int from, int to) {
    std::vector<char> bytes(kChunk);
    while (true) {
        const ssize_t got = read(from, bytes.data(), bytes.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return got == 0;
        for (ssize_t done = 0; done < got;) {
            const ssize_t written = write(to, bytes.data() + done, size_t(got - done));
            if (written < 0 && errno != EINTR)
                return false;
            done += written > 0 ? written : 0;
        }
    }
}

bool IsForThisProcess(int error) {
    return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP ||
           error == EPERM;
}

bool CopyBytes(int from, int to) {
    if (ioctl(to, FICLONE, from) == 0)
        return true;
    while (true) {
        const ssize_t copied = copy_file_range(from, nullptr, to, nullptr, kKernelChunk, 0);
        if (copied < 0 && errno == EINTR)
            continue;
        if (copied < 0 && !IsForThisProcess(errno))
            return false;
        if (copied <= 0)
            break;
    }
    // Some disks end the kernel's way before the file does: what is left, if anything, goes here.
    return CopyInProcess(from, to);
}

class FileCopy {
public:
    FileCopy(const QString& from, const QString& to, FileSystem::IfThere ifThere)
        : from_(from),
          to_(to),
          source_(QFile::encodeName(from)),
          target_(FollowedLinks(to)),
          ifThere_(ifThere) {}

    bool Run() {
        for (int left = kTries; left > 0; --left) {
            struct stat before;
            const Descriptor source(open(source_.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
            if (!source.IsOpen() || fstat(source.Get(), &before) != 0)
                Fail(errno);
            if (!S_ISREG(before.st_mode))
                Fail(QStringLiteral("it is no file"));
            if (!MayBeTaken(before))
                return false;
            NewSibling copy(target_, (before.st_mode & ACCESSPERMS) | S_IWUSR);
            if (!copy.IsOpen() || !CopyBytes(source.Get(), copy.Get()))
                Fail(errno);
            if (IsUnchanged(source.Get(), before))
                return Place(copy, before);
        }
        Fail(QStringLiteral("it keeps changing while it is copied"));
    }

private:
    // A link is followed, so that it goes on leading to the file.
    static QByteArray FollowedLinks(const QString& path) {
        const QFileInfo file(path);
        return QFile::encodeName(file.isSymLink() && file.exists() ? file.canonicalFilePath()
                                                                   : path);
    }

    // False if there is a file that was to be left alone. Raises if nothing may take its place.
    bool MayBeTaken(const struct stat& source) const {
        struct stat target;
        if (lstat(target_.constData(), &target) != 0)
            return true;
        if (ifThere_ == FileSystem::IfThere::Refuse)
            return false;
        if (target.st_dev == source.st_dev && target.st_ino == source.st_ino)
            Fail(QStringLiteral("both are the same file"));
        if (!S_ISREG(target.st_mode))
            Fail(QStringLiteral("there is something of that name that is no file"));
        if (!(target.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)))
            Fail(QStringLiteral("the file there is write-protected"));
        return true;
    }

    // A save may have come in between, or have put another file in the source's place.
    bool IsUnchanged(int source, const struct stat& before) const {
        struct stat after;
        struct stat named;
        return fstat(source, &after) == 0 && IsSameState(before, after) &&
               stat(source_.constData(), &named) == 0 && named.st_ino == before.st_ino &&
               named.st_dev == before.st_dev;
    }

    bool Place(NewSibling& copy, const struct stat& source) const {
        const timespec times[] = {source.st_atim, source.st_mtim};
        futimens(copy.Get(), times);  // a disk without such times has none to be wrong
        if (ifThere_ == FileSystem::IfThere::Replace) {
            // The old bytes go away with the rename, so the new ones must be on the disk before it.
            if (fdatasync(copy.Get()) != 0)
                Fail(errno);
        } else {
            // Nothing depends on it yet: the disk begins now and is waited for once, by Sync.
            sync_file_range(copy.Get(), 0, 0, SYNC_FILE_RANGE_WRITE);
        }
        // Disks across a network tell at a close what they could not write.
        const int again = dup(copy.Get());
        if (again < 0 || close(again) != 0)
            Fail(errno);
        if (copy.Place(target_, ifThere_))
            return true;
        if (errno != EEXIST || ifThere_ == FileSystem::IfThere::Replace)
            Fail(errno);
        return false;
    }

    [[noreturn]] void Fail(int error) const { Fail(QString::fromLocal8Bit(std::strerror(error))); }
    [[noreturn]] void Fail(const QString& reason) const {
        throw DocumentError(QStringLiteral("The file %1 can't be copied to %2: %3. Check that you "
                                           "may read the file and write in the folder, and that "
                                           "there is room on the disk.")
                                .arg(from_, to_, reason));
    }

    const QString from_;
    const QString to_;
    const QByteArray source_;
    const QByteArray target_;
    const FileSystem::IfThere ifThere_;
};

}  // namespace

bool CopyWholeFile(const QString& from, const QString& to, FileSystem::IfThere ifThere) {
    return FileCopy(from, to, ifThere).Run();
}

bool MoveByPlaceholder(const char* from, const char* to) {
    const int place = open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (place < 0)
        return false;
    close(place);
    if (std::rename(from, to) == 0)
        return true;
    const int error = errno;
    unlink(to);
    errno = error;
    return false;
}

bool MoveByLink(const char* from, const char* to) {
    if (link(from, to) != 0)
        return (errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS) &&
               MoveByPlaceholder(from, to);
    if (unlink(from) == 0)
        return true;
    const int error = errno;
    unlink(to);
    errno = error;
    return false;
}

bool RenameUnlessThere(const QByteArray& from, const QByteArray& to) {
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    return MoveByLink(from.constData(), to.constData());
}

}  // namespace docbench
