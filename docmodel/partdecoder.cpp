#include "docmodel/partdecoder.h"

#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

#include "docmodel/fileops.h"
#include "docmodel/packageerror.h"
#include "docmodel/packagelimits.h"

namespace docmodel {

namespace {

DocumentError PartError(const QString& path, QByteArrayView name, const QString& reason) {
    return DamagedError(path, QStringLiteral("its part %1 %2").arg(ShownName(name), reason));
}

}  // namespace

quint64 DataOffset(const PackageSource& source, const DirectoryEntry& entry, QByteArrayView name) {
    const zip::CentralRecord& record = entry.record;
    const quint64 length = zip::kLocalBytes + record.nameLength;
    const uchar* header = source.tail.InMemory(record.localOffset, length);
    QByteArray scratch;
    if (!header) {
        scratch = QByteArray(qsizetype(length), Qt::Uninitialized);
        const ssize_t got =
            ReadUpTo(source.file, scratch.data(), length, off_t(record.localOffset));
        if (got < 0)
            throw SystemError(source.path, QStringLiteral("read"), errno);
        if (quint64(got) < length)
            throw PartError(source.path, name, QStringLiteral("is cut off"));
        header = reinterpret_cast<const uchar*>(scratch.constData());
    }
    const std::optional<zip::LocalRecord> local = zip::ReadLocal(header);
    if (!local)
        throw PartError(source.path, name, QStringLiteral("is not where its directory says"));
    if (local->method != record.method || local->nameLength != record.nameLength ||
        ((local->flags ^ record.flags) & zip::kEncryptedFlag) != 0 ||
        QByteArrayView(header + zip::kLocalBytes, local->nameLength) != name)
        throw PartError(source.path, name, QStringLiteral("disagrees with its directory"));
    const quint64 offset = record.localOffset + local->HeaderLength();
    if (offset > entry.limit || entry.limit - offset < record.compressedSize)
        throw PartError(source.path, name, QStringLiteral("overlaps another"));
    return offset;
}

bool CanDecode(const zip::CentralRecord& record, QString& fault) {
    if (record.flags & zip::kEncryptedFlag)
        fault = QStringLiteral("is encrypted");
    else if (record.method != zip::kStored && record.method != zip::kDeflated)
        fault = QStringLiteral("is compressed by a method that is not known here (%1)")
                    .arg(record.method);
    else
        return true;
    return false;
}

namespace {

// A state of zlib, which knows its own address.
struct ZlibState {
    ZlibState() {
        if (inflateInit2(&stream, -MAX_WBITS) != Z_OK)
            throw std::bad_alloc();
    }
    ~ZlibState() { inflateEnd(&stream); }
    ZlibState(const ZlibState&) = delete;
    ZlibState& operator=(const ZlibState&) = delete;
    z_stream stream = {};
};

// Making one, with its window of 32 KiB, takes longer than uncompressing a small part, so each
// thread keeps one for the next part.
thread_local std::unique_ptr<ZlibState> keptState;

std::unique_ptr<ZlibState> FreshState() {
    std::unique_ptr<ZlibState> state = std::move(keptState);
    if (!state || inflateReset(&state->stream) != Z_OK)
        state = std::make_unique<ZlibState>();
    state->stream.avail_in = 0;  // what a damaged part left
    return state;
}

}  // namespace

struct PartDecoder::Inflater {
    ~Inflater() { keptState = std::move(state); }

