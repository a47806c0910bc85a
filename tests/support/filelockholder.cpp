#include "tests/support/filelockholder.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>

namespace docbench {

// An open file description lock conflicts with every other description, those of this process
// included.
FileLockHolder::FileLockHolder(const QString& path)
    : descriptor_(open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC)) {
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    if (descriptor_ < 0 || fcntl(descriptor_, F_OFD_SETLK, &whole) != 0)
        qFatal("can't lock %s", qPrintable(path));
}

FileLockHolder::~FileLockHolder() {
    close(descriptor_);
}

}  // namespace docbench
