#include "docmodel/preview.h"

#include "docmodel/opc.h"
#include "docmodel/picture.h"

namespace docmodel {

namespace {

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

}  // namespace

std::optional<QByteArray> StoredPreview(const QString& path) {
    const Package package = Package::Open(path);
    const QByteArray part = PreviewPart(package);
    if (part.isEmpty())
        return std::nullopt;
    return package.ReadPart(part, kMaxPreviewBytes);
}

}  // namespace docmodel
