#include "docmodel/previewextractorobject.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>

#include "docmodel/opc.h"
#include "docmodel/picture.h"

namespace docmodel {

namespace {

enum Result { kExtracted = 0, kFailed = -1, kNoPreview = -2 };

// The names that writers without relationships give it.
constexpr const char* kUsualNames[] = {"docProps/thumbnail.png", "docProps/thumbnail.jpeg",
                                       "docProps/thumbnail.jpg", "docProps/thumbnail.bmp"};

QByteArray PreviewPart(const Package& package) {
    QByteArray named = FindPart(package, kThumbnailKind);
    if (!named.isEmpty())
        return named;
    for (const char* name : kUsualNames)
        if (package.HasPart(name))
            return name;
    return {};
}

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
        const Package package = Package::Open(path);
        const QByteArray part = PreviewPart(package);
        if (part.isEmpty())
            return kNoPreview;
        const QImage picture = ReadPicture(package.ReadPart(part, kMaxPreviewBytes));
        if (picture.isNull())
            return kFailed;
        return WriteBitmap(picture, bitmapPath) ? kExtracted : kFailed;
    } catch (const DocumentError&) {
        return kFailed;  // the result has no room for the reason
    }
}

}  // namespace docmodel
