#include "docmodel/webmemory.h"

#include <QDir>

namespace docmodel {
namespace {

bool IsAtOrBelow(const QByteArray& key, const WebAddress& place) {
    return key == place.Sent() || key.startsWith(place.AsFolder().Sent());
}

// The address of what was at or below `from`, once that is `to`.
QByteArray MovedKey(const QByteArray& key, const WebAddress& from, const WebAddress& to) {
    return key == from.Sent() ? to.Sent()
                              : to.AsFolder().Sent() + key.mid(from.AsFolder().Sent().size());
}

}  // namespace

std::optional<WebVersion> WebMemory::Find(const QString& localPath,
                                          const WebAddress& address) const {
    const Versions versions = known_.value(QDir::cleanPath(localPath));
    const auto found = versions.constFind(address.Sent());
    return found == versions.constEnd() ? std::nullopt : std::optional(*found);
}

QList<WebVersion*> WebMemory::VersionsAt(const WebAddress& address) {
    const QByteArray key = address.Sent();
    QList<WebVersion*> versions;
    for (Versions& ofFile : known_) {
        if (const auto found = ofFile.find(key); found != ofFile.end())
            versions.append(&*found);
    }
    return versions;
}

// What the file was a copy of before is gone with its former contents.
void WebMemory::Downloaded(const QString& localPath, const WebAddress& address,
                           const WebVersion& version) {
    known_.insert(QDir::cleanPath(localPath), {{address.Sent(), version}});
    overwritable_.remove(address.Sent());
}

void WebMemory::Uploaded(const QString& localPath, const WebAddress& address,
                         const WebVersion& version) {
    known_[QDir::cleanPath(localPath)].insert(address.Sent(), version);
    overwritable_.remove(address.Sent());
}

void WebMemory::LocalFileMoved(const QString& from, const QString& to) {
    const QString source = QDir::cleanPath(from);
    const QString target = QDir::cleanPath(to);
    if (source != target)
        known_.insert(target, known_.take(source));
}

void WebMemory::Moved(const WebAddress& from, const WebAddress& to) {
    for (Versions& versions : known_) {
        Versions moved;
        versions.removeIf([&](const auto& entry) {
            const bool isMoved = IsAtOrBelow(entry.key(), from);
            if (isMoved)
                moved.insert(MovedKey(entry.key(), from, to), entry.value());
            return isMoved || IsAtOrBelow(entry.key(), to);
        });
        versions.insert(moved);
    }
    overwritable_.removeIf(
        [&](const QByteArray& key) { return IsAtOrBelow(key, from) || IsAtOrBelow(key, to); });
}

}  // namespace docmodel
