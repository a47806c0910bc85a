#include "docmodel/zipdirectory.h"

#include <QUtf8StringView>
#include <algorithm>
#include <numeric>

#include "docmodel/packageerror.h"
#include "docmodel/packagelimits.h"

namespace docmodel {

namespace {

constexpr qsizetype kMaxNameBytes = 4096;

uchar Lower(char c) {
    return uchar(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
}

// FNV-1a of the name in lower case.
quint32 HashOf(QByteArrayView name) {
    quint32 hash = 2166136261U;
    for (const char c : name)
        hash = (hash ^ Lower(c)) * 16777619U;
    return hash;
}

int CompareNames(QByteArrayView a, QByteArrayView b) {
    const qsizetype common = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < common; ++i)
        if (const int difference = Lower(a[i]) - Lower(b[i]))
            return difference;
    return a.size() < b.size() ? -1 : a.size() > b.size();
}

bool IsUtf8(QByteArrayView name) {
    if (std::all_of(name.begin(), name.end(), [](char c) { return uchar(c) < 0x80; }))
        return true;
    return QUtf8StringView(name.data(), name.size()).isValidUtf8();
}

bool HasBadSegment(QByteArrayView name) {
    qsizetype begin = 0;
    while (begin <= name.size()) {
        qsizetype end = name.indexOf('/', begin);
        if (end < 0)
            end = name.size();
        const QByteArrayView segment = name.sliced(begin, end - begin);
        if (segment.isEmpty() || segment == "." || segment == "..")
            return true;
        begin = end + 1;
    }
    return false;
}

}  // namespace

bool SameName(QByteArrayView a, QByteArrayView b) {
    return a.size() == b.size() && CompareNames(a, b) == 0;
}

QString NameFault(QByteArrayView name) {
    if (name.isEmpty())
        return QStringLiteral("it is empty");
    if (name.size() > kMaxNameBytes)
        return QStringLiteral("it is longer than %1 bytes").arg(kMaxNameBytes);
    if (name.contains('\0') || name.contains('\\'))
        return QStringLiteral("it contains a character that no part name may have");
    if (!IsUtf8(name))
        return QStringLiteral("it is not UTF-8");
    if (HasBadSegment(name))
        return QStringLiteral("it leads out of the package or has an empty level");
    return QString();
}

void ZipDirectory::Parse(const uchar* bytes, const zip::EndRecord& end, const QString& path) {
    if (end.entryCount > kMaxParts)
        throw FailedError(path, QStringLiteral("read"),
                          QStringLiteral("it has %1 parts, and no more than %2 are allowed")
                              .arg(end.entryCount)
                              .arg(kMaxParts));
    bytes_ = bytes;
    entries_.clear();
    entries_.reserve(qsizetype(end.entryCount));
    quint64 offset = 0;
    for (quint64 i = 0; i < end.entryCount; ++i) {
        const auto record = zip::ReadCentral(bytes + offset, end.directorySize - offset);
        if (!record)
            throw DamagedError(
                path, QStringLiteral("entry %1 of its directory is no valid record").arg(i + 1));
        Add(quint32(offset), *record, path);
        offset += record->recordLength;
    }
    if (offset != end.directorySize)
        throw DamagedError(path,
                           QStringLiteral("its directory is longer than the parts that it counts"));
    CheckDuplicates(path);
    CheckExtents(end.directoryOffset, path);
}

void ZipDirectory::Add(quint32 offset, const zip::CentralRecord& record, const QString& path) {
    DirectoryEntry entry;
    entry.record = record;
    entry.recordOffset = offset;
    const QByteArrayView name = Name(entry);
    const QString fault = NameFault(IsFolder(name) ? name.chopped(1) : name);
    if (!fault.isEmpty())
        throw DamagedError(path, QStringLiteral("its directory has the name \"%1\", and %2")
                                     .arg(ShownName(name), fault));
    entry.hash = HashOf(name);
    entries_.append(entry);
}

void ZipDirectory::CheckDuplicates(const QString& path) {
    byHash_.resize(entries_.size());
    std::iota(byHash_.begin(), byHash_.end(), 0U);
    std::sort(byHash_.begin(), byHash_.end(), [this](quint32 a, quint32 b) {
        const DirectoryEntry& first = entries_[a];
        const DirectoryEntry& second = entries_[b];
        return first.hash != second.hash ? first.hash < second.hash
                                         : CompareNames(Name(first), Name(second)) < 0;
    });
    for (qsizetype i = 1; i < byHash_.size(); ++i) {
        const DirectoryEntry& entry = entries_[byHash_[i]];
        const DirectoryEntry& former = entries_[byHash_[i - 1]];
        if (entry.hash == former.hash && SameName(Name(entry), Name(former)))
            throw DamagedError(path, QStringLiteral("its directory names the part %1 twice")
                                         .arg(ShownName(Name(entry))));
    }
}

void ZipDirectory::CheckExtents(quint64 directoryOffset, const QString& path) {
    const auto offsetOf = [this](quint32 i) { return entries_[i].record.localOffset; };
    QVarLengthArray<quint32, kUsualParts> byOffset(entries_.size());
    std::iota(byOffset.begin(), byOffset.end(), 0U);
    std::sort(byOffset.begin(), byOffset.end(),
              [&](quint32 a, quint32 b) { return offsetOf(a) < offsetOf(b); });
    quint64 limit = directoryOffset;
    for (qsizetype i = byOffset.size() - 1; i >= 0; --i) {
        DirectoryEntry& entry = entries_[byOffset[i]];
        const zip::CentralRecord& record = entry.record;
        const quint64 header = zip::kLocalBytes + record.nameLength;
        // In this order nothing overflows, whatever the record says.
        if (record.localOffset > limit || limit - record.localOffset < header ||
            limit - record.localOffset - header < record.compressedSize)
            throw DamagedError(
                path, QStringLiteral("its part %1 lies outside the file or overlaps another")
                          .arg(ShownName(Name(entry))));
        entry.limit = limit;
        limit = record.localOffset;
    }
}

const DirectoryEntry* ZipDirectory::Find(QByteArrayView name) const {
    const quint32 hash = HashOf(name);
    auto candidate =
        std::lower_bound(byHash_.begin(), byHash_.end(), hash,
                         [this](quint32 i, quint32 value) { return entries_[i].hash < value; });
    for (; candidate != byHash_.end() && entries_[*candidate].hash == hash; ++candidate)
        if (SameName(Name(entries_[*candidate]), name))
            return &entries_[*candidate];
    return nullptr;
}

QByteArrayView ZipDirectory::Name(const DirectoryEntry& entry) const {
    return QByteArrayView(bytes_ + entry.recordOffset + zip::kCentralBytes,
                          entry.record.nameLength);
}

QByteArrayView ZipDirectory::RawRecord(const DirectoryEntry& entry) const {
    return QByteArrayView(bytes_ + entry.recordOffset, entry.record.recordLength);
}

quint64 ZipDirectory::PartBytes() const {
    return std::accumulate(
        entries_.begin(), entries_.end(), quint64(0), [](quint64 sum, const DirectoryEntry& entry) {
            return sum + zip::kLocalBytes + entry.record.nameLength + entry.record.compressedSize;
        });
}

}  // namespace docmodel
