#include "services/filesystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <cerrno>
#include <cstring>

#include "services/docaccess.h"
#include "services/filecopy.h"
#include "services/paths.h"
#include "services/seams.h"

namespace docbench {
namespace {

QString Reason(int error) {
    return QString::fromLocal8Bit(std::strerror(error));
}

[[noreturn]] void SyncFailed(const QString& folder, int error) {
    throw DocumentError(QStringLiteral("What was written to the folder %1 can't be brought to the "
                                       "disk: %2. Check the disk before you rely on it.")
                            .arg(folder, Reason(error)));
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

void FileSystem::Move(const QString& from, const QString& to) {
    if (RenameUnlessThere(QFile::encodeName(from), QFile::encodeName(to)))
        return SyncFolderOf(to);
    const QString reason =
        errno == EEXIST ? QStringLiteral("there is such a file already") : Reason(errno);
    throw DocumentError(
        QStringLiteral("The file %1 can't be renamed to %2: %3. Check the new name and "
                       "that you may write in the folder.")
            .arg(from, to, reason));
}

bool FileSystem::Copy(const QString& from, const QString& to, IfThere ifThere) {
    return CopyWholeFile(from, to, ifThere);
}

void FileSystem::Sync(const QStringList& folders) {
    QSet<dev_t> synced;
    for (const QString& folder : folders) {
        const int file = open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
        if (file < 0)
            SyncFailed(folder, errno);
        struct stat status;
        bool done = fstat(file, &status) == 0;
        if (done && !synced.contains(status.st_dev)) {
            synced.insert(status.st_dev);
            done = syncfs(file) == 0;
        }
        const int error = errno;
        close(file);
        if (!done)
            SyncFailed(folder, error);
    }
}

FileSystem& Files() {
    static FileSystem disk;
    return gSeams.files ? *gSeams.files : disk;
}

bool IsSameFile(const QString& one, const QString& other) {
    struct stat first;
    struct stat second;
    return ::stat(QFile::encodeName(one).constData(), &first) == 0 &&
           ::stat(QFile::encodeName(other).constData(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

QString PathWithoutLinks(const QString& path) {
    const QString own = IsWebPath(path) ? QString() : QFileInfo(path).canonicalFilePath();
    return own.isEmpty() ? path : own;
}

bool IsReadOnlyFile(const QString& path) {
    const QFileInfo file(path);
    return file.exists() &&
           !(file.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther));
}

void AllowWriting(const QString& path) {
    const QFileInfo file(path);
    if (file.exists() && !file.permission(QFile::WriteOwner))
        QFile::setPermissions(path, file.permissions() | QFile::WriteOwner | QFile::WriteUser);
}

}  // namespace docbench
