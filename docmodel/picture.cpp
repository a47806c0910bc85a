#include "docmodel/picture.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>

namespace docmodel {

namespace {

constexpr qint64 kMaxPixels = 32 << 20;  // 128 MiB of picture; screens have a quarter of it

bool IsPossible(QSize size) {
    return !size.isEmpty() && qint64(size.width()) * size.height() <= kMaxPixels;
}

constexpr PictureFormat kPng = {"png", "docProps/thumbnail.png", "image/png"};
constexpr PictureFormat kJpeg = {"jpeg", "docProps/thumbnail.jpeg", "image/jpeg"};
constexpr PictureFormat kBmp = {"bmp", "docProps/thumbnail.bmp", "image/bmp"};

// The chunks that make a picture (RFC 2083 and its successors). The others are left out: texts and
// profiles may unpack to a thousand times their size, which the reader does before anything else.
QByteArray WithoutExtras(const QByteArray& png) {
    static const QByteArrayList picture{"IHDR", "PLTE", "tRNS", "gAMA", "IDAT", "IEND"};
    constexpr qint64 kSignature = 8;
    constexpr qint64 kFrame = 12;  // length, type and checksum of a chunk
    QByteArray kept = png.left(kSignature);
    qint64 at = kSignature;
    while (at + kFrame <= png.size()) {
        const qint64 size = kFrame + qFromBigEndian<quint32>(png.constData() + at);
        if (picture.contains(png.mid(at + 4, 4)))
            kept += png.mid(at, size);
        at += size;
    }
    return kept;
}

QByteArray Readable(const QByteArray& bytes, const PictureFormat& format) {
    return &format == &kPng ? WithoutExtras(bytes) : bytes;
}

QImage OnWhite(const QImage& picture) {
    if (!picture.hasAlphaChannel())
        return picture.convertToFormat(QImage::Format_RGB32);
    QImage solid(picture.size(), QImage::Format_RGB32);
    if (solid.isNull())
        return solid;
    solid.fill(Qt::white);
    QPainter(&solid).drawImage(0, 0, picture);
    return solid;
}

}  // namespace

const PictureFormat* PictureFormatOf(const QByteArray& bytes) {
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return &kPng;
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return &kJpeg;
    return bytes.startsWith("BM") ? &kBmp : nullptr;
}

bool IsWithinBounds(const QByteArray& bytes) {
    const PictureFormat* format = PictureFormatOf(bytes);
    if (!format || bytes.size() > kMaxPreviewBytes)
        return false;
    QBuffer buffer;
    buffer.setData(Readable(bytes, *format));
    buffer.open(QIODevice::ReadOnly);
    return IsPossible(QImageReader(&buffer, format->name).size());
}

QImage ReadPicture(const QByteArray& bytes) {
    const PictureFormat* format = PictureFormatOf(bytes);
    if (!format)
        return {};
    QBuffer buffer;
    buffer.setData(Readable(bytes, *format));
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format->name);
    reader.setAutoTransform(true);
    if (!IsPossible(reader.size()))
        return {};
    const QImage picture = reader.read();
    return picture.isNull() ? picture : OnWhite(picture);
}

}  // namespace docmodel
