// Reads one part of a package in pieces: finds its bytes, uncompresses them, checks size and
// checksum.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <memory>

#include "docmodel/packagetail.h"
#include "docmodel/zipdirectory.h"

namespace docmodel {

// Where an open package's bytes come from.
struct PackageSource {
    int file;
    const PackageTail& tail;
    const QString& path;
};

// The offset of a part's first data byte. Raises DocumentError when the local header is not there,
// or speaks of another part than the directory does.
quint64 DataOffset(const PackageSource& source, const DirectoryEntry& entry, QByteArrayView name);

// Whether the part's data can be uncompressed here: neither encrypted nor compressed by a method
// that is not known. Else `fault` says why not.
bool CanDecode(const zip::CentralRecord& record, QString& fault);

class PartDecoder {
public:
    // Raises DocumentError when the part can't be decoded or is none. All arguments must outlive
    // it.
    PartDecoder(const PackageSource& source, const DirectoryEntry& entry, QByteArrayView name);
    ~PartDecoder();
    PartDecoder(const PartDecoder&) = delete;
    PartDecoder& operator=(const PartDecoder&) = delete;

    // Writes the next `count` uncompressed bytes to `to`; there must be as many left by the
    // directory. Raises DocumentError when there are fewer.
    void Read(uchar* to, quint64 count);

    // To be called when all bytes are read: raises DocumentError when the part goes on, or its
    // checksum does not fit.
    void Finish();

private:
    struct Inflater;
    void CopyRaw(uchar* to, quint64 count);
    void Inflate(uchar* to, quint64 count);
    quint64 InflateSome(uchar* to, quint64 count);
    void FeedInflater();
    [[noreturn]] void RaiseDamaged(const QString& reason) const;

    const PackageSource& source_;
    const zip::CentralRecord& record_;
    const QByteArrayView name_;
    quint64 rawOffset_ = 0;  // of the next raw byte in the file
    quint64 rawLeft_ = 0;
    quint32 crc_ = 0;
    std::unique_ptr<Inflater> inflater_;  // null for stored parts
};

}  // namespace docmodel
