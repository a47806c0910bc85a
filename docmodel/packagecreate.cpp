#include <sys/stat.h>

#include <QSet>
#include <algorithm>
#include <cerrno>

#include "docmodel/fileattributes.h"
#include "docmodel/filelock.h"
#include "docmodel/package.h"
#include "docmodel/packagedata.h"
#include "docmodel/packageerror.h"
#include "docmodel/siblingfile.h"
#include "docmodel/stateimage.h"

namespace docmodel {

namespace {

using NamedParts = QList<std::pair<QByteArray, QByteArray>>;

QString Done() {
    return QStringLiteral("created");
}

// In their order, but for the document part, which comes last.
std::vector<EncodedPart> Encode(const NamedParts& parts, const QString& path) {
    if (parts.isEmpty())
        throw FailedError(path, Done(), QStringLiteral("it has no parts"));
    std::vector<EncodedPart> encoded;
    QSet<QByteArray> names;
    for (const auto& [name, bytes] : parts) {
        if (names.contains(name.toLower()))
            throw FailedError(
                path, Done(),
                QStringLiteral("it would have the part %1 twice").arg(ShownName(name)));
        names.insert(name.toLower());
        encoded.push_back(EncodePart(name, bytes, path));
    }
    std::stable_partition(encoded.begin(), encoded.end(), [](const EncodedPart& part) {
        return !SameName(part.head.name, kDocumentPart);
    });
    return encoded;
}

void Write(const StateImage& image, int file, const QString& path) {
    const auto check = [&path](bool done) {
        if (!done)
            throw SystemError(path, Done(), errno);
    };
    quint64 offset = 0;
    for (const QByteArray& bytes : image.early) {
        check(WriteAll(file, bytes.constData(), size_t(bytes.size()), off_t(offset)));
        offset += quint64(bytes.size());
    }
    check(WriteAll(file, image.last.constData(), size_t(image.last.size()), off_t(offset)));
    check(gFileOps->Sync(file) == 0);
}

void CreateNew(const QString& path, const StateImage& image) {
    constexpr unsigned kUsualMode = 0666;  // less what the user's mask takes away
    const QByteArray target = SystemPath(path);
    struct stat status;
    if (lstat(target.constData(), &status) == 0)  // asked again, safely, when it is placed
        throw SystemError(path, Done(), EEXIST);
    SiblingFile file(target, kUsualMode);
    if (!file.IsOpen())
        throw SystemError(path, Done(), errno);
    Write(image, file.Get(), path);
    bool placed = false;
    if (file.PlaceUnlessThere(placed))
        return;
    const int error = errno;
    if (placed)
        gFileOps->Unlink(target.constData());
    throw SystemError(path, Done(), error);
}

// Whoever reads the former file goes on reading it; whoever has it locked keeps it.
void CreateOver(const QString& path, const StateImage& image) {
    struct stat status;
    const LockedFile former = OpenLocked(path, path, status);
    SiblingFile file(former.realPath, 0600);
    if (!file.IsOpen())
        throw SystemError(path, Done(), errno);
    Write(image, file.Get(), path);
    if (!CopyAttributes(former.file.Get(), status, file.Get()) || gFileOps->Sync(file.Get()) != 0)
        throw SystemError(path, Done(), errno);
    bool placed = false;
    // If only the folder's sync failed, the new document has its name. After a power failure it may
    // be the former one again, and that is whole as well.
    if (!file.PlaceOver(placed) && !placed)
        throw SystemError(path, Done(), errno);
}

}  // namespace

void PackageWriter::Create(const QString& path, const NamedParts& parts, bool replace) {
    const StateImage image = LayOutState(0, {}, Encode(parts, path), Checksum::No);
    CheckLimits(image, path);
    struct stat status;
    if (replace && stat(SystemPath(path).constData(), &status) == 0)
        CreateOver(path, image);
    else
        CreateNew(path, image);
}

}  // namespace docmodel
