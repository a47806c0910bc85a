// Copies one file so that it is there whole or not at all.
#pragma once

#include <QByteArray>
#include <QString>

#include "services/filesystem.h"

namespace docbench {

// As FileSystem::Copy. Within a disk that can share blocks no byte is copied; else the kernel
// copies them, and where it can't, this process does.
bool CopyWholeFile(const QString& from, const QString& to, FileSystem::IfThere ifThere);

// Renames within a disk. False with errno set: EEXIST when there is such a file already.
bool RenameUnlessThere(const QByteArray& from, const QByteArray& to);

// The same for disks that can't rename without replacing: a second name, then the first one goes.
bool MoveByLink(const char* from, const char* to);

// The same for disks without second names: an empty file takes the name, and is replaced.
bool MoveByPlaceholder(const char* from, const char* to);

}  // namespace docbench
