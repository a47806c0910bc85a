#include "docmodel/partencoder.h"

#include <zlib.h>

#include <algorithm>
#include <limits>
#include <new>

#include "docmodel/package.h"
#include "docmodel/packageerror.h"
#include "docmodel/packagelimits.h"
#include "docmodel/zipdirectory.h"

namespace docmodel {

namespace {

bool IsCompressedPicture(const QByteArray& bytes) {
    return bytes.startsWith("\x89PNG\r\n\x1a\n") || bytes.startsWith("\xff\xd8\xff");
}

// As a raw deflate stream; an empty array if it does not fit into `room` bytes.
QByteArray Deflate(const QByteArray& bytes, qsizetype room) {
    z_stream stream = {};
    constexpr int kMemoryLevel = 8;
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS, kMemoryLevel,
                     Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::bad_alloc();
    QByteArray out(room, Qt::Uninitialized);
    stream.next_in =
        const_cast<uchar*>(reinterpret_cast<const uchar*>(bytes.constData()));  // only read
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<uchar*>(out.data());
    stream.avail_out = uInt(room);
    const int status = deflate(&stream, Z_FINISH);
    out.truncate(status == Z_STREAM_END ? room - qsizetype(stream.avail_out) : 0);
    deflateEnd(&stream);
    return out;
}

bool IsStored(const QByteArray& name, const QByteArray& bytes) {
    if (SameName(name, kDocumentPart))
        return bytes.size() <= kMaxStoredDocumentPart;
    return SameName(name, kModelPart) || IsCompressedPicture(bytes);
}

}  // namespace

void CheckNewName(const QByteArray& name, const QString& path) {
    const QString fault = NameFault(name);
    if (!fault.isEmpty())
        throw FailedError(path, QStringLiteral("written"),
                          QStringLiteral("a part of it can't have the name \"%1\", since %2")
                              .arg(ShownName(name), fault));
}

EncodedPart EncodePart(const QByteArray& name, const QByteArray& bytes, const QString& path) {
    CheckNewName(name, path);
    if (bytes.size() > kMaxPartBytes)
        throw FailedError(path, QStringLiteral("written"),
                          QStringLiteral("its part %1 would have %2 bytes, and no more than %3 are "
                                         "allowed")
                              .arg(ShownName(name))
                              .arg(bytes.size())
                              .arg(kMaxPartBytes));
    EncodedPart part;
    part.head.name = name;
    part.head.crc = quint32(
        crc32_z(0, reinterpret_cast<const uchar*>(bytes.constData()), size_t(bytes.size())));
    part.head.size = quint32(bytes.size());
    part.head.dosTime = zip::DosTimeNow();
    if (!IsStored(name, bytes))
        part.data = Deflate(bytes, bytes.size() - bytes.size() / kDeflateMustSaveOneIn);
    if (part.data.isEmpty())
        part.data = bytes;
    else
        part.head.method = zip::kDeflated;
    part.head.compressedSize = quint32(part.data.size());
    return part;
}

}  // namespace docmodel
