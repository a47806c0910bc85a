// The transfers with web folders, and the memory of what was there.
#pragma once

#include <QHash>
#include <QSet>
#include <functional>
#include <map>
#include <memory>

#include "docmodel/webpropfind.h"
#include "services/docaccess.h"

namespace docmodel {

class WebFolderClientObject : public docbench::WebFolderClient {
public:
    explicit WebFolderClientObject(const docbench::WebClientSettings& settings)
        : settings_(settings) {}

    bool GetFile(const QString& url, const QString& localPath) override;
    bool PutFile(const QString& localPath, const QString& url) override;
    bool MakeFolder(const QString& url) override;
    bool MoveResource(const QString& url, const QString& newUrl, int overwrite) override;
    std::unique_ptr<docbench::WebFolderListing> ListFolder(const QString& url) override;
    Presence Exists(const QString& url) override;
    void AllowOverwrite(const QString& url) override;
    QString LastError() const override { return lastError_; }

private:
    // Runs a call; an error becomes false and LastError.
    bool Run(const std::function<void()>& call);
    WebSession& SessionFor(const WebAddress& address);

    void Download(const WebAddress& address, const QString& localPath);
    QByteArray DigestOnServer(const WebAddress& address);
    void Upload(const QString& localPath, const WebAddress& address);
    // The condition under which an upload can't overwrite anybody's work. Raises when it would.
    QList<std::pair<QByteArray, QByteArray>> ConditionFor(const WebAddress& address);
    void RequireUnchanged(const WebAddress& address, const WebVersion& known);
    [[noreturn]] void RaiseRefusedUpload(const WebAddress& address, const WebAnswer& answer);
    // What the server tells of a file, if it does.
    WebVersion VersionNow(const WebAddress& address);
    WebVersion VersionAfterUpload(const WebAnswer& answer, int file, qint64 bytes);
    void Move(const WebAddress& from, const WebAddress& to, bool overwrite);
    void CarryOver(const WebAddress& from, const WebAddress& to);
    void AdoptMovedTag(const WebAddress& address);

    const docbench::WebClientSettings settings_;
    std::map<QString, std::unique_ptr<WebSession>> sessions_;  // by server
    QHash<QByteArray, WebVersion> known_;  // by address, as it was downloaded or uploaded
    QSet<QByteArray> overwritable_;        // addresses
    QString lastError_;
};

}  // namespace docmodel
