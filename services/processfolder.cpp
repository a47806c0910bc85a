#include "services/processfolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <cerrno>
#include <system_error>

#include "services/docaccess.h"

namespace docbench {
namespace {

constexpr mode_t kOwnerOnly = 0700;
constexpr char kAbandoned[] = ".abandoned";  // marks a folder that is being deleted
constexpr int kMostFolders = 100;            // of processes with one id, as in containers

QString Reason(int error) {
    return QString::fromStdString(std::generic_category().message(error));
}

[[noreturn]] void Fail(const QString& folder, int error) {
    throw DocumentError(
        QStringLiteral("The temporary folder %1 can't be made: %2. Please check the "
                       "system's folder for temporary files.")
            .arg(folder, Reason(error)));
}

bool IsOurs(const struct stat& status) {
    return S_ISDIR(status.st_mode) && status.st_uid == ::geteuid();
}

// The user's folder is where anybody may make one first. It is taken only if it is a real folder,
// no link, of this user; nobody else may then look or write into it.
bool IsSafe(const QByteArray& folder) {
    if (::mkdir(folder.constData(), kOwnerOnly) != 0 && errno != EEXIST)
        return false;
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0)
        return false;
    struct stat status;
    const bool safe = ::fstat(handle, &status) == 0 && IsOurs(status) &&
                      ((status.st_mode & 07777) == kOwnerOnly || ::fchmod(handle, kOwnerOnly) == 0);
    ::close(handle);
    return safe;
}

// The user's folder by its plain name; where another user has taken that name, one that can't be
// guessed, which later processes do not find, so that this one must clear it away itself.
QString MakeUserFolder(const QString& plain) {
    if (IsSafe(QFile::encodeName(plain)))
        return plain;
    QByteArray other = QFile::encodeName(plain) + "-XXXXXX";
    if (!::mkdtemp(other.data()))
        Fail(plain, errno);
    return QFile::decodeName(other);
}

// A handle that holds the lock of an existing folder; -1 when a living process has it or it has
// gone.
int Lock(const QByteArray& folder) {
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0)
        return -1;
    struct stat locked;
    struct stat named;
    const bool ours = ::flock(handle, LOCK_EX | LOCK_NB) == 0 && ::fstat(handle, &locked) == 0 &&
                      ::lstat(folder.constData(), &named) == 0 && locked.st_ino == named.st_ino &&
                      locked.st_dev == named.st_dev && IsOurs(locked);
    if (ours)
        return handle;
    ::close(handle);
    return -1;
}

// Renames before it deletes: the name may be taken again by then.
void DeleteIfAbandoned(const QString& folder) {
    const int lock = Lock(QFile::encodeName(folder));
    if (lock < 0)
        return;
    const QString marked = folder + QLatin1String(kAbandoned) + QString::number(::getpid());
    if (::rename(QFile::encodeName(folder).constData(), QFile::encodeName(marked).constData()) == 0)
        QDir(marked).removeRecursively();
    ::close(lock);
}

}  // namespace

ProcessFolder::ProcessFolder(const QString& parent)
    : plainUserFolder_(QDir(parent).filePath(QStringLiteral("docbench-%1").arg(uint(::geteuid())))),
      userFolder_(MakeUserFolder(plainUserFolder_)) {
    const QString name = QString::number(::getpid());
    for (int i = 0; lock_ < 0 && i < kMostFolders; ++i) {
        MakeFolder(i == 0 ? name : name + u'-' + QString::number(i));
        lock_ = Lock(QFile::encodeName(path_));
    }
    if (lock_ < 0)
        Fail(path_, EWOULDBLOCK);
}

void ProcessFolder::MakeFolder(const QString& name) {
    path_ = userFolder_ + u'/' + name;
    if (::mkdir(QFile::encodeName(path_).constData(), kOwnerOnly) != 0 && errno != EEXIST)
        Fail(path_, errno);
}

ProcessFolder::~ProcessFolder() {
    QDir(path_).removeRecursively();
    ::close(lock_);
    // The plain one stays, empty or not: another program may be about to use it.
    if (userFolder_ != plainUserFolder_)
        QDir().rmdir(userFolder_);
}

void ProcessFolder::DeleteAbandoned() const {
    const QDir::Filters folders =
        QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    for (const QString& name : QDir(userFolder_).entryList(folders)) {
        const QString folder = userFolder_ + u'/' + name;
        if (folder != path_)
            DeleteIfAbandoned(folder);
    }
}

}  // namespace docbench
