#include "docmodel/packagetail.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include "docmodel/endsearch.h"
#include "docmodel/fileops.h"
#include "docmodel/packageerror.h"

namespace docmodel {

void PackageTail::Read(int file, quint64& fileSize, const QString& path) {
    length_ = std::min<quint64>(fileSize, kTailBytes);
    offset_ = fileSize - length_;
    const ssize_t got = ReadUpTo(file, small_, length_, off_t(offset_));
    if (got < 0)
        throw SystemError(path, QStringLiteral("read"), errno);
    if (quint64(got) < length_) {  // a writer has cut off a torn save since the size was asked for
        length_ = quint64(got);
        fileSize = offset_ + length_;
    }
    if (fileSize == 0)
        throw FailedError(path, QStringLiteral("read"),
                          QStringLiteral("it is empty. Restore it from a backup"));
    EndSearch search(file, fileSize, path);
    std::optional<EndSearch::State> state = search.InWindow(small_, offset_, length_);
    if (!state)
        state = search.Backwards(offset_);
    end_ = state->end;
    stateEnd_ = state->stateEnd;
    if (end_.directorySize > kMaxDirectoryBytes)
        throw FailedError(path, QStringLiteral("read"),
                          QStringLiteral("its directory is larger than %1 bytes, which no document "
                                         "needs")
                              .arg(kMaxDirectoryBytes));
    if (!InMemory(end_.directoryOffset, end_.directorySize)) {
        const quint64 from = end_.directoryOffset - std::min(end_.directoryOffset, kTailExtraBytes);
        Load(file, from, end_.directoryOffset + end_.directorySize - from, path);
    }
}

void PackageTail::Load(int file, quint64 offset, quint64 length, const QString& path) {
    large_ = std::make_unique_for_overwrite<uchar[]>(length);
    const ssize_t got = ReadUpTo(file, large_.get(), length, off_t(offset));
    if (got < 0)
        throw SystemError(path, QStringLiteral("read"), errno);
    if (quint64(got) < length)
        throw FailedError(path, QStringLiteral("read"),
                          QStringLiteral("it became shorter meanwhile. Try again"));
    offset_ = offset;
    length_ = length;
}

const uchar* PackageTail::Directory() const {
    return InMemory(end_.directoryOffset, end_.directorySize);
}

const uchar* PackageTail::InMemory(quint64 offset, quint64 length) const {
    if (offset < offset_ || offset - offset_ > length_ || length_ - (offset - offset_) < length)
        return nullptr;
    return (large_ ? large_.get() : small_) + (offset - offset_);
}

}  // namespace docmodel
