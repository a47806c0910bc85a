// The calls to the file system that can fail in the middle of a save, behind one face, so that
// tests can make any of them fail or be the last one.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace docmodel {

// Each is the system call of its name: -1 and errno on failure.
class FileOps {
public:
    virtual ~FileOps() = default;
    virtual ssize_t Write(int file, const void* bytes, size_t count, off_t offset);  // pwrite
    virtual int Sync(int file);                                                      // fsync
    virtual int SyncData(int file);                                                  // fdatasync
    virtual int Truncate(int file, off_t length);
    virtual int CreateNew(const char* path, unsigned mode);  // open for reading and writing, O_EXCL
    virtual int Rename(const char* from, const char* to);
    virtual int RenameNoReplace(const char* from, const char* to);  // EEXIST if `to` is there
    virtual int Unlink(const char* path);
};

// What the package layer calls; never null. Tests put their own in its place.
extern FileOps* gFileOps;

// Writes all bytes, however many calls it takes. False with errno set on failure.
bool WriteAll(int file, const void* bytes, size_t count, off_t offset);

// Reads `count` bytes unless the file ends before. Returns how many, or -1 with errno set.
ssize_t ReadUpTo(int file, void* bytes, size_t count, off_t offset);

// Syncs the folder that a file was placed in, so that its name outlasts a power failure.
bool SyncFolder(const char* folder);

// A file descriptor that is closed with its owner.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int file) : file_(file) {}
    FileDescriptor(FileDescriptor&& other) noexcept : file_(other.Release()) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    ~FileDescriptor() { Close(); }
    int Get() const { return file_; }
    bool IsOpen() const { return file_ >= 0; }
    int Release();
    void Close();

private:
    int file_ = -1;
};

}  // namespace docmodel
