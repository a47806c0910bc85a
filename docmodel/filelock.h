// The lock that writers of a document hold, and opening a document for writing under it.
#pragma once

#include <QByteArray>
#include <QString>

#include "docmodel/fileops.h"

struct stat;

namespace docmodel {

// Takes a write lock on the whole file, which belongs to the open file description: it ends with
// the last descriptor of it, and keeps out other threads as well as other processes. False with
// errno set; EAGAIN or EACCES means that somebody else holds a lock.
bool TryLock(int file);

void Unlock(int file);

// Whether somebody else holds a lock of any kind on any piece of the file.
bool IsLockedByOther(int file);

// A document that is open for writing and locked.
struct LockedFile {
    FileDescriptor file;
    QByteArray realPath;  // with all links followed
};

// Follows links, opens and locks; waits for a lock of another process, but only briefly. Raises
// DocumentError when the file can't be opened for writing, has no write bit in its mode, or is
// locked by another; its text names `shownPath`. Fills `status` with the file's state under the
// lock.
LockedFile OpenLocked(const QString& path, const QString& shownPath, struct stat& status);

// Whether `realPath` still leads to the file that `status` describes.
bool IsSameFile(const QByteArray& realPath, const struct stat& status);

// Whether the mode lets nobody write.
bool IsReadOnly(const struct stat& status);

}  // namespace docmodel
