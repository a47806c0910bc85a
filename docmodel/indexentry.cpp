#include "docmodel/indexentry.h"

#include <zlib.h>

#include <cstring>

namespace docmodel {

namespace {

struct Head {
    IndexMark mark;
    quint32 checksum;  // of the records and the folder's path
};

struct RecordHead {
    quint32 length;  // of the record: this head, the facts, the name
    quint32 nameLength;
    FileState state;
};

quint32 ChecksumOf(QByteArrayView records, const QByteArray& folder) {
    const auto add = [](uLong sum, QByteArrayView bytes) {
        return crc32_z(sum, reinterpret_cast<const uchar*>(bytes.data()), size_t(bytes.size()));
    };
    return quint32(add(add(0, folder), records));
}

}  // namespace

IndexReader::IndexReader(const QByteArray& packed, const QByteArray& folder, IndexMark mark) {
    Head head;
    if (size_t(packed.size()) < sizeof head)
        return;
    std::memcpy(&head, packed.constData(), sizeof head);
    const QByteArrayView records = QByteArrayView(packed).sliced(sizeof head);
    if (head.mark != mark || head.checksum != ChecksumOf(records, folder))
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
        head.nameLength > head.length - sizeof head)
        return false;  // can't be, with the right checksum
    const auto facts = qsizetype(head.length - sizeof head - head.nameLength);
    entry.record = QByteArrayView(at_, qsizetype(head.length));
    entry.state = head.state;
    entry.facts = entry.record.sliced(sizeof head, facts);
    entry.name = entry.record.sliced(qsizetype(sizeof head) + facts);
    at_ += head.length;
    return true;
}

IndexPacker::IndexPacker(IndexMark mark) : mark_(mark), packed_(sizeof(Head), '\0') {}

void IndexPacker::Add(QByteArrayView name, const FileState& state, QByteArrayView facts) {
    const RecordHead head = {quint32(sizeof head + size_t(facts.size()) + size_t(name.size())),
                             quint32(name.size()), state};
    packed_.append(reinterpret_cast<const char*>(&head), sizeof head);
    packed_.append(facts);
    packed_.append(name);
}

QByteArray IndexPacker::Packed(const QByteArray& folder) {
    const QByteArrayView records = QByteArrayView(packed_).sliced(sizeof(Head));
    const Head head = {mark_, ChecksumOf(records, folder)};
    std::memcpy(packed_.data(), &head, sizeof head);
    return packed_;
}

}  // namespace docmodel
