#include "docmodel/compaction.h"

#include <fcntl.h>

#include <QtEndian>
#include <algorithm>
#include <cerrno>
#include <memory>
#include <vector>

#include "docmodel/fileattributes.h"
#include "docmodel/filelock.h"
#include "docmodel/packageerror.h"
#include "docmodel/packagelimits.h"
#include "docmodel/siblingfile.h"

namespace docmodel {

namespace {

QString Done() {
    return QStringLiteral("compacted");
}

// One run of copying: the live parts of a package, as they stand, into an empty file.
class Copier {
public:
    Copier(const Package::Data& from, int to)
        : from_(from), to_(to), buffer_(std::make_unique_for_overwrite<char[]>(kCopyBytes)) {}

    void Run() {
        for (const DirectoryEntry* entry : InOrder())
            CopyPart(*entry);
        zip::EndRecord end;
        end.entryCount = quint64(from_.directory.Count());
        end.directoryOffset = offset_;
        end.directorySize = quint64(directory_.size());
        zip::AppendEnd(directory_, end, 0);  // no checksum: nothing here is appended to anything
        Write(directory_.constData(), quint64(directory_.size()));
    }

private:
    // The document part comes last, wherever the directory has it.
    std::vector<const DirectoryEntry*> InOrder() const {
        std::vector<const DirectoryEntry*> entries;
        for (qsizetype i = 0; i < from_.directory.Count(); ++i)
            entries.push_back(&from_.directory.At(i));
        std::stable_partition(entries.begin(), entries.end(), [this](const DirectoryEntry* entry) {
            return !SameName(from_.directory.Name(*entry), kDocumentPart);
        });
        return entries;
    }

    void CopyPart(const DirectoryEntry& entry) {
        const QByteArrayView name = from_.directory.Name(entry);
        const quint64 dataOffset = DataOffset(from_.Source(), entry, name);
        QByteArray record = from_.directory.RawRecord(entry).toByteArray();
        QByteArray header(qsizetype(dataOffset - entry.record.localOffset), Qt::Uninitialized);
        ReadExactly(header.data(), quint64(header.size()), entry.record.localOffset);
        if (entry.record.flags & zip::kDescriptorFlag)
            PutSizesIntoHeader(header, record, entry.record);
        if (!zip::SetLocalOffset(record, offset_))
            throw FailedError(from_.path, Done(),
                              QStringLiteral("its part %1 would lie too far behind for its "
                                             "directory")
                                  .arg(ShownName(name)));
        directory_ += record;
        Write(header.constData(), quint64(header.size()));
        CopyBytes(dataOffset, entry.record.compressedSize);
    }

    // Such a part has CRC and sizes in a descriptor behind its data, whose length nobody knows for
    // sure. It is left out, and the local header told what it said.
    void PutSizesIntoHeader(QByteArray& header, QByteArray& record,
                            const zip::CentralRecord& values) {
        if (values.size > 0xFFFFFFFE || values.compressedSize > 0xFFFFFFFE)
            throw FailedError(
                from_.path, Done(),
                QStringLiteral("it has a part of more than 4 GiB whose size its header "
                               "does not tell"));
        const auto flags = quint16(values.flags & ~zip::kDescriptorFlag);
        qToLittleEndian(flags, header.data() + 6);
        qToLittleEndian(values.crc, header.data() + 14);
        qToLittleEndian(quint32(values.compressedSize), header.data() + 18);
        qToLittleEndian(quint32(values.size), header.data() + 22);
        qToLittleEndian(flags, record.data() + 8);
    }

    void CopyBytes(quint64 from, quint64 count) {
        while (count > 0) {
            const quint64 step = std::min<quint64>(count, kCopyBytes);
            ReadExactly(buffer_.get(), step, from);
            Write(buffer_.get(), step);
            from += step;
            count -= step;
        }
    }

    void ReadExactly(char* to, quint64 count, quint64 offset) const {
        const ssize_t got = ReadUpTo(from_.file.Get(), to, count, off_t(offset));
        if (got < 0)
            throw SystemError(from_.path, Done(), errno);
        if (quint64(got) < count)
            throw DamagedError(from_.path, QStringLiteral("it is cut off"));
    }

    void Write(const char* bytes, quint64 count) {
        if (!WriteAll(to_, bytes, count, off_t(offset_)))
            throw SystemError(from_.path, Done(), errno);
        offset_ += count;
    }

    const Package::Data& from_;
    const int to_;
    quint64 offset_ = 0;  // in the new file
    QByteArray directory_;
    std::unique_ptr<char[]> buffer_;
};

// Reads what was written as any reader would, and every part of it.
void CheckCopy(const Package::Data& from, const SiblingFile& copy) {
    Package::Data read;
    read.path = from.path;  // what is wrong with the copy is wrong with the document
    read.file = FileDescriptor(fcntl(copy.Get(), F_DUPFD_CLOEXEC, 0));
    if (!read.file.IsOpen() || fstat(read.file.Get(), &read.status) != 0)
        throw SystemError(from.path, Done(), errno);
    read.ReadState();
    bool same = read.directory.Count() == from.directory.Count();
    for (qsizetype i = 0; i < read.directory.Count(); ++i) {
        const DirectoryEntry& entry = read.directory.At(i);
        read.Check(entry);
        const DirectoryEntry* original = from.directory.Find(read.directory.Name(entry));
        same = same && original && original->record.crc == entry.record.crc &&
               original->record.size == entry.record.size;
    }
    if (!same)
        throw FailedError(from.path, Done(), QStringLiteral("the copy, read back, is another"));
}

}  // namespace

bool IsWorthCompacting(quint64 deadBytes, quint64 fileSize) {
    return deadBytes > kMinDeadBytes && deadBytes > fileSize / kDeadShare;
}

void CompactPackage(const Package::Data& from, const QByteArray& realPath) {
    if (from.status.st_nlink > 1)
        throw FailedError(
            from.path, Done(),
            QStringLiteral("the file has several names (hard links), which would then "
                           "be different files"));
    constexpr unsigned kOwnerOnly = 0600;  // until the attributes are set
    SiblingFile copy(realPath, kOwnerOnly);
    if (!copy.IsOpen())
        throw SystemError(from.path, Done(), errno);
    Copier(from, copy.Get()).Run();
    if (!CopyAttributes(from.file.Get(), from.status, copy.Get()) ||
        gFileOps->Sync(copy.Get()) != 0)
        throw SystemError(from.path, Done(), errno);
    CheckCopy(from, copy);
    if (!IsSameFile(realPath, from.status))
        throw FailedError(from.path, Done(), QStringLiteral("it was replaced meanwhile"));
    bool placed = false;
    // If only the folder's sync failed, either file may be the document after a power failure, and
    // both hold this state.
    if (!copy.PlaceOver(placed) && !placed)
        throw SystemError(from.path, Done(), errno);
}

}  // namespace docmodel
