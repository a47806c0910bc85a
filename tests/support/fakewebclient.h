// A web server in memory, as the program's web folder client for as long as it lives.
#pragma once

#include <QFile>
#include <QMap>
#include <QStringList>

#include "services/docaccess.h"
#include "services/webcopies.h"

namespace docbench {

class FakeListing : public WebFolderListing {
public:
    explicit FakeListing(QMap<QString, QString> entries) : entries_(std::move(entries)) {}
    bool Reset() override {
        next_ = 0;
        return true;
    }
    bool NextEntry(QString& url) override {
        url = entries_.keys().value(next_);
        return next_++ < entries_.size();
    }
    bool GetProperty(const QString& url, const QString&, const QString& name,
                     QString& value) override {
        value = entries_.value(url);
        return name == QLatin1String("resourcetype") && entries_.contains(url);
    }

private:
    QMap<QString, QString> entries_;  // address to kind
    qsizetype next_ = 0;
};

// What the server holds; outlives the client.
struct FakeServer {
    QMap<QString, QByteArray> files;
    QStringList folders;  // addresses, with a "/" at their ends
    QStringList calls;
    QStringList allowed;     // to be overwritten
    QStringList localMoves;  // "FROM TO"
    QString error = QStringLiteral("The server said no.");
    bool refusesUploads = false;
};

class FakeWebClient : public WebFolderClient {
public:
    explicit FakeWebClient(FakeServer& server) : server_(server) {}

    bool GetFile(const QString& url, const QString& localPath) override {
        server_.calls.append(QStringLiteral("get ") + url);
        QFile file(localPath);
        return server_.files.contains(url) && file.open(QIODevice::WriteOnly) &&
               file.write(server_.files[url]) >= 0;
    }
    bool PutFile(const QString& localPath, const QString& url) override {
        server_.calls.append(QStringLiteral("put ") + url);
        QFile file(localPath);
        if (server_.refusesUploads || !file.open(QIODevice::ReadOnly))
            return false;
        server_.files[url] = file.readAll();
        return true;
    }
    bool MakeFolder(const QString& url) override {
        server_.calls.append(QStringLiteral("mkcol ") + url);
        server_.folders.append(url.endsWith(u'/') ? url : url + u'/');
        return true;
    }
    bool MoveResource(const QString& url, const QString& newUrl, int overwrite) override {
        server_.calls.append(QStringLiteral("move %1 %2 %3").arg(url, newUrl).arg(overwrite));
        if (!server_.files.contains(url) || (overwrite == 0 && server_.files.contains(newUrl)))
            return false;
        server_.files[newUrl] = server_.files.take(url);
        return true;
    }
    std::unique_ptr<WebFolderListing> ListFolder(const QString& url) override {
        server_.calls.append(QStringLiteral("list ") + url);
        if (!server_.folders.contains(url))
            return nullptr;
        QMap<QString, QString> entries;
        for (const QString& file : server_.files.keys()) {
            if (UrlFolder(file) == url)
                entries.insert(file, QStringLiteral("File"));
        }
        for (const QString& folder : server_.folders) {
            if (UrlFolder(folder.chopped(1)) == url)
                entries.insert(folder, QStringLiteral("Folder"));
        }
        return std::make_unique<FakeListing>(entries);
    }
    Presence Exists(const QString& url) override {
        server_.calls.append(QStringLiteral("exists ") + url);
        return server_.files.contains(url) ? Presence::Present : Presence::Absent;
    }
    void AllowOverwrite(const QString& url) override { server_.allowed.append(url); }
    void LocalFileMoved(const QString& from, const QString& to) override {
        server_.localMoves.append(from + u' ' + to);
    }
    QString LastError() const override { return server_.error; }

private:
    FakeServer& server_;
};

// Puts the client of a server of the test's own in place, with no copies.
class FakeWeb {
public:
    FakeWeb() {
        gWebFolder = std::make_unique<FakeWebClient>(server);
        gWebCopies.clear();
    }
    ~FakeWeb() {
        gWebListing.reset();
        gWebFolder.reset();
        gWebCopies.clear();
    }
    FakeServer server;
};

}  // namespace docbench