    std::unique_ptr<ZlibState> state = FreshState();
    z_stream& stream = state->stream;
    bool atEnd = false;
    std::unique_ptr<uchar[]> buffer;  // of raw bytes, when they are not in memory
};

PartDecoder::PartDecoder(const PackageSource& source, const DirectoryEntry& entry,
                         QByteArrayView name)
    : source_(source), record_(entry.record), name_(name) {
    QString fault;
    if (!CanDecode(record_, fault))
        throw FailedError(source.path, QStringLiteral("read"),
                          QStringLiteral("its part %1 %2").arg(ShownName(name), fault));
    const bool stored = record_.method == zip::kStored;
    const bool possible = stored ? record_.size == record_.compressedSize
                                 : record_.size / kMaxDeflateRatio <= record_.compressedSize;
    if (!possible)
        RaiseDamaged(QStringLiteral("claims a size that can't be true"));
    rawOffset_ = DataOffset(source, entry, name);
    rawLeft_ = record_.compressedSize;
    if (!stored)
        inflater_ = std::make_unique<Inflater>();
}

PartDecoder::~PartDecoder() = default;

void PartDecoder::RaiseDamaged(const QString& reason) const {
    throw PartError(source_.path, name_, reason);
}

void PartDecoder::Read(uchar* to, quint64 count) {
    if (inflater_)
        Inflate(to, count);
    else
        CopyRaw(to, count);
    crc_ = quint32(crc32_z(crc_, to, count));
}

void PartDecoder::Finish() {
    uchar beyond = 0;
    if (inflater_ && !inflater_->atEnd && InflateSome(&beyond, 1) > 0)
        RaiseDamaged(QStringLiteral("is longer than its directory says"));
    if (crc_ != record_.crc)
        RaiseDamaged(QStringLiteral("has a wrong checksum"));
}

void PartDecoder::CopyRaw(uchar* to, quint64 count) {
    if (const uchar* bytes = source_.tail.InMemory(rawOffset_, count)) {
        std::memcpy(to, bytes, count);
    } else {
        const ssize_t got = ReadUpTo(source_.file, to, count, off_t(rawOffset_));
        if (got < 0)
            throw SystemError(source_.path, QStringLiteral("read"), errno);
        if (quint64(got) < count)
            RaiseDamaged(QStringLiteral("is cut off"));
    }
    rawOffset_ += count;
    rawLeft_ -= count;
}

void PartDecoder::Inflate(uchar* to, quint64 count) {
    while (count > 0) {
        const quint64 got = InflateSome(to, count);
        if (got == 0)
            RaiseDamaged(QStringLiteral("is shorter than its directory says"));
        to += got;
        count -= got;
    }
}

// Inflates at least one and at most `count` bytes; 0 at the end of the data.
quint64 PartDecoder::InflateSome(uchar* to, quint64 count) {
    z_stream& stream = inflater_->stream;
    const auto room = uInt(std::min<quint64>(count, std::numeric_limits<uInt>::max()));
    stream.next_out = to;
    stream.avail_out = room;
    while (stream.avail_out == room && !inflater_->atEnd) {
        if (stream.avail_in == 0)
            FeedInflater();
        const int status = inflate(&stream, Z_NO_FLUSH);
        if (status == Z_STREAM_END)
            inflater_->atEnd = true;
        else if (status == Z_MEM_ERROR)
            throw std::bad_alloc();
        else if (status != Z_OK)
            RaiseDamaged(QStringLiteral("holds data that can't be uncompressed"));
    }
    return room - stream.avail_out;
}

void PartDecoder::FeedInflater() {
    const quint64 count = std::min<quint64>(rawLeft_, kCopyBytes);
    if (count == 0)
        RaiseDamaged(QStringLiteral("holds data that can't be uncompressed"));
    const uchar* bytes = source_.tail.InMemory(rawOffset_, count);
    if (!bytes) {
        if (!inflater_->buffer)
            inflater_->buffer = std::make_unique_for_overwrite<uchar[]>(kCopyBytes);
        const ssize_t got =
            ReadUpTo(source_.file, inflater_->buffer.get(), count, off_t(rawOffset_));
        if (got < 0)
            throw SystemError(source_.path, QStringLiteral("read"), errno);
        if (quint64(got) < count)
            RaiseDamaged(QStringLiteral("is cut off"));
        bytes = inflater_->buffer.get();
    }
    inflater_->stream.next_in = const_cast<uchar*>(bytes);  // zlib only reads it
    inflater_->stream.avail_in = uInt(count);
    rawOffset_ += count;
    rawLeft_ -= count;
}

}  // namespace docmodel
