// A small HTTP server on this machine that does what a test tells it, wrong things above all.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <functional>
#include <list>
#include <mutex>
#include <thread>
#include <utility>

namespace docbench {

class FaultServer {
public:
    struct Request {
        QByteArray method;
        QByteArray path;
        QHash<QByteArray, QByteArray> headers;  // by names in lower case
        QByteArray body;                        // not yet known when the reply is made
    };
    struct Reply {
        int status = 200;
        QList<std::pair<QByteArray, QByteArray>> headers = {};
        QByteArray body = {};
        qint64 claimedLength = -1;  // what "Content-Length" says, if not the truth
        bool hasLength = true;
        bool isChunked = false;  // instead of a length
        bool stalls = false;     // says no more behind the body, but stays
        bool takesBody = true;   // false: leaves the request's body unread, and stays
        bool hangsUp = false;    // closes behind the body
    };
    using Script = std::function<Reply(const Request&)>;

    // `script` runs in threads of the server, for one request at a time.
    explicit FaultServer(Script script);
    ~FaultServer();
    FaultServer(const FaultServer&) = delete;
    FaultServer& operator=(const FaultServer&) = delete;

    QString Url(const QString& name = {}) const;  // "http://127.0.0.1:PORT/dav/NAME"
    int Port() const { return port_; }
    QList<Request> Requests() const;  // those that were replied to
    int Count(const QByteArray& method) const;

private:
    void Accept();
    void Serve(int connection);
    bool Answer(int connection, const Request& request, QByteArray& rest);
    void WaitForTheEnd(int connection) const;

    const Script script_;
    int listener_ = -1;
    int stop_[2] = {-1, -1};  // a pipe whose writing end is closed at the end
    int port_ = 0;
    mutable std::mutex mutex_;
    QList<Request> requests_;
    std::list<std::thread> threads_;
    std::thread acceptor_;
};

}  // namespace docbench
