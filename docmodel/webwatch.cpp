#include "docmodel/webwatch.h"

#include <dirent.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstdlib>
#include <memory>

namespace docmodel {
namespace {

// Where the library below has a limit, it speaks up first.
constexpr std::chrono::milliseconds kGrace(500);

// The port of the other end; 0 if there is none.
unsigned PeerPort(int socket) {
    sockaddr_storage peer = {};
    socklen_t length = sizeof peer;
    if (getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &length) != 0)
        return 0;
    if (peer.ss_family == AF_INET)
        return ntohs(reinterpret_cast<const sockaddr_in&>(peer).sin_port);
    if (peer.ss_family == AF_INET6)
        return ntohs(reinterpret_cast<const sockaddr_in6&>(peer).sin6_port);
    return 0;
}

}  // namespace

WebWatch::WebWatch(int timeoutSeconds, unsigned port)
    : limit_(std::chrono::seconds(timeoutSeconds) + kGrace), port_(port) {}

WebWatch::~WebWatch() {
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_one();
    if (thread_.joinable())
        thread_.join();
}

void WebWatch::AttachTo(ne_session* session) {
    ne_set_notifier(session, &WebWatch::Notice, this);
}

void WebWatch::Begin() {
    SawSign();
    hasBrokenOff_ = false;
    {
        const std::lock_guard lock(mutex_);
        isWatching_ = true;
        if (!thread_.joinable())
            thread_ = std::thread([this] { Run(); });
    }
    changed_.notify_one();
}

void WebWatch::Pause() {
    const std::lock_guard lock(mutex_);
    isWatching_ = false;
}

void WebWatch::SawSign() {
    lastSign_ = Clock::now().time_since_epoch().count();
}

void WebWatch::Forget() {
    const std::lock_guard lock(mutex_);
    socket_.Close();
}

void WebWatch::Notice(void* self, ne_session_status status, const ne_session_status_info*) {
    auto* watch = static_cast<WebWatch*>(self);
    watch->SawSign();
    if (status == ne_status_connecting)
        watch->before_ = watch->SocketsToServer();
    else if (status == ne_status_connected)
        watch->TakeNewSocket();
    else if (status == ne_status_disconnected)
        watch->Forget();
}

// The library does not show its socket: it is the one that was not there before.
std::set<int> WebWatch::SocketsToServer() const {
    std::set<int> sockets;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir("/proc/self/fd"), &closedir);
    if (!folder)
        return sockets;
    while (const dirent* entry = readdir(folder.get())) {
        const int file = std::atoi(entry->d_name);
        if (entry->d_name[0] != '.' && PeerPort(file) == port_)
            sockets.insert(file);
    }
    return sockets;
}

void WebWatch::TakeNewSocket() {
    for (const int socket : SocketsToServer()) {
        if (before_.contains(socket))
            continue;
        const std::lock_guard lock(mutex_);
        socket_ = FileDescriptor(fcntl(socket, F_DUPFD_CLOEXEC, 0));
        return;
    }
}

void WebWatch::Run() {
    std::unique_lock lock(mutex_);
    while (!isEnding_) {
        if (!isWatching_) {
            changed_.wait(lock);
            continue;
        }
        const Clock::time_point deadline = Clock::time_point(Clock::duration(lastSign_)) + limit_;
        if (Clock::now() < deadline) {
            changed_.wait_until(lock, deadline);
            continue;
        }
        if (socket_.IsOpen()) {
            hasBrokenOff_ = true;
            shutdown(socket_.Get(), SHUT_RDWR);
        }
        SawSign();
    }
}

}  // namespace docmodel
