#include <fcntl.h>

#include <QLoggingCategory>
#include <algorithm>
#include <cerrno>
#include <new>
#include <vector>

#include "docmodel/compaction.h"
#include "docmodel/filelock.h"
#include "docmodel/package.h"
#include "docmodel/packagedata.h"
#include "docmodel/packageerror.h"
#include "docmodel/stateimage.h"

namespace docmodel {

namespace {

Q_LOGGING_CATEGORY(packageLog, "docmodel.package", QtInfoMsg)

struct PendingPart {
    QByteArray name;
    QByteArray bytes;
};

}  // namespace

struct PackageWriter::Data {
    Data(const QString& path, const QString& shownPath);

    bool IsReplaced(QByteArrayView name) const;
    StateImage LayOut(const QByteArray& documentPart);
    void Append(const StateImage& image);
    void WriteImage(const StateImage& image);
    void CheckUnchanged() const;
    void CompactIfWorth();
    const Package::Data& Current() const { return *current.data_; }

    QByteArray realPath;
    Package current;
    std::vector<PendingPart> put;
    QList<QByteArray> removed;
    bool committed = false;

private:
    static Package OpenCurrent(const QString& path, const QString& shownPath, QByteArray& realPath);
};

// The state is read through the descriptor that has the lock, so that it is the one that is
// appended to.
Package PackageWriter::Data::OpenCurrent(const QString& path, const QString& shownPath,
                                         QByteArray& realPath) {
    auto data = std::make_unique<Package::Data>();
    data->path = shownPath;
    LockedFile locked = OpenLocked(path, shownPath, data->status);
    data->file = std::move(locked.file);
    realPath = locked.realPath;
    data->ReadState();
    return Package(std::move(data));
}

PackageWriter::Data::Data(const QString& path, const QString& shownPath)
    : current(OpenCurrent(path, shownPath, realPath)) {}

PackageWriter::PackageWriter(const QString& path, const QString& shownPath)
    : data_(std::make_unique<Data>(path, shownPath)) {}

PackageWriter::~PackageWriter() = default;

const Package& PackageWriter::Current() const {
    return data_->current;
}

void PackageWriter::Put(const QByteArray& name, const QByteArray& data) {
    Q_ASSERT(!data_->committed);
    CheckNewName(name, data_->Current().path);
    for (PendingPart& part : data_->put) {
        if (SameName(part.name, name)) {
            part.bytes = data;
            return;
        }
    }
    data_->put.push_back({name, data});
}

void PackageWriter::Remove(const QByteArray& name) {
    Q_ASSERT(!data_->committed);
    std::erase_if(data_->put, [&](const PendingPart& part) { return SameName(part.name, name); });
    data_->removed.append(name);
}

void PackageWriter::Commit(const QByteArray& documentPart) {
    Q_ASSERT(!data_->committed);
    data_->committed = true;
    const StateImage image = data_->LayOut(documentPart);
    CheckLimits(image, data_->Current().path);
    data_->CheckUnchanged();
    data_->Append(image);
    data_->CompactIfWorth();
    Unlock(data_->Current().file.Get());
}

bool PackageWriter::Data::IsReplaced(QByteArrayView name) const {
    return SameName(name, kDocumentPart) ||
           std::any_of(put.begin(), put.end(),
                       [&](const PendingPart& part) { return SameName(part.name, name); }) ||
           std::any_of(removed.begin(), removed.end(),
                       [&](const QByteArray& gone) { return SameName(gone, name); });
}

// The largest new parts come first: what is not small is synced on its own before the rest.
StateImage PackageWriter::Data::LayOut(const QByteArray& documentPart) {
    QList<QByteArray> kept;
    const ZipDirectory& directory = Current().directory;
    for (qsizetype i = 0; i < directory.Count(); ++i)
        if (!IsReplaced(directory.Name(directory.At(i))))
            kept.append(directory.RawRecord(directory.At(i)).toByteArray());
    std::vector<EncodedPart> parts;
    for (const PendingPart& part : put)
        if (!SameName(part.name, kDocumentPart))
            parts.push_back(EncodePart(part.name, part.bytes, Current().path));
    std::stable_sort(parts.begin(), parts.end(), [](const EncodedPart& a, const EncodedPart& b) {
        return a.data.size() > b.data.size();
    });
    parts.push_back(EncodePart(kDocumentPart, documentPart, Current().path));
    return LayOutState(Current().tail.StateEnd(), kept, parts, Checksum::Yes);
}

// Programs that know nothing of the lock may have written as well, into the file or another one in
// its place.
void PackageWriter::Data::CheckUnchanged() const {
    const struct stat& opened = Current().status;
    struct stat now;
    if (fstat(Current().file.Get(), &now) != 0)
        throw SystemError(Current().path, QStringLiteral("written"), errno);
    if (!IsSameFile(realPath, opened) || now.st_size != off_t(Current().fileSize) ||
        now.st_mtim.tv_sec != opened.st_mtim.tv_sec ||
        now.st_mtim.tv_nsec != opened.st_mtim.tv_nsec)
        throw FailedError(Current().path, QStringLiteral("written"),
                          QStringLiteral("another program has changed it meanwhile. Try again"));
}

// On failure the file gets its old length back. If not even that works, what was written is still
// no state that anyone would read, unless it had been written to its last byte.
void PackageWriter::Data::Append(const StateImage& image) {
    try {
        WriteImage(image);
    } catch (const DocumentError&) {
        if (gFileOps->Truncate(Current().file.Get(), off_t(image.offset)) != 0)
            qCWarning(packageLog) << "The incomplete save can't be cut off:" << Current().path;
        gFileOps->Sync(Current().file.Get());
        throw;
    }
}

void PackageWriter::Data::WriteImage(const StateImage& image) {
    const int file = Current().file.Get();
    const auto check = [this](bool done) {
        if (!done)
            throw SystemError(Current().path, QStringLiteral("saved"), errno);
    };
    // A torn save is cut off for good before anything comes in its place: no mixture of the two.
    if (Current().fileSize > image.offset) {
        check(gFileOps->Truncate(file, off_t(image.offset)) == 0);
        check(gFileOps->Sync(file) == 0);
    }
    quint64 offset = image.offset;
    for (const QByteArray& bytes : image.early) {
        check(WriteAll(file, bytes.constData(), size_t(bytes.size()), off_t(offset)));
        offset += quint64(bytes.size());
    }
    if (!image.early.empty())
        check(gFileOps->SyncData(file) == 0);
    check(
        WriteAll(file, image.last.constData(), size_t(image.last.size()), off_t(image.lastOffset)));
    check(gFileOps->Sync(file) == 0);
}

// The save is done already, so nothing is lost if the file can't be compacted: it stays as it is,
// and a later save tries again.
void PackageWriter::Data::CompactIfWorth() {
    Package::Data saved;
    saved.path = Current().path;
    saved.file = FileDescriptor(fcntl(Current().file.Get(), F_DUPFD_CLOEXEC, 0));
    try {
        if (!saved.file.IsOpen() || fstat(saved.file.Get(), &saved.status) != 0)
            throw SystemError(saved.path, QStringLiteral("compacted"), errno);
        saved.ReadState();
        if (IsWorthCompacting(saved.DeadBytes(), saved.fileSize))
            CompactPackage(saved, realPath);
    } catch (const DocumentError& error) {
        qCDebug(packageLog).noquote() << error.Description();
    } catch (const std::bad_alloc&) {
        qCDebug(packageLog) << "No memory to compact" << saved.path;
    }
}

void PackageWriter::Compact(const QString& path) {
    const PackageWriter writer(path);
    CompactPackage(writer.data_->Current(), writer.data_->realPath);
}

}  // namespace docmodel
