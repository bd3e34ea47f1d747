#pragma once

#include <cstdio>
#include <memory>

namespace steward {

// Closes its file when it goes out of scope.
struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

} // namespace steward
