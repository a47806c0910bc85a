#include "tests/support/faultserver.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace docbench {
namespace {

// Waits until there is something to read. False once `stop` is closed.
bool WaitFor(int file, int stop) {
    pollfd files[] = {{file, POLLIN, 0}, {stop, POLLIN, 0}};
    while (poll(files, 2, -1) < 0) {
    }
    return files[1].revents == 0;
}

// More bytes to the end of `bytes`; false when there are none.
bool ReadMore(int file, int stop, QByteArray& bytes) {
    char block[1 << 16];
    if (!WaitFor(file, stop))
        return false;
    const ssize_t count = recv(file, block, sizeof block, 0);
    if (count <= 0)
        return false;
    bytes.append(block, count);
    return true;
}

bool Send(int file, const QByteArray& bytes) {
    for (qsizetype sent = 0; sent < bytes.size();) {
        const ssize_t count =
            send(file, bytes.constData() + sent, size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        sent += count;
    }
    return true;
}

FaultServer::Request ParseHead(const QByteArray& head) {
    FaultServer::Request request;
    const QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> words = lines.first().split(' ');
    request.method = words.value(0);
    request.path = words.value(1);
    for (const QByteArray& line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0)
            request.headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
    }
    return request;
}

QByteArray Message(const FaultServer::Reply& reply, bool isHead) {
    QByteArray text = "HTTP/1.1 " + QByteArray::number(reply.status) + " Told so\r\n";
    for (const auto& [name, value] : reply.headers)
        text += name + ": " + value + "\r\n";
    if (reply.isChunked)
        return text + "Transfer-Encoding: chunked\r\n\r\n" +
               QByteArray::number(reply.body.size(), 16) + "\r\n" + reply.body + "\r\n" +
               (reply.stalls || reply.hangsUp ? "" : "0\r\n\r\n");
    const qint64 length = reply.claimedLength < 0 ? reply.body.size() : reply.claimedLength;
    if (reply.hasLength && reply.status != 204)
        text += "Content-Length: " + QByteArray::number(length) + "\r\n";
    return text + "\r\n" + (isHead ? QByteArray() : reply.body);
}

}  // namespace

FaultServer::FaultServer(Script script) : script_(std::move(script)) {
    listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    if (listener_ < 0 || pipe(stop_) != 0 || bind(listener_, generic, length) != 0 ||
        listen(listener_, 16) != 0 || getsockname(listener_, generic, &length) != 0)
        qFatal("no server");
    port_ = ntohs(address.sin_port);
    acceptor_ = std::thread([this] { Accept(); });
}

FaultServer::~FaultServer() {
    close(stop_[1]);
    acceptor_.join();
    for (std::thread& thread : threads_)
        thread.join();
    close(stop_[0]);
    close(listener_);
}

QString FaultServer::Url(const QString& name) const {
    return QStringLiteral("http://127.0.0.1:%1/dav/%2").arg(port_).arg(name);
}

QList<FaultServer::Request> FaultServer::Requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

int FaultServer::Count(const QByteArray& method) const {
    int count = 0;
    for (const Request& request : Requests())
        count += request.method == method ? 1 : 0;
    return count;
}

void FaultServer::Accept() {
    while (WaitFor(listener_, stop_[0])) {
        const int connection = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection >= 0)
            threads_.emplace_back([this, connection] { Serve(connection); });
    }
}

void FaultServer::Serve(int connection) {
    QByteArray bytes;
    bool isOpen = true;
    while (isOpen) {
        const qsizetype end = bytes.indexOf("\r\n\r\n");
        if (end < 0) {
            isOpen = ReadMore(connection, stop_[0], bytes);
            continue;
        }
        const Request request = ParseHead(bytes.left(end));
        bytes.remove(0, end + 4);
        isOpen = Answer(connection, request, bytes);
    }
    close(connection);
}

// `rest` is what came behind the head; its own part is taken off it.
bool FaultServer::Answer(int connection, const Request& head, QByteArray& rest) {
    Request request = head;
    Reply reply;
    {
        const std::lock_guard lock(mutex_);
        reply = script_(request);
    }
    if (!reply.takesBody) {
        WaitForTheEnd(connection);
        return false;
    }
    const qint64 length = request.headers.value("content-length").toLongLong();
    while (rest.size() < length)
        if (!ReadMore(connection, stop_[0], rest))
            return false;
    request.body = rest.left(length);
    rest.remove(0, length);
    {
        const std::lock_guard lock(mutex_);
        requests_.append(request);
    }
    if (!Send(connection, Message(reply, request.method == "HEAD")) || reply.hangsUp)
        return false;
    if (reply.stalls)
        WaitForTheEnd(connection);
    return !reply.stalls;
}

// Until the other end goes away, or the test ends.
void FaultServer::WaitForTheEnd(int connection) const {
    pollfd files[] = {{connection, POLLRDHUP, 0}, {stop_[0], POLLIN, 0}};
    while (poll(files, 2, -1) < 0) {
    }
}

}  // namespace docbench
