#include "docmodel/fileattributes.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QByteArray>
#include <QByteArrayList>
#include <cerrno>
#include <optional>

namespace docmodel {

namespace {

// The names, or none on failure. A disk that has no attributes gives an empty list.
std::optional<QByteArrayList> AttributeNames(int file) {
    const ssize_t size = flistxattr(file, nullptr, 0);
    if (size < 0 && errno == ENOTSUP)
        return QByteArrayList();
    if (size < 0)
        return std::nullopt;
    QByteArray names(size, '\0');
    const ssize_t got = flistxattr(file, names.data(), size_t(names.size()));
    if (got < 0)
        return std::nullopt;
    names.truncate(got);
    QByteArrayList list = names.split('\0');
    list.removeAll(QByteArray());
    return list;
}

std::optional<QByteArray> Attribute(int file, const QByteArray& name) {
    const ssize_t size = fgetxattr(file, name.constData(), nullptr, 0);
    if (size < 0)
        return std::nullopt;
    QByteArray value(size, '\0');
    const ssize_t got = fgetxattr(file, name.constData(), value.data(), size_t(value.size()));
    if (got < 0)
        return std::nullopt;
    value.truncate(got);
    return value;
}

bool CopyExtended(int from, int to) {
    const std::optional<QByteArrayList> names = AttributeNames(from);
    const std::optional<QByteArrayList> inherited = AttributeNames(to);
    if (!names || !inherited)
        return false;
    for (const QByteArray& name : *inherited)  // such as a folder's default access list
        if (!names->contains(name) && fremovexattr(to, name.constData()) != 0)
            return false;
    for (const QByteArray& name : *names) {
        const std::optional<QByteArray> value = Attribute(from, name);
        if (!value)
            return false;
        if (Attribute(to, name) == value)
            continue;  // security labels may be the same already, and not ours to set
        if (fsetxattr(to, name.constData(), value->constData(), size_t(value->size()), 0) != 0)
            return false;
    }
    return true;
}

}  // namespace

bool CopyAttributes(int from, const struct stat& status, int to) {
    struct stat now;
    if (fstat(to, &now) != 0)
        return false;
    if ((now.st_uid != status.st_uid || now.st_gid != status.st_gid) &&
        fchown(to, status.st_uid, status.st_gid) != 0)
        return false;
    // After the owner, whose change takes away set-id bits.
    return CopyExtended(from, to) && fchmod(to, status.st_mode & 07777) == 0;
}

}  // namespace docmodel
