// One document as a package on disk: its directory, its parts, and the one way of changing it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <optional>

#include "services/docaccess.h"

struct stat;

namespace docmodel {

using docbench::DocumentError;

// The part that holds the tables; always the last one, right before the central directory.
inline constexpr char kDocumentPart[] = "docmodel/document.xml";

// The part that holds the model's geometry. It is packed already, so no package deflates it.
inline constexpr char kModelPart[] = "model/geometry.bin";

// A package as it stood when it was opened. Only the tail of the file is read at first: the end
// record, the directory and, in the same read, the document part. The file is kept open for reading
// further parts, so what is read belongs to one state even if the file is replaced meanwhile.
class Package {
public:
    // Raises DocumentError (not there, no regular file, no permission, no package, torn, too many
    // parts, two parts of one name, ...).
    static Package Open(const QString& path);
    // The same for the file `name` of the open folder `folder`; `path` stands in error texts.
    static Package OpenAt(int folder, const char* name, const QString& path);
    Package(Package&&) noexcept;
    Package& operator=(Package&&) noexcept;
    ~Package();

    const QString& Path() const;
    const struct stat& Status() const;           // of the file, from before it was read
    QList<QByteArray> PartNames() const;         // in directory order, without folders
    bool HasPart(const QByteArray& name) const;  // part names compare without regard to ASCII case
    // The uncompressed bytes of a part, at most `limit` of them, with size and CRC checked. Raises
    // DocumentError, also when the part is encrypted, compressed by an unknown method, or too big.
    QByteArray ReadPart(const QByteArray& name, qint64 limit) const;
    // The part as the file has it, compressed and with its checksum: two parts with the same image
    // hold the same bytes. Empty when it is not in memory. Raises DocumentError.
    QByteArray PartImage(const QByteArray& name) const;

    // Reads every part and throws it away, in little memory. Raises DocumentError when one is
    // damaged, encrypted or compressed by an unknown method.
    void CheckParts() const;
    qint64 FileSize() const;
    // Bytes of the file that belong to former states, or to a save that was cut off.
    qint64 DeadBytes() const;
    bool IsLockedByOther() const;  // whether somebody else holds a lock on the file at this moment

    struct Data;  // for the package layer alone

private:
    friend class PackageWriter;
    explicit Package(std::unique_ptr<Data> data);
    std::unique_ptr<Data> data_;
};

// One change of a package: locks the file, reads the newest state, takes the new parts, and appends
// them in one step. Parts that are not put stay byte for byte. Destroyed without Commit it has
// written nothing.
class PackageWriter {
public:
    // Follows links. Raises DocumentError when the file can't be opened for writing, is read-only
    // by mode, or is held by another process.
    explicit PackageWriter(const QString& path) : PackageWriter(path, path) {}
    PackageWriter(const QString& path, const QString& shownPath);  // the latter for error texts
    ~PackageWriter();
    PackageWriter(const PackageWriter&) = delete;
    PackageWriter& operator=(const PackageWriter&) = delete;

    const Package& Current() const;  // the newest state, read under the lock
    void Put(const QByteArray& name, const QByteArray& data);
    void Remove(const QByteArray& name);
    // Appends what was put, a new directory and end record, and syncs; or compacts when much of the
    // file is dead. `documentPart` is written last. Raises DocumentError; the file then opens in
    // the old state. Ends the change: the lock is given back, and nothing else may be called.
    void Commit(const QByteArray& documentPart);

    // Makes a new package of the given parts, in this order, at `path`; it appears whole or not at
    // all. Raises DocumentError, also when there is such a file and `replace` is false.
    static void Create(const QString& path, const QList<std::pair<QByteArray, QByteArray>>& parts,
                       bool replace = false);
    // Rewrites the package without dead space, in a sibling file that is checked and renamed over
    // it. Raises DocumentError, also when a part is damaged or the file has further names (hard
    // links); the file is then as it was.
    static void Compact(const QString& path);

private:
    struct Data;
    std::unique_ptr<Data> data_;
};

// 0 may be written, 2 read-only by mode, 3 another process holds a lock on it, 4 anything else.
int AccessState(const QString& path);

}  // namespace docmodel
