#include "docmodel/previewextractorobject.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>

#include "docmodel/picture.h"
#include "docmodel/preview.h"

namespace docmodel {

namespace {

enum Result { kExtracted = 0, kFailed = -1, kNoPreview = -2 };

// Writes over what is there, whose place on the disk costs nothing then; only a whole picture gets
// that far.
bool WriteBitmap(const QImage& picture, const QString& path) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QFile file(path);
    return buffer.open(QIODevice::WriteOnly) && QImageWriter(&buffer, "bmp").write(picture) &&
           file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) &&
           file.write(bytes) == bytes.size() && file.resize(bytes.size());
}

}  // namespace

int PreviewExtractorObject::ExtractPreview(const QString& path, const QString& bitmapPath) {
    try {
        const std::optional<QByteArray> stored = StoredPreview(path);
        if (!stored)
            return kNoPreview;
        const QImage picture = ReadPicture(*stored);
        if (picture.isNull())
            return kFailed;
        return WriteBitmap(picture, bitmapPath) ? kExtracted : kFailed;
    } catch (const docbench::DocumentError&) {
        return kFailed;  // the result has no room for the reason
    }
}

}  // namespace docmodel
