// A disk that gets full: for tests of half-written files.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace docbench {

// No file of this process may grow beyond `bytes` meanwhile: the disk is full in the middle.
class SmallFiles {
public:
    explicit SmallFiles(rlim_t bytes) {
        former_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &limit_);
        const rlimit small{bytes, limit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFiles() {
        setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, former_);
    }

private:
    rlimit limit_{};
    void (*former_)(int);
};

}  // namespace docbench
