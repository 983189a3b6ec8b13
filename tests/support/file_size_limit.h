// Limits the size of files, as a full disk does.
#pragma once

#include <csignal>
#include <cstdint>

#include <sys/resource.h>

namespace lumenkit::testing {

/// While it lives, this program and those that it starts can write only the first `bytes` of a
/// file. Writing more fails.
class FileSizeLimit {
 public:
    explicit FileSizeLimit(std::uint64_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &former_);
        rlimit limit = former_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &former_);
        std::signal(SIGXFSZ, signal_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
    void (*signal_)(int);
    rlimit former_{};
};

}  // namespace lumenkit::testing
