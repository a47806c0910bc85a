#include "docmodel/stateimage.h"

#include <zlib.h>

#include <numeric>

#include "docmodel/packageerror.h"
#include "docmodel/packagelimits.h"

namespace docmodel {

namespace {

quint64 LocalLength(const EncodedPart& part) {
    return zip::kLocalBytes + quint64(part.head.name.size()) + quint64(part.data.size());
}

quint64 LengthOf(const QList<QByteArray>& kept) {
    return std::accumulate(
        kept.begin(), kept.end(), quint64(0),
        [](quint64 sum, const QByteArray& record) { return sum + quint64(record.size()); });
}

// The directory and the fixed bytes of the end, for parts that begin at `offsets`.
struct Ending {
    QByteArray directory;
    zip::EndRecord end;
};

Ending MakeEnding(const QList<QByteArray>& kept, const std::vector<EncodedPart>& parts,
                  const std::vector<quint64>& offsets) {
    Ending ending;
    ending.directory.reserve(qsizetype(LengthOf(kept) + parts.size() * 128));
    for (const QByteArray& record : kept)
        ending.directory += record;
    for (size_t i = 0; i < parts.size(); ++i)
        zip::AppendCentral(ending.directory, parts[i].head, offsets[i]);
    ending.end.entryCount = quint64(kept.size()) + parts.size();
    ending.end.directorySize = quint64(ending.directory.size());
    ending.end.directoryOffset = offsets.back() + LocalLength(parts.back());
    return ending;
}

// Bytes that must be skipped so that the end record and its comment lie in one sector.
quint64 MissingToSector(const zip::EndRecord& end) {
    constexpr quint64 kLength = zip::kEndBytes + zip::kCommentLength;
    const quint64 position = end.directoryOffset + end.directorySize + zip::EndLength(end);
    const quint64 inSector = (position - zip::kEndBytes) % kSectorBytes;
    return inSector + kLength > kSectorBytes ? kSectorBytes - inSector : 0;
}

// How many of the first parts are too much for the last step.
size_t EarlyParts(const std::vector<EncodedPart>& parts) {
    quint64 length = 0;
    size_t first = parts.size();
    while (first > 0 && (length += LocalLength(parts[first - 1])) <= kMaxCheckedPartBytes)
        --first;
    return first;
}

QByteArray LocalHeader(const EncodedPart& part) {
    QByteArray header;
    zip::AppendLocal(header, part.head);
    return header;
}

void AppendChecked(QByteArray& last, quint64 lastOffset, const zip::EndRecord& end) {
    zip::AppendEnd(last, end, zip::kCommentLength);
    const quint64 position = lastOffset + quint64(last.size()) - zip::kEndBytes;
    last += zip::CommentUpToCrc(lastOffset, position);
    const uLong crc =
        crc32_z(0, reinterpret_cast<const uchar*>(last.constData()), size_t(last.size()));
    last += zip::CommentCrc(quint32(crc));
}

}  // namespace

StateImage LayOutState(quint64 offset, const QList<QByteArray>& kept,
                       const std::vector<EncodedPart>& parts, Checksum checksum) {
    std::vector<quint64> offsets;
    quint64 next = offset;
    for (const EncodedPart& part : parts) {
        offsets.push_back(next);
        next += LocalLength(part);
    }
    Ending ending = MakeEnding(kept, parts, offsets);
    quint64 gap = 0;  // before the last part, which stays right before the directory
    while (checksum == Checksum::Yes && MissingToSector(ending.end) > 0) {
        gap += MissingToSector(ending.end);
        offsets.back() += MissingToSector(ending.end);
        ending = MakeEnding(kept, parts, offsets);
    }

    StateImage image;
    image.offset = offset;
    image.lastOffset = offset;
    image.entryCount = ending.end.entryCount;
    image.directoryBytes = ending.end.directorySize;
    const size_t early = EarlyParts(parts);
    for (size_t i = 0; i < parts.size(); ++i) {
        QByteArray header = LocalHeader(parts[i]);
        if (i + 1 == parts.size())
            header.prepend(QByteArray(qsizetype(gap), '\0'));
        if (i < early) {
            image.lastOffset += quint64(header.size() + parts[i].data.size());
            image.early.push_back(header);
            image.early.push_back(parts[i].data);
        } else {
            image.last += header + parts[i].data;
        }
    }
    image.last += ending.directory;
    if (checksum == Checksum::Yes)
        AppendChecked(image.last, image.lastOffset, ending.end);
    else
        zip::AppendEnd(image.last, ending.end, 0);
    image.end = image.lastOffset + quint64(image.last.size());
    return image;
}

void CheckLimits(const StateImage& image, const QString& path) {
    if (image.entryCount > kMaxParts)
        throw FailedError(path, QStringLiteral("written"),
                          QStringLiteral("it would have %1 parts, and no more than %2 are allowed")
                              .arg(image.entryCount)
                              .arg(kMaxParts));
    if (image.directoryBytes > kMaxDirectoryBytes)
        throw FailedError(path, QStringLiteral("written"),
                          QStringLiteral("the names of its parts are too long. Shorten them"));
}

}  // namespace docmodel
