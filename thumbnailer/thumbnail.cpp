#include "thumbnailer/thumbnail.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>
#include <QUrl>

#include "docmodel/picture.h"
#include "docmodel/preview.h"
#include "services/docaccess.h"
#include "services/wholefile.h"

namespace thumbnailer {

namespace {

using docbench::DocumentError;

QImage StoredPicture(const QString& document) {
    // A pipe or a device would keep the file manager waiting for ever.
    if (!QFileInfo(document).isFile())
        throw DocumentError(QStringLiteral("There is no document %1.").arg(document));
    const std::optional<QByteArray> stored = docmodel::StoredPreview(document);
    if (!stored)
        throw DocumentError(
            QStringLiteral("The document %1 has no preview. Save it in the CAD program.")
                .arg(document));
    QImage picture = docmodel::ReadPicture(*stored);
    if (picture.isNull())
        throw DocumentError(
            QStringLiteral("The preview in %1 is damaged or too large.").arg(document));
    return picture;
}

QImage Fitted(const QImage& picture, int size) {
    if (picture.width() <= size && picture.height() <= size)
        return picture;
    // At least one pixel: a picture may be a thousand times as wide as it is high.
    const QSize fitted =
        picture.size().scaled(size, size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    return picture.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

QString LocalFile(const QString& pathOrUri) {
    if (pathOrUri.startsWith(QLatin1String("file:")))
        return QUrl(pathOrUri).toLocalFile();
    return pathOrUri.contains(QLatin1String("://")) ? QString() : pathOrUri;
}

void WriteThumbnail(const QString& document, const QString& output, int size) {
    const QImage picture = Fitted(StoredPicture(document), size);
    // Takes the name once it is whole, so that nobody ever reads half a picture.
    QSaveFile file(output);
    if (!file.open(QIODevice::WriteOnly) || !QImageWriter(&file, "png").write(picture) ||
        !docbench::CommitWhole(file))
        throw DocumentError(
            QStringLiteral("The picture %1 can't be written: %2.").arg(output, file.errorString()));
}

}  // namespace thumbnailer
