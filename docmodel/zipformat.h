// The records of a ZIP file: their layout, and how they are read and written. No system calls.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>
#include <optional>

namespace docmodel::zip {

inline constexpr quint32 kLocalSignature = 0x04034b50;
inline constexpr quint32 kCentralSignature = 0x02014b50;
inline constexpr quint32 kEndSignature = 0x06054b50;
inline constexpr quint32 kEnd64Signature = 0x06064b50;
inline constexpr quint32 kLocator64Signature = 0x07064b50;

inline constexpr quint64 kLocalBytes = 30;  // the fixed portions of the records
inline constexpr quint64 kCentralBytes = 46;
inline constexpr quint64 kEndBytes = 22;
inline constexpr quint64 kEnd64Bytes = 56;
inline constexpr quint64 kLocator64Bytes = 20;

inline constexpr quint16 kStored = 0;
inline constexpr quint16 kDeflated = 8;

inline constexpr quint16 kEncryptedFlag = 1 << 0;
inline constexpr quint16 kDescriptorFlag = 1 << 3;  // CRC and sizes stand behind the data
inline constexpr quint16 kUtf8Flag = 1 << 11;

quint16 Get16(const uchar* from);
quint32 Get32(const uchar* from);
quint64 Get64(const uchar* from);

// A record of the central directory, with the values of its ZIP64 field put in.
struct CentralRecord {
    quint64 compressedSize = 0;
    quint64 size = 0;
    quint64 localOffset = 0;
    quint32 crc = 0;
    quint16 flags = 0;
    quint16 method = 0;
    quint16 nameLength = 0;    // the name lies behind the fixed portion
    quint32 recordLength = 0;  // with name, extra fields and comment
};

// Reads the record at `from`. None if it does not fit into `available` bytes or is no such record.
std::optional<CentralRecord> ReadCentral(const uchar* from, quint64 available);

// Gives a raw directory record another local offset, in the field where it keeps it. False if the
// offset is too large for that field.
bool SetLocalOffset(QByteArray& record, quint64 offset);

// A local header, as much of it as must agree with the directory.
struct LocalRecord {
    quint16 flags = 0;
    quint16 method = 0;
    quint16 nameLength = 0;
    quint16 extraLength = 0;
    quint64 HeaderLength() const { return kLocalBytes + nameLength + extraLength; }
};

// None if the 30 bytes at `from` are no local header.
std::optional<LocalRecord> ReadLocal(const uchar* from);

// What the headers of a new part say of it.
struct NewPart {
    QByteArray name;
    quint16 method = kStored;
    quint32 crc = 0;
    quint32 compressedSize = 0;
    quint32 size = 0;
    quint32 dosTime = 0;  // date in the upper half
};

// The present local time, as the headers store it.
quint32 DosTimeNow();

void AppendLocal(QByteArray& to, const NewPart& part);
void AppendCentral(QByteArray& to, const NewPart& part, quint64 localOffset);

// The end of the directory: the end record and, before it, its ZIP64 records if it needs them.
struct EndRecord {
    quint64 entryCount = 0;
    quint64 directoryOffset = 0;
    quint64 directorySize = 0;
};

// Whether `end` needs the ZIP64 records.
bool NeedsEnd64(const EndRecord& end);

// Bytes of all records that AppendEnd writes for `end`, without the comment.
quint64 EndLength(const EndRecord& end);

// Appends the records with the length of a comment, which the caller appends.
void AppendEnd(QByteArray& to, const EndRecord& end, quint16 commentLength);

// The comment that an append leaves in the end record: "docmodel 1 START POSITION CRC", where START
// is the offset at which the appended bytes begin (16 hexadecimal digits), POSITION that of the end
// record itself (16 digits), and CRC (8 digits) the checksum of all bytes from START up to its own
// first digit. Other programs carry the comment over to the end records that they write; these
// stand elsewhere, and what it says is not about them.
inline constexpr quint16 kCommentLength = 53;
inline constexpr quint64 kCommentCrcOffset = 45;
struct CommitComment {
    quint64 start = 0;
    quint64 position = 0;
    quint32 crc = 0;
};
std::optional<CommitComment> ReadComment(QByteArrayView comment);
QByteArray CommentUpToCrc(quint64 start, quint64 position);
QByteArray CommentCrc(quint32 crc);

}  // namespace docmodel::zip
