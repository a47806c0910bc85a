#include "docmodel/zipformat.h"

#include <QtEndian>
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <ctime>

namespace docmodel::zip {

namespace {

constexpr quint16 kVersionNeeded = 20;    // deflate
constexpr quint16 kVersionNeeded64 = 45;  // ZIP64
constexpr quint16 kZip64Field = 0x0001;
constexpr quint32 kIn64 = 0xFFFFFFFF;  // stands where the value is in the ZIP64 field
constexpr quint16 kCountIn64 = 0xFFFF;
constexpr char kCommentHead[] = "docmodel 1 ";
constexpr qsizetype kStartOffset = sizeof kCommentHead - 1;
constexpr qsizetype kPositionOffset = kStartOffset + 17;
static_assert(kCommentCrcOffset == kPositionOffset + 17);

template <typename Number>
void Append(QByteArray& to, Number value) {
    char bytes[sizeof value];
    qToLittleEndian(value, bytes);
    to.append(bytes, sizeof value);
}

bool IsAscii(const QByteArray& name) {
    return std::all_of(name.cbegin(), name.cend(), [](char c) { return uchar(c) < 0x80; });
}

quint16 NameFlags(const QByteArray& name) {
    return IsAscii(name) ? 0 : kUtf8Flag;
}

// The extra field of type `wanted`, without its head; none if the fields are malformed before it.
std::optional<QByteArrayView> FindExtra(QByteArrayView extra, quint16 wanted) {
    while (extra.size() >= 4) {
        const uchar* head = reinterpret_cast<const uchar*>(extra.data());
        const quint16 length = Get16(head + 2);
        if (length > extra.size() - 4)
            return std::nullopt;
        if (Get16(head) == wanted)
            return extra.sliced(4, length);
        extra = extra.sliced(4 + length);
    }
    return std::nullopt;
}

// Fills the values that the record leaves to its ZIP64 field, which holds them in this order.
bool TakeFrom64(CentralRecord& record, QByteArrayView extra) {
    quint64* const values[] = {&record.size, &record.compressedSize, &record.localOffset};
    if (std::none_of(std::begin(values), std::end(values),
                     [](const quint64* value) { return *value == kIn64; }))
        return true;
    const std::optional<QByteArrayView> field = FindExtra(extra, kZip64Field);
    if (!field)
        return true;  // 0xFFFFFFFF may be meant as it stands
    const uchar* from = reinterpret_cast<const uchar*>(field->data());
    const uchar* const end = from + field->size();
    for (quint64* value : values) {
        if (*value != kIn64)
            continue;
        if (end - from < 8)
            return false;
        *value = Get64(from);
        from += 8;
    }
    return true;
}

// Reads `digits` lower case hexadecimal digits, no fewer.
template <typename Number>
bool ReadHex(const char* from, int digits, Number& value) {
    const std::from_chars_result result = std::from_chars(from, from + digits, value, 16);
    return result.ec == std::errc() && result.ptr == from + digits;
}

}  // namespace

quint16 Get16(const uchar* from) {
    return qFromLittleEndian<quint16>(from);
}
quint32 Get32(const uchar* from) {
    return qFromLittleEndian<quint32>(from);
}
quint64 Get64(const uchar* from) {
    return qFromLittleEndian<quint64>(from);
}

std::optional<CentralRecord> ReadCentral(const uchar* from, quint64 available) {
    if (available < kCentralBytes || Get32(from) != kCentralSignature)
        return std::nullopt;
    CentralRecord record;
    record.flags = Get16(from + 8);
    record.method = Get16(from + 10);
    record.crc = Get32(from + 16);
    record.compressedSize = Get32(from + 20);
    record.size = Get32(from + 24);
    record.nameLength = Get16(from + 28);
    record.localOffset = Get32(from + 42);
    const quint16 extraLength = Get16(from + 30);
    const quint16 commentLength = Get16(from + 32);
    record.recordLength = quint32(kCentralBytes) + record.nameLength + extraLength + commentLength;
    if (record.recordLength > available)
        return std::nullopt;
    const QByteArrayView extra(from + kCentralBytes + record.nameLength, extraLength);
    if (!TakeFrom64(record, extra))
        return std::nullopt;
    return record;
}

bool SetLocalOffset(QByteArray& record, quint64 offset) {
    uchar* const bytes = reinterpret_cast<uchar*>(record.data());
    const quint16 nameLength = Get16(bytes + 28);
    const quint16 extraLength = Get16(bytes + 30);
    const QByteArrayView extra(bytes + kCentralBytes + nameLength, extraLength);
    const std::optional<QByteArrayView> field = FindExtra(extra, kZip64Field);
    if (Get32(bytes + 42) == kIn64 && field) {
        const int before = (Get32(bytes + 24) == kIn64) + (Get32(bytes + 20) == kIn64);
        if (field->size() < 8 * (before + 1))
            return false;
        const qsizetype position = field->data() - record.constData() + 8 * before;
        qToLittleEndian(offset, bytes + position);
        return true;
    }
    if (offset >= kIn64)
        return false;
    qToLittleEndian(quint32(offset), bytes + 42);
    return true;
}

std::optional<LocalRecord> ReadLocal(const uchar* from) {
    if (Get32(from) != kLocalSignature)
        return std::nullopt;
    LocalRecord record;
    record.flags = Get16(from + 6);
    record.method = Get16(from + 8);
    record.nameLength = Get16(from + 26);
    record.extraLength = Get16(from + 28);
    return record;
}

quint32 DosTimeNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    localtime_r(&now, &local);
    const auto year = quint32(std::clamp(local.tm_year - 80, 0, 127));  // counts from 1980
    const quint32 date = year << 9 | quint32(local.tm_mon + 1) << 5 | quint32(local.tm_mday);
    const auto halfSeconds = quint32(std::min(local.tm_sec, 59) / 2);
    const quint32 time = quint32(local.tm_hour) << 11 | quint32(local.tm_min) << 5 | halfSeconds;
    return date << 16 | time;
}

