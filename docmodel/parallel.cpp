#include "docmodel/parallel.h"

#include <QRunnable>
#include <QSemaphore>
#include <QThreadPool>
#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <vector>

namespace docmodel {

namespace {

// Waking a thread takes as long as reading a few documents.
constexpr size_t kLeastAThread = 16;
// More would only stand in each other's way.
constexpr size_t kMostThreads = 8;

// The calls that are still to be made, for whoever comes to make them.
class SharedWork {
public:
    SharedWork(size_t count, const std::function<void(size_t)>& work)
        : count_(count), work_(work) {}

    void DoSome() {
        try {
            for (size_t i = next_++; i < count_; i = next_++)
                work_(i);
        } catch (...) {
            const std::lock_guard lock(mutex_);
            raised_ = std::current_exception();
            next_ = count_;
        }
    }

    void RaiseAgain() const {
        if (raised_)
            std::rethrow_exception(raised_);
    }

private:
    const size_t count_;
    const std::function<void(size_t)>& work_;
    std::atomic<size_t> next_ = 0;
    std::mutex mutex_;
    std::exception_ptr raised_;
};

class Helper : public QRunnable {
public:
    Helper(SharedWork& work, QSemaphore& done) : work_(work), done_(done) { setAutoDelete(false); }
    void run() override {
        work_.DoSome();
        done_.release();
    }

private:
    SharedWork& work_;
    QSemaphore& done_;
};

}  // namespace

size_t ThreadsFor(size_t count) {
    return std::clamp<size_t>(
        std::min(size_t(QThreadPool::globalInstance()->maxThreadCount()), count / kLeastAThread), 1,
        kMostThreads);
}

// On a busy machine a helper may not come to run before all is done; nobody waits for that.
void InParallel(size_t count, const std::function<void(size_t)>& work) {
    QThreadPool& pool = *QThreadPool::globalInstance();
    SharedWork shared(count, work);
    QSemaphore done;
    std::vector<std::unique_ptr<Helper>> helpers;
    while (helpers.size() + 1 < ThreadsFor(count)) {
        helpers.push_back(std::make_unique<Helper>(shared, done));
        pool.start(helpers.back().get());
    }
    shared.DoSome();
    const auto started = std::count_if(helpers.begin(), helpers.end(), [&](const auto& helper) {
        return !pool.tryTake(helper.get());
    });
    done.acquire(int(started));
    shared.RaiseAgain();
}

}  // namespace docmodel
