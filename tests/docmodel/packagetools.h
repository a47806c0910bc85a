// What the tests of the package layer share: documents, bytes, hand-made packages, failing disks.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <functional>

#include "docmodel/fileops.h"
#include "docmodel/package.h"

namespace docmodel {

using NamedParts = QList<std::pair<QByteArray, QByteArray>>;

// The parts of a small document, its document part last.
NamedParts SmallParts();
QByteArray FileBytes(const QString& path);
void WriteBytes(const QString& path, const QByteArray& bytes);

// Names and uncompressed bytes of all parts, in name order.
QMap<QByteArray, QByteArray> AllParts(const QString& path);

// Bytes that no compressor makes shorter, the same at each run.
QByteArray Noise(qsizetype count);

// Replaces the document part, and the core properties as well.
void SaveAs(const QString& path, const QByteArray& documentPart);

// The description of the DocumentError that `action` raises; empty if it raises none.
QString ErrorOf(const std::function<void()>& action);

// Opens a document and reads every part. The error, or empty.
QString ErrorOfReading(const QString& path);

// Names in the file's folder, to see that nothing was left behind.
QStringList FolderOfFile(const QString& path);

// Runs a program to its end, with the texts as arguments; its output, or "failed: ..." with it.
QByteArray Run(const QString& program, const QStringList& arguments);
QByteArray RunPython(const QString& script, const QStringList& arguments);

// A package put together by hand, with lies where a test wants them.
struct RawEntry {
    QByteArray name = {};
    QByteArray data = {};  // as it stands in the file
    quint16 method = 0;
    quint16 flags = 0;
    std::optional<quint32> crc = {};   // these say something else than the data does
    std::optional<quint32> size = {};  // uncompressed; needed for compressed data
    std::optional<quint32> compressedSize = {};
    std::optional<quint32> localOffset = {};
    std::optional<QByteArray> localName = {};
    std::optional<quint16> localMethod = {};
    QByteArray extra = {};  // of the directory record
};
QByteArray RawPackage(const QList<RawEntry>& entries, const QByteArray& comment = {});
QByteArray Deflated(const QByteArray& bytes);
quint32 Crc(const QByteArray& bytes);

// Stands in place of the system's file calls while it lives: counts those that change something,
// and lets one of them fail.
class FaultyDisk : public FileOps {
public:
    enum class Fault { None, Fail, ShortWrite, Kill };

    // The call number `at`, from 0, fails with `error`: at once, or, if it is a write, after half
    // of its bytes. Kill ends the process there, with half of a write done.
    explicit FaultyDisk(int at = -1, Fault fault = Fault::None, int error = 5);
    ~FaultyDisk() override;
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    int Calls() const { return calls_; }
    int Syncs() const { return syncs_; }

    ssize_t Write(int file, const void* bytes, size_t count, off_t offset) override;
    int Sync(int file) override;
    int SyncData(int file) override;
    int Truncate(int file, off_t length) override;
    int CreateNew(const char* path, unsigned mode) override;
    int Rename(const char* from, const char* to) override;
    int RenameNoReplace(const char* from, const char* to) override;
    int Unlink(const char* path) override;

private:
    bool FailsNow();

    const int at_;
    const Fault fault_;
    const int error_;
    int calls_ = 0;
    int syncs_ = 0;
    FileOps* const former_;
};

inline constexpr int kKilled = 77;  // the exit code of a process that FaultyDisk ended

// Runs `action` in a child process. Its exit code; 0 when the action came to its end, 1 when it
// raised.
int InChild(const std::function<void()>& action);

}  // namespace docmodel
