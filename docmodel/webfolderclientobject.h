// The transfers with web folders, and the memory of what was there.
#pragma once

#include <functional>
#include <map>
#include <memory>

#include "docmodel/webmemory.h"
#include "docmodel/websession.h"
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
    void LocalFileMoved(const QString& from, const QString& to) override {
        memory_.LocalFileMoved(from, to);
    }
    QString LastError() const override { return lastError_; }

private:
    // Runs a call; an error becomes false and LastError.
    bool Run(const std::function<void()>& call);
    WebSession& SessionFor(const WebAddress& address);

    void Download(const WebAddress& address, const QString& localPath);
    void Upload(const QString& localPath, const WebAddress& address);
    void Move(const WebAddress& from, const WebAddress& to, bool overwrite);
    void PrepareTagsForMove(const WebAddress& from);
    void AdoptMovedTags(const WebAddress& to);

    const docbench::WebClientSettings settings_;
    std::map<QString, std::unique_ptr<WebSession>> sessions_;  // by server
    WebMemory memory_;
    QString lastError_;
};

}  // namespace docmodel
