#include <sys/stat.h>
#include <unistd.h>

#include "docmodel/filelock.h"
#include "docmodel/package.h"
#include "docmodel/packagedata.h"

namespace docmodel {

namespace {

constexpr int kWritable = 0;
constexpr int kReadOnly = 2;
constexpr int kInUse = 3;
constexpr int kOther = 4;

}  // namespace

int AccessState(const QString& path) {
    const QByteArray systemPath = path.toUtf8();
    struct stat status;
    if (stat(systemPath.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return kOther;
    if (IsReadOnly(status))
        return kReadOnly;
    if (access(systemPath.constData(), R_OK | W_OK) != 0)
        return kOther;
    try {
        // A document that can't be read is never written.
        const Package package = Package::Open(path);
        return package.IsLockedByOther() ? kInUse : kWritable;
    } catch (const DocumentError&) {
        return kOther;
    }
}

}  // namespace docmodel
