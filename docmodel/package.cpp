#include "docmodel/package.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>

#include "docmodel/filelock.h"
#include "docmodel/packagedata.h"
#include "docmodel/packageerror.h"
#include "docmodel/packagelimits.h"

namespace docmodel {

QByteArray SystemPath(const QString& path) {
    QByteArray bytes = path.toUtf8();
    if (bytes.isEmpty())
        throw DocumentError(
            QStringLiteral("No document can be opened, because its path is empty. Give a path."));
    if (bytes.contains('\0'))
        throw FailedError(ShownName(bytes), QStringLiteral("opened"),
                          QStringLiteral("its path is no valid path. Check the path"));
    return bytes;
}

FileDescriptor OpenForReading(int folder, const char* name, const QString& path,
                              struct stat& status) {
    FileDescriptor file(openat(folder, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.IsOpen() || fstat(file.Get(), &status) != 0)
        throw SystemError(path, QStringLiteral("opened"), errno);
    if (S_ISDIR(status.st_mode))
        throw FailedError(path, QStringLiteral("opened"),
                          QStringLiteral("it is a folder. Choose a document"));
    if (!S_ISREG(status.st_mode))
        throw SystemError(path, QStringLiteral("opened"), ENXIO);
    return file;
}

void Package::Data::ReadState() {
    fileSize = quint64(status.st_size);
    tail.Read(file.Get(), fileSize, path);
    directory.Parse(tail.Directory(), tail.End(), path);
}

const DirectoryEntry& Package::Data::Entry(QByteArrayView name) const {
    const DirectoryEntry* entry = directory.Find(name);
    if (!entry)
        throw FailedError(path, QStringLiteral("read"),
                          QStringLiteral("it has no part %1").arg(ShownName(name)));
    return *entry;
}

void Package::Data::Check(const DirectoryEntry& entry) const {
    const PackageSource source = Source();
    PartDecoder decoder(source, entry, directory.Name(entry));
    const auto buffer = std::make_unique_for_overwrite<uchar[]>(kCopyBytes);
    for (quint64 left = entry.record.size; left > 0;) {
        const quint64 count = std::min<quint64>(left, kCopyBytes);
        decoder.Read(buffer.get(), count);
        left -= count;
    }
    decoder.Finish();
}

quint64 Package::Data::DeadBytes() const {
    const zip::EndRecord& end = tail.End();
    const quint64 live = directory.PartBytes() + end.directorySize + zip::EndLength(end);
    return fileSize - std::min(live, fileSize);
}

Package::Package(std::unique_ptr<Data> data) : data_(std::move(data)) {}
Package::Package(Package&&) noexcept = default;
Package& Package::operator=(Package&&) noexcept = default;
Package::~Package() = default;

Package Package::Open(const QString& path) {
    return OpenAt(AT_FDCWD, SystemPath(path).constData(), path);
}

Package Package::OpenAt(int folder, const char* name, const QString& path) {
    auto data = std::make_unique<Data>();
    data->path = path;
    data->file = OpenForReading(folder, name, path, data->status);
    data->ReadState();
    return Package(std::move(data));
}

const QString& Package::Path() const {
    return data_->path;
}

const struct stat& Package::Status() const {
    return data_->status;
}

QList<QByteArray> Package::PartNames() const {
    QList<QByteArray> names;
    names.reserve(data_->directory.Count());
    for (qsizetype i = 0; i < data_->directory.Count(); ++i) {
        const QByteArrayView name = data_->directory.Name(data_->directory.At(i));
        if (!ZipDirectory::IsFolder(name))
            names.append(name.toByteArray());
    }
    return names;
}

bool Package::HasPart(const QByteArray& name) const {
    return data_->directory.Find(name) != nullptr;
}

QByteArray Package::ReadPart(const QByteArray& name, qint64 limit) const {
    const DirectoryEntry& entry = data_->Entry(name);
    const quint64 size = entry.record.size;
    const auto allowed = quint64(std::clamp<qint64>(limit, 0, kMaxPartBytes));
    if (size > allowed)
        throw FailedError(
            data_->path, QStringLiteral("read"),
            QStringLiteral("its part %1 has %2 bytes, and no more than %3 are allowed")
                .arg(ShownName(name))
                .arg(size)
                .arg(allowed));
    const PackageSource source = data_->Source();
    PartDecoder decoder(source, entry, data_->directory.Name(entry));
    QByteArray bytes(qsizetype(size), Qt::Uninitialized);
    decoder.Read(reinterpret_cast<uchar*>(bytes.data()), size);
    decoder.Finish();
    return bytes;
}

QByteArray Package::PartImage(const QByteArray& name) const {
    const DirectoryEntry& entry = data_->Entry(name);
    const zip::CentralRecord& record = entry.record;
    const quint64 offset = DataOffset(data_->Source(), entry, data_->directory.Name(entry));
    const uchar* bytes = data_->tail.InMemory(offset, record.compressedSize);
    if (!bytes)
        return {};
    const struct {
        quint64 size;
        quint32 crc;
        quint16 flags;
        quint16 method;
    } head = {record.size, record.crc, record.flags, record.method};
    QByteArray image(reinterpret_cast<const char*>(&head), sizeof head);
    return image.append(reinterpret_cast<const char*>(bytes), qsizetype(record.compressedSize));
}

void Package::CheckParts() const {
    for (qsizetype i = 0; i < data_->directory.Count(); ++i)
        data_->Check(data_->directory.At(i));
}

bool Package::IsLockedByOther() const {
    return docmodel::IsLockedByOther(data_->file.Get());
}

qint64 Package::FileSize() const {
    return qint64(data_->fileSize);
}

qint64 Package::DeadBytes() const {
    return qint64(data_->DeadBytes());
}

}  // namespace docmodel