void AppendLocal(QByteArray& to, const NewPart& part) {
    Append(to, kLocalSignature);
    Append(to, kVersionNeeded);
    Append(to, NameFlags(part.name));
    Append(to, part.method);
    Append(to, part.dosTime);
    Append(to, part.crc);
    Append(to, part.compressedSize);
    Append(to, part.size);
    Append(to, quint16(part.name.size()));
    Append(to, quint16(0));  // extra fields
    to.append(part.name);
}

void AppendCentral(QByteArray& to, const NewPart& part, quint64 localOffset) {
    const bool in64 = localOffset >= kIn64;
    const quint16 version = in64 ? kVersionNeeded64 : kVersionNeeded;
    Append(to, kCentralSignature);
    Append(to, version);  // made by
    Append(to, version);  // needed
    Append(to, NameFlags(part.name));
    Append(to, part.method);
    Append(to, part.dosTime);
    Append(to, part.crc);
    Append(to, part.compressedSize);
    Append(to, part.size);
    Append(to, quint16(part.name.size()));
    Append(to, quint16(in64 ? 12 : 0));  // extra fields
    Append(to, quint16(0));              // comment
    Append(to, quint16(0));              // disk
    Append(to, quint16(0));              // internal attributes
    Append(to, quint32(0));              // external attributes
    Append(to, in64 ? kIn64 : quint32(localOffset));
    to.append(part.name);
    if (in64) {
        Append(to, kZip64Field);
        Append(to, quint16(8));
        Append(to, localOffset);
    }
}

bool NeedsEnd64(const EndRecord& end) {
    return end.entryCount >= kCountIn64 || end.directoryOffset >= kIn64 ||
           end.directorySize >= kIn64;
}

quint64 EndLength(const EndRecord& end) {
    return kEndBytes + (NeedsEnd64(end) ? kEnd64Bytes + kLocator64Bytes : 0);
}

void AppendEnd(QByteArray& to, const EndRecord& end, quint16 commentLength) {
    if (NeedsEnd64(end)) {
        Append(to, kEnd64Signature);
        Append(to, quint64(kEnd64Bytes - 12));  // of what follows this field
        Append(to, kVersionNeeded64);
        Append(to, kVersionNeeded64);
        Append(to, quint32(0));  // disk
        Append(to, quint32(0));  // disk of the directory
        Append(to, end.entryCount);
        Append(to, end.entryCount);
        Append(to, end.directorySize);
        Append(to, end.directoryOffset);
        Append(to, kLocator64Signature);
        Append(to, quint32(0));  // disk
        Append(to, end.directoryOffset + end.directorySize);
        Append(to, quint32(1));  // disks
    }
    const auto count = quint16(std::min<quint64>(end.entryCount, kCountIn64));
    Append(to, kEndSignature);
    Append(to, quint16(0));  // disk
    Append(to, quint16(0));  // disk of the directory
    Append(to, count);
    Append(to, count);
    Append(to, quint32(std::min<quint64>(end.directorySize, kIn64)));
    Append(to, quint32(std::min<quint64>(end.directoryOffset, kIn64)));
    Append(to, commentLength);
}

std::optional<CommitComment> ReadComment(QByteArrayView comment) {
    CommitComment read;
    if (comment.size() != kCommentLength || !comment.startsWith(kCommentHead) ||
        comment[kPositionOffset - 1] != ' ' || comment[kCommentCrcOffset - 1] != ' ' ||
        !ReadHex(comment.data() + kStartOffset, 16, read.start) ||
        !ReadHex(comment.data() + kPositionOffset, 16, read.position) ||
        !ReadHex(comment.data() + kCommentCrcOffset, 8, read.crc))
        return std::nullopt;
    return read;
}

QByteArray CommentUpToCrc(quint64 start, quint64 position) {
    char text[kCommentLength + 1];
    std::snprintf(text, sizeof text, "%s%016llx %016llx ", kCommentHead,
                  static_cast<unsigned long long>(start),
                  static_cast<unsigned long long>(position));
    return text;
}

QByteArray CommentCrc(quint32 crc) {
    char text[9];
    std::snprintf(text, sizeof text, "%08x", crc);
    return text;
}

}  // namespace docmodel::zip
