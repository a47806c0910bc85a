#include "docmodel/fileops.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <stdio.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace docmodel {

namespace {

FileOps systemFileOps;

}  // namespace

FileOps* gFileOps = &systemFileOps;

ssize_t FileOps::Write(int file, const void* bytes, size_t count, off_t offset) {
    return pwrite(file, bytes, count, offset);
}

int FileOps::Sync(int file) {
    return fsync(file);
}

int FileOps::SyncData(int file) {
    return fdatasync(file);
}

int FileOps::Truncate(int file, off_t length) {
    return ftruncate(file, length);
}

int FileOps::CreateNew(const char* path, unsigned mode) {
    return open(path, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
}

int FileOps::Rename(const char* from, const char* to) {
    return rename(from, to);
}

int FileOps::RenameNoReplace(const char* from, const char* to) {
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return -1;
    // The disk does not know the flag. A link refuses an existing name as well, and it is what
    // counts: should the other name stay, the file is there all the same.
    if (link(from, to) != 0)
        return -1;
    unlink(from);
    return 0;
}

int FileOps::Unlink(const char* path) {
    return unlink(path);
}

bool WriteAll(int file, const void* bytes, size_t count, off_t offset) {
    const char* from = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t written = gFileOps->Write(file, from, count, offset);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            if (written == 0)
                errno = ENOSPC;
            return false;
        }
        from += written;
        count -= size_t(written);
        offset += written;
    }
    return true;
}

ssize_t ReadUpTo(int file, void* bytes, size_t count, off_t offset) {
    char* to = static_cast<char*>(bytes);
    size_t done = 0;
    while (done < count) {
        const ssize_t got = pread(file, to + done, count - done, offset + off_t(done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        done += size_t(got);
    }
    return ssize_t(done);
}

bool SyncFolder(const char* folder) {
    const FileDescriptor opened(open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened.IsOpen())
        return errno == EACCES;  // a folder that may be written but not listed can't be opened
    return gFileOps->Sync(opened.Get()) == 0 || errno == EINVAL;  // not every disk can sync folders
}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
        Close();
        file_ = other.Release();
    }
    return *this;
}

int FileDescriptor::Release() {
    return std::exchange(file_, -1);
}

void FileDescriptor::Close() {
    if (file_ >= 0)
        close(file_);
    file_ = -1;
}

}  // namespace docmodel
