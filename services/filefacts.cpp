#include "services/filefacts.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>
#include <QHash>
#include <QMimeDatabase>

#include "services/paths.h"

namespace docbench {
namespace {

// The desktop's word for files of that extension, else the extension itself: "TFMPRT". Asking the
// desktop takes far longer than asking the disk.
QString TypeOf(const QString& name) {
    static QHash<QString, QString> known;
    const QString extension = ExtensionOrEmpty(name).toLower();
    const auto found = known.constFind(extension);
    if (found != known.constEnd())
        return *found;
    const QMimeType type = QMimeDatabase().mimeTypeForFile(QStringLiteral("name.") + extension,
                                                           QMimeDatabase::MatchExtension);
    const bool hasWord = !type.isDefault() && !type.comment().isEmpty();
    return *known.insert(extension, hasWord ? type.comment() : extension.toUpper());
}

QDateTime TimeOf(const struct statx_timestamp& time) {
    constexpr qint64 kNanosecondsAMillisecond = 1'000'000;
    constexpr qint64 kMillisecondsASecond = 1'000;
    return QDateTime::fromMSecsSinceEpoch(time.tv_sec * kMillisecondsASecond +
                                          time.tv_nsec / kNanosecondsAMillisecond);
}

}  // namespace

// Read-only is a file that nobody may write, by its mode and not by trying; hidden is a leading
// dot. Disks here keep no archive bit.
FileFacts FactsOf(const QString& path) {
    const QString name = FileNameOf(path);
    FileFacts facts;
    facts.type = TypeOf(name);
    struct statx status;
    if (statx(AT_FDCWD, QFile::encodeName(path).constData(), 0, STATX_BASIC_STATS | STATX_BTIME,
              &status) != 0)
        return facts;
    facts.size = qint64(status.stx_size);
    facts.created = TimeOf(status.stx_mask & STATX_BTIME ? status.stx_btime : status.stx_ctime);
    constexpr quint32 kWriting = S_IWUSR | S_IWGRP | S_IWOTH;
    if ((status.stx_mode & kWriting) == 0)
        facts.attributes |= kAttributeReadOnly;
    if (name.startsWith(u'.'))
        facts.attributes |= kAttributeHidden;
    return facts;
}

}  // namespace docbench
