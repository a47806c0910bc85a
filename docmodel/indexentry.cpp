#include "docmodel/indexentry.h"

#include <zlib.h>

#include <cstring>

namespace docmodel {

namespace {

// The bytes never leave the machine, so they are as it keeps them in memory. What another kind of
// machine wrote into a shared home has another mark.
constexpr quint32 kMark = 0x31584952;  // "RIX1": the version of the layout and of StemHash

struct Head {
    quint32 mark;
    quint32 checksum;  // of the records and the folder's path
};

struct RecordHead {
    quint32 length;  // of the record: this head, the hashes, the name
    quint32 nameLength;
    FileState state;
};

quint32 ChecksumOf(QByteArrayView records, const QByteArray& folder) {
    const auto add = [](uLong sum, QByteArrayView bytes) {
        return crc32_z(sum, reinterpret_cast<const uchar*>(bytes.data()), size_t(bytes.size()));
    };
    return quint32(add(add(0, folder), records));
}

void AppendBytes(QByteArray& to, const void* bytes, size_t count) {
    to.append(static_cast<const char*>(bytes), qsizetype(count));
}

}  // namespace

bool IndexEntry::Holds(quint32 hash) const {
    for (qsizetype at = 0; at < stemHashes.size(); at += qsizetype(sizeof hash)) {
        quint32 held;
        std::memcpy(&held, stemHashes.data() + at, sizeof held);
        if (held == hash)
            return true;
    }
    return false;
}

IndexReader::IndexReader(const QByteArray& packed, const QByteArray& folder) {
    Head head;
    if (size_t(packed.size()) < sizeof head)
        return;
    std::memcpy(&head, packed.constData(), sizeof head);
    const QByteArrayView records = QByteArrayView(packed).sliced(sizeof head);
    if (head.mark != kMark || head.checksum != ChecksumOf(records, folder))
        return;
    at_ = records.data();
    end_ = at_ + records.size();
}

bool IndexReader::Next(IndexEntry& entry) {
    RecordHead head;
    const auto left = size_t(end_ - at_);
    if (left < sizeof head)
        return false;
    std::memcpy(&head, at_, sizeof head);
    if (head.length < sizeof head || head.length > left ||
        head.nameLength > head.length - sizeof head ||
        (head.length - sizeof head - head.nameLength) % sizeof(quint32) != 0)
        return false;  // can't be, with the right checksum
    const auto hashes = qsizetype(head.length - sizeof head - head.nameLength);
    entry.record = QByteArrayView(at_, qsizetype(head.length));
    entry.state = head.state;
    entry.stemHashes = entry.record.sliced(sizeof head, hashes);
    entry.name = entry.record.sliced(qsizetype(sizeof head) + hashes);
    at_ += head.length;
    return true;
}

IndexPacker::IndexPacker() : packed_(sizeof(Head), '\0') {}

void IndexPacker::Add(QByteArrayView name, const FileState& state,
                      const std::vector<quint32>& stemHashes) {
    const size_t hashBytes = stemHashes.size() * sizeof(quint32);
    const RecordHead head = {quint32(sizeof head + hashBytes + size_t(name.size())),
                             quint32(name.size()), state};
    AppendBytes(packed_, &head, sizeof head);
    AppendBytes(packed_, stemHashes.data(), hashBytes);
    packed_.append(name);
}

QByteArray IndexPacker::Packed(const QByteArray& folder) {
    const QByteArrayView records = QByteArrayView(packed_).sliced(sizeof(Head));
    const Head head = {kMark, ChecksumOf(records, folder)};
    std::memcpy(packed_.data(), &head, sizeof head);
    return packed_;
}

}  // namespace docmodel
