#include "services/filefacts.h"

#include <QFileInfo>
#include <QMimeDatabase>

#include "services/paths.h"

namespace docbench {
namespace {

// The desktop's word for files of that name, else the extension: "TFMPRT".
QString TypeOf(const QString& name) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    return type.isDefault() || type.comment().isEmpty() ? ExtensionOrEmpty(name).toUpper()
                                                        : type.comment();
}

// Read-only is a file that nobody may write, by its mode and not by trying; hidden is a leading
// dot. Disks here keep no archive bit.
quint8 AttributesOf(const QFileInfo& file) {
    constexpr QFile::Permissions kWriting =
        QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    quint8 attributes = 0;
    if (file.exists() && !(file.permissions() & kWriting))
        attributes |= kAttributeReadOnly;
    if (file.fileName().startsWith(u'.'))
        attributes |= kAttributeHidden;
    return attributes;
}

}  // namespace

FileFacts FactsOf(const QString& path) {
    const QFileInfo file(path);
    const QDateTime born = file.birthTime();
    return {.type = TypeOf(file.fileName()),
            .size = file.size(),
            .created = born.isValid() ? born : file.metadataChangeTime(),
            .attributes = AttributesOf(file)};
}

}  // namespace docbench
