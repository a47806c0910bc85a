// Breaks off a connection that has been silent for too long. The library below has time limits of
// its own for connecting and for reading plain text, but none for sending, nor for TLS.
#pragma once

#include <neon/ne_session.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

#include "docmodel/fileops.h"

namespace docmodel {

class WebWatch {
public:
    // `port` is the server's.
    WebWatch(int timeoutSeconds, unsigned port);
    ~WebWatch();
    WebWatch(const WebWatch&) = delete;
    WebWatch& operator=(const WebWatch&) = delete;

    void AttachTo(ne_session* session);  // must be outlived by this
    void Begin();                        // from here on silence is a fault
    void Pause();                        // from here on it is not: somebody is asked something
    void SawSign();                      // something was sent or received, or is about to be
    void Forget();                       // the connection is gone
    bool HasBrokenOff() const { return hasBrokenOff_; }  // since Begin

private:
    using Clock = std::chrono::steady_clock;

    static void Notice(void* self, ne_session_status status, const ne_session_status_info*);
    std::set<int> SocketsToServer() const;
    void TakeNewSocket();
    void Run();

    const std::chrono::milliseconds limit_;
    const unsigned port_;
    std::set<int> before_;  // sockets to that port that are somebody else's
    std::atomic<Clock::rep> lastSign_ = 0;
    std::atomic<bool> hasBrokenOff_ = false;

    std::mutex mutex_;
    std::condition_variable changed_;
    FileDescriptor socket_;  // of our own, so that its number can't come to mean something else
    bool isWatching_ = false;
    bool isEnding_ = false;
    std::thread thread_;
};

}  // namespace docmodel
