// What the server had of each local copy when the two last agreed, and what may be overwritten.
#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <optional>

#include "docmodel/webaddress.h"
#include "docmodel/webversion.h"

namespace docmodel {

class WebMemory {
public:
    // None: the local file was never downloaded from the address, nor uploaded to it. Two copies of
    // one address, fetched by two spellings of it, each have the version of their own fetching.
    std::optional<WebVersion> Find(const QString& localPath, const WebAddress& address) const;
    // Those of all local copies of an address, to be changed before anything else is called.
    QList<WebVersion*> VersionsAt(const WebAddress& address);

    void Downloaded(const QString& localPath, const WebAddress& address, const WebVersion& version);
    void Uploaded(const QString& localPath, const WebAddress& address, const WebVersion& version);
    void LocalFileMoved(const QString& from, const QString& to);
    // A file or a folder took another address on the server, with all that lies in it.
    void Moved(const WebAddress& from, const WebAddress& to);

    // A permission is for the occasion it was given on: the next transfer or move ends it.
    void AllowOverwrite(const WebAddress& address) { overwritable_.insert(address.Sent()); }
    bool MayOverwrite(const WebAddress& address) const {
        return overwritable_.contains(address.Sent());
    }

private:
    using Versions = QHash<QByteArray, WebVersion>;  // by address

    QHash<QString, Versions> known_;  // by cleaned local path
    QSet<QByteArray> overwritable_;   // addresses
};

}  // namespace docmodel
