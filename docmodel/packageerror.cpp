#include "docmodel/packageerror.h"

#include <cerrno>
#include <cstring>

namespace docmodel {

namespace {

QString SystemReason(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return QStringLiteral("there is no such file. Check the path");
        case EACCES:
        case EPERM:
            return QStringLiteral("you have no permission for it. Ask its owner for access");
        case EROFS:
            return QStringLiteral("it lies on a disk that can't be written to. Work on a copy");
        case ENOSPC:
        case EDQUOT:
            return QStringLiteral("the disk is full. Make room and try again");
        case EFBIG:
            return QStringLiteral("the file would become larger than this disk or user may have");
        case EEXIST:
            return QStringLiteral("there is such a file already. Choose another name");
        case ELOOP:
            return QStringLiteral("its links lead in a circle. Correct the link");
        case ENAMETOOLONG:
            return QStringLiteral("the path is too long. Shorten it");
        case ENXIO:
            return QStringLiteral("it is no regular file. Choose a document");
        case EMFILE:
        case ENFILE:
            return QStringLiteral("too many files are open. Close some documents and try again");
        case EIO:
            return QStringLiteral("the disk reports an error. Check the disk, then try again");
        default:
            return QString::fromLocal8Bit(std::strerror(error));
    }
}

}  // namespace

DocumentError DamagedError(const QString& path, const QString& reason) {
    return DocumentError(QStringLiteral("The document %1 is damaged: %2. Restore it from a backup.")
                             .arg(path, reason));
}

DocumentError FailedError(const QString& path, const QString& done, const QString& reason) {
    return DocumentError(
        QStringLiteral("The document %1 can't be %2: %3.").arg(path, done, reason));
}

DocumentError SystemError(const QString& path, const QString& done, int error) {
    return FailedError(path, done, SystemReason(error));
}

DocumentError FolderError(const QString& path, const QString& done, int error) {
    const bool isMissing = error == ENOENT || error == ENOTDIR;
    const QString reason =
        isMissing ? QStringLiteral("there is no such folder. Check the path") : SystemReason(error);
    return DocumentError(QStringLiteral("The folder %1 can't be %2: %3.").arg(path, done, reason));
}

QString ShownName(QByteArrayView name) {
    constexpr qsizetype kLongestShown = 100;
    QString shown = QString::fromUtf8(name.first(qMin(name.size(), kLongestShown)));
    for (QChar& character : shown)
        if (!character.isPrint())
            character = QChar::ReplacementCharacter;
    return name.size() > kLongestShown ? shown + QStringLiteral("...") : shown;
}

}  // namespace docmodel
