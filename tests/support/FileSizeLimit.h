#pragma once

#include <csignal>
#include <sys/resource.h>

namespace steward::testing {

// The kernel refuses every byte past the limit, as a full disk would.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &saved_);
        const rlimit limit{bytes, saved_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &saved_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit saved_{};
};

} // namespace steward::testing
