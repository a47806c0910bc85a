#include "docmodel/endsearch.h"

#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "docmodel/fileops.h"
#include "docmodel/packageerror.h"
#include "docmodel/packagelimits.h"

namespace docmodel {

namespace {

// More than an end record and the comment of ours: windows overlap by this much.
constexpr quint64 kOverlap = 128;
static_assert(kOverlap > zip::kEndBytes + zip::kCommentLength);

// The stretches of the file that hold data, in order. Holes are passed over, so that a sparse file
// of terabytes costs nothing.
std::vector<std::pair<quint64, quint64>> DataStretches(int file, quint64 fileSize) {
    std::vector<std::pair<quint64, quint64>> stretches;
    off_t from = 0;
    while (quint64(from) < fileSize) {
        const off_t begin = lseek(file, from, SEEK_DATA);
        if (begin < 0 && errno == ENXIO)
            break;  // only holes from here on
        const off_t end = begin < 0 ? -1 : lseek(file, begin, SEEK_HOLE);
        if (end <= begin)
            return {{0, fileSize}};  // this disk can't tell
        stretches.emplace_back(begin, std::min(quint64(end), fileSize));
        from = end;
    }
    return stretches;
}

}  // namespace

std::optional<EndSearch::State> EndSearch::InWindow(const uchar* bytes, quint64 offset,
                                                    quint64 length) {
    window_ = bytes;
    windowOffset_ = offset;
    windowLength_ = length;
    quint64 left = length;
    while (left > 0) {
        const void* hit = memrchr(bytes, 'P', left);
        if (!hit)
            break;
        left = quint64(static_cast<const uchar*>(hit) - bytes);
        if (length - left < zip::kEndBytes || zip::Get32(bytes + left) != zip::kEndSignature)
            continue;
        if (const std::optional<State> state = StateAt(offset + left))
            return state;
    }
    return std::nullopt;
}

EndSearch::State EndSearch::Backwards(quint64 before) {
    CheckBegin();
    std::vector<std::pair<quint64, quint64>> stretches = DataStretches(file_, fileSize_);
    const auto buffer = std::make_unique_for_overwrite<uchar[]>(kSearchChunkBytes + kOverlap);
    while (!stretches.empty()) {
        const quint64 begin = stretches.back().first;
        quint64 end = std::min(stretches.back().second, before);
        stretches.pop_back();
        while (end > begin) {
            const quint64 from = end - std::min<quint64>(end - begin, kSearchChunkBytes);
            const quint64 length = std::min(end + kOverlap, fileSize_) - from;
            const ssize_t got = ReadUpTo(file_, buffer.get(), length, off_t(from));
            if (got < 0)
                throw SystemError(path_, QStringLiteral("read"), errno);
            if (const std::optional<State> state = InWindow(buffer.get(), from, quint64(got)))
                return *state;
            end = from;
        }
    }
    throw DamagedError(path_, QStringLiteral("its directory is missing or incomplete"));
}

// What does not begin as a package is not searched: it may be any file of any size.
void EndSearch::CheckBegin() {
    uchar begin[4] = {};
    if (ReadUpTo(file_, begin, sizeof begin, 0) < 0)
        throw SystemError(path_, QStringLiteral("read"), errno);
    const quint32 signature = zip::Get32(begin);
    if (signature != zip::kLocalSignature && signature != zip::kEndSignature)
        throw FailedError(path_, QStringLiteral("read"),
                          QStringLiteral("it is no document. Choose another file"));
}

std::optional<EndSearch::State> EndSearch::StateAt(quint64 position) {
    State state;
    if (!ReadEnd(position, state.end))
        return std::nullopt;
    const quint64 commentOffset = position + zip::kEndBytes;
    const quint64 commentLength = zip::Get16(window_ + (position - windowOffset_) + 20);
    state.stateEnd = commentOffset + commentLength;
    // Looked for whatever the length says, which is among what the checksum protects.
    if (fileSize_ - commentOffset < zip::kCommentLength)
        return state;
    const uchar* comment = Fetch(commentOffset, zip::kCommentLength);
    if (!comment)
        return std::nullopt;
    const auto ours = zip::ReadComment(QByteArrayView(comment, zip::kCommentLength));
    // A program that changed the package has carried our comment over, to another place: this is
    // its record, the newer one.
    if (!ours || ours->position != position)
        return state;
    if (!ChecksumFits(position, state.end.directoryOffset, *ours))
        return std::nullopt;
    return state;
}

bool EndSearch::ReadEnd(quint64 position, zip::EndRecord& end) {
    const uchar* const record = window_ + (position - windowOffset_);
    if (position + zip::kEndBytes + zip::Get16(record + 20) > fileSize_)
        return false;
    end.entryCount = zip::Get16(record + 10);
    end.directorySize = zip::Get32(record + 12);
    end.directoryOffset = zip::Get32(record + 16);
    if (end.directoryOffset + end.directorySize != position)
        return ReadEnd64(position, end);
    const bool oneDisk = zip::Get32(record + 4) == 0 && zip::Get16(record + 8) == end.entryCount;
    return oneDisk;
}

// The ZIP64 records stand right before the end record. `end` holds the values of the latter; those
// that are not left to the ZIP64 record must agree with it.
bool EndSearch::ReadEnd64(quint64 position, zip::EndRecord& end) {
    constexpr quint64 kBoth = zip::kEnd64Bytes + zip::kLocator64Bytes;
    if (position < kBoth)
        return false;
    const quint64 offset = position - kBoth;
    const uchar* const record = Fetch(offset, kBoth);
    if (!record || zip::Get32(record) != zip::kEnd64Signature ||
        zip::Get64(record + 4) != zip::kEnd64Bytes - 12)
        return false;
    const uchar* const locator = record + zip::kEnd64Bytes;
    if (zip::Get32(locator) != zip::kLocator64Signature || zip::Get32(locator + 4) != 0 ||
        zip::Get64(locator + 8) != offset || zip::Get32(locator + 16) > 1)
        return false;
    const zip::EndRecord end64 = {zip::Get64(record + 32), zip::Get64(record + 48),
                                  zip::Get64(record + 40)};
    const auto agree = [](quint64 small, quint64 large, quint64 in64) {
        return small == in64 || small == large;
    };
    if (zip::Get64(record + 16) != 0 || zip::Get64(record + 24) != end64.entryCount ||
        !agree(end.entryCount, end64.entryCount, 0xFFFF) ||
        !agree(end.directorySize, end64.directorySize, 0xFFFFFFFF) ||
        !agree(end.directoryOffset, end64.directoryOffset, 0xFFFFFFFF))
        return false;
    end = end64;
    return end.directoryOffset <= offset && end.directorySize == offset - end.directoryOffset;
}

bool EndSearch::ChecksumFits(quint64 position, quint64 directoryOffset,
                             const zip::CommitComment& comment) {
    const quint64 end = position + zip::kEndBytes + zip::kCommentCrcOffset;
    if (comment.start > directoryOffset || end - comment.start > kMaxCheckedBytes)
        return false;
    if (Checksum(comment.start, end) == comment.crc)
        return true;
    if (++failedChecksums_ > kMaxChecksumTries)
        throw DamagedError(path_, QStringLiteral("it ends in too many incomplete saves"));
    return false;
}

quint32 EndSearch::Checksum(quint64 from, quint64 to) {
    if (from >= windowOffset_ && to - windowOffset_ <= windowLength_)
        return quint32(crc32(0, window_ + (from - windowOffset_), uInt(to - from)));
    const auto buffer = std::make_unique_for_overwrite<uchar[]>(kCopyBytes);
    uLong crc = crc32(0, nullptr, 0);
    while (from < to) {
        const quint64 wanted = std::min<quint64>(to - from, kCopyBytes);
        const ssize_t got = ReadUpTo(file_, buffer.get(), wanted, off_t(from));
        if (got < 0)
            throw SystemError(path_, QStringLiteral("read"), errno);
        if (got == 0)
            break;  // cut off meanwhile: the sum won't fit
        crc = crc32(crc, buffer.get(), uInt(got));
        from += quint64(got);
    }
    return quint32(crc);
}

const uchar* EndSearch::Fetch(quint64 offset, quint64 length) {
    if (offset >= windowOffset_ && offset - windowOffset_ <= windowLength_ &&
        windowLength_ - (offset - windowOffset_) >= length)
        return window_ + (offset - windowOffset_);
    Q_ASSERT(length <= sizeof scratch_);
    return ReadUpTo(file_, scratch_, length, off_t(offset)) == ssize_t(length) ? scratch_ : nullptr;
}

}  // namespace docmodel
