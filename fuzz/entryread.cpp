#include <sys/mman.h>

#include <cstdlib>

#include "docmodel/fileops.h"
#include "docmodel/package.h"
#include "fuzz/entries.h"

namespace docmodel {

void FuzzRead(const uint8_t* bytes, size_t count) {
    constexpr qint64 kLimit = 1 << 20;
    const FileDescriptor file(memfd_create("fuzz", MFD_CLOEXEC));
    if (!file.IsOpen() || !WriteAll(file.Get(), bytes, count, 0))
        std::abort();
    const QString path = QStringLiteral("/proc/self/fd/%1").arg(file.Get());
    try {
        const Package package = Package::Open(path);
        if (package.DeadBytes() < 0 || package.DeadBytes() > package.FileSize())
            std::abort();
        for (const QByteArray& name : package.PartNames()) {
            if (!package.HasPart(name))
                std::abort();
            try {
                if (package.ReadPart(name, kLimit).size() > kLimit)
                    std::abort();
            } catch (const DocumentError& error) {
                if (!error.Description().contains(path))
                    std::abort();  // the user would not know which file
            }
        }
    } catch (const DocumentError& error) {
        if (!error.Description().contains(path))
            std::abort();
    }
}

}  // namespace docmodel
