#include "docmodel/picture.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

namespace docmodel {

namespace {

constexpr qint64 kMaxPixels = 32 << 20;  // 128 MiB of picture; screens have a quarter of it

bool IsPossible(QSize size) {
    return !size.isEmpty() && qint64(size.width()) * size.height() <= kMaxPixels;
}

constexpr PictureFormat kPng = {"png", "docProps/thumbnail.png", "image/png"};
constexpr PictureFormat kJpeg = {"jpeg", "docProps/thumbnail.jpeg", "image/jpeg"};
constexpr PictureFormat kBmp = {"bmp", "docProps/thumbnail.bmp", "image/bmp"};

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
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return IsPossible(QImageReader(&buffer, format->name).size());
}

QImage ReadPicture(const QByteArray& bytes) {
    const PictureFormat* format = PictureFormatOf(bytes);
    if (!format)
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format->name);
    reader.setAutoTransform(true);
    if (!IsPossible(reader.size()))
        return {};
    const QImage picture = reader.read();
    return picture.isNull() ? picture : OnWhite(picture);
}

}  // namespace docmodel
