#include "tests/docmodel/packagetools.h"

#include <sys/wait.h>
#include <unistd.h>
#include <zlib.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QtEndian>
#include <cerrno>

namespace docmodel {

NamedParts SmallParts() {
    return {{"[Content_Types].xml", "<Types/>"},
            {"_rels/.rels", "<Relationships/>"},
            {"docProps/core.xml", QByteArray(300, 'c')},
            {"model/part.bin", Noise(400)},
            {kDocumentPart, "<document state=\"old\"/>"}};
}

QByteArray FileBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("can't read %s", qPrintable(path));
    return file.readAll();
}

void WriteBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("can't write %s", qPrintable(path));
}

QMap<QByteArray, QByteArray> AllParts(const QString& path) {
    const Package package = Package::Open(path);
    QMap<QByteArray, QByteArray> parts;
    for (const QByteArray& name : package.PartNames())
        parts.insert(name, package.ReadPart(name, 1 << 30));
    return parts;
}

QByteArray Noise(qsizetype count) {
    QRandomGenerator generator(4711);
    QByteArray bytes(count, Qt::Uninitialized);
    for (char& byte : bytes)
        byte = char(generator.bounded(256));
    return bytes;
}

void SaveAs(const QString& path, const QByteArray& documentPart) {
    PackageWriter writer(path);
    writer.Put("docProps/core.xml", QByteArray(300, 'd'));
    writer.Commit(documentPart);
}

QString ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const DocumentError& error) {
        return error.Description();
    }
    return QString();
}

QString ErrorOfReading(const QString& path) {
    return ErrorOf([&] { AllParts(path); });
}

QStringList FolderOfFile(const QString& path) {
    return QFileInfo(path).dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

QByteArray Run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(-1);
    const QByteArray output = process.readAll().trimmed();
    const bool good = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 &&
                      process.error() == QProcess::UnknownError;
    return good ? output : "failed: " + output;
}

QByteArray RunPython(const QString& script, const QStringList& arguments) {
    return Run(QStringLiteral("python3"), QStringList{QStringLiteral("-c"), script} + arguments);
}

namespace {

template <typename Number>
void Append(QByteArray& to, Number value) {
    const Number little = qToLittleEndian(value);
    to.append(reinterpret_cast<const char*>(&little), sizeof little);
}

// What local header and directory record have in common, from the flags to the sizes.
void AppendCommon(QByteArray& to, const RawEntry& entry, quint16 method) {
    Append(to, entry.flags);
    Append(to, method);
    Append(to, quint32(0x5A210000));  // a day in 2025
    Append(to, entry.crc.value_or(Crc(entry.data)));
    Append(to, entry.compressedSize.value_or(quint32(entry.data.size())));
    Append(to, entry.size.value_or(quint32(entry.data.size())));
}

}  // namespace

QByteArray RawPackage(const QList<RawEntry>& entries, const QByteArray& comment) {
    QByteArray file;
    QByteArray directory;
    for (const RawEntry& entry : entries) {
        const auto offset = quint32(file.size());
        const QByteArray localName = entry.localName.value_or(entry.name);
        Append(file, quint32(0x04034b50));
        Append(file, quint16(20));
        AppendCommon(file, entry, entry.localMethod.value_or(entry.method));
        Append(file, quint16(localName.size()));
        Append(file, quint16(0));
        file += localName + entry.data;

        Append(directory, quint32(0x02014b50));
        Append(directory, quint32(20 << 16 | 20));
        AppendCommon(directory, entry, entry.method);
        Append(directory, quint16(entry.name.size()));
        Append(directory, quint16(entry.extra.size()));
        directory += QByteArray(10, '\0');  // comment length, disk, attributes
        Append(directory, entry.localOffset.value_or(offset));
        directory += entry.name + entry.extra;
    }
    const auto directoryOffset = quint32(file.size());
    file += directory;
    Append(file, quint32(0x06054b50));
    Append(file, quint32(0));
    Append(file, quint16(entries.size()));
    Append(file, quint16(entries.size()));
    Append(file, quint32(directory.size()));
    Append(file, directoryOffset);
    Append(file, quint16(comment.size()));
    return file + comment;
}

QByteArray Deflated(const QByteArray& bytes) {
    z_stream stream = {};
    deflateInit2(&stream, 9, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    QByteArray out(qsizetype(deflateBound(&stream, uLong(bytes.size()))), Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.constData()));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = uInt(out.size());
    deflate(&stream, Z_FINISH);
    out.truncate(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return out;
}

quint32 Crc(const QByteArray& bytes) {
    return quint32(
        crc32_z(0, reinterpret_cast<const Bytef*>(bytes.constData()), size_t(bytes.size())));
}

FaultyDisk::FaultyDisk(int at, Fault fault, int error)
    : at_(at), fault_(fault), error_(error), former_(gFileOps) {
    gFileOps = this;
}

FaultyDisk::~FaultyDisk() {
    gFileOps = former_;
}

bool FaultyDisk::FailsNow() {
    const bool now = calls_++ == at_ && fault_ != Fault::None;
    if (now && fault_ == Fault::Kill)
        _exit(kKilled);
    if (now)
        errno = error_;
    return now;
}

ssize_t FaultyDisk::Write(int file, const void* bytes, size_t count, off_t offset) {
    if (calls_ == at_ && fault_ != Fault::None && fault_ != Fault::Fail)
        former_->Write(file, bytes, count / 2, offset);
    return FailsNow() ? -1 : former_->Write(file, bytes, count, offset);
}

int FaultyDisk::Sync(int file) {
    ++syncs_;
    return FailsNow() ? -1 : former_->Sync(file);
}

int FaultyDisk::SyncData(int file) {
    ++syncs_;
    return FailsNow() ? -1 : former_->SyncData(file);
}

int FaultyDisk::Truncate(int file, off_t length) {
    return FailsNow() ? -1 : former_->Truncate(file, length);
}

int FaultyDisk::CreateNew(const char* path, unsigned mode) {
    return FailsNow() ? -1 : former_->CreateNew(path, mode);
}

int FaultyDisk::Rename(const char* from, const char* to) {
    return FailsNow() ? -1 : former_->Rename(from, to);
}

int FaultyDisk::RenameNoReplace(const char* from, const char* to) {
    return FailsNow() ? -1 : former_->RenameNoReplace(from, to);
}

int FaultyDisk::Unlink(const char* path) {
    return FailsNow() ? -1 : former_->Unlink(path);
}

int InChild(const std::function<void()>& action) {
    const pid_t child = fork();
    if (child < 0)
        qFatal("can't fork");
    if (child == 0) {
        try {
            action();
        } catch (const DocumentError&) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace docmodel
