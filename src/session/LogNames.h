#pragma once

#include <string>

namespace steward {

// Numbers tried for the logs of one day.
constexpr int LAST_LOG_NUMBER = 9998;

struct LocalDate {
    int Year = 0;
    int Month = 0;
    int Day = 0;
};

class FileProbe {
  public:
    virtual ~FileProbe() = default;
    // True when the file can be opened for reading.
    virtual bool Exists(const char* path) const = 0;
};

// "<folder>/Thornmere Log M-DD-YYYY (n).Txt" with the first n from 1 that names no file yet,
// stopping at LAST_LOG_NUMBER. Like every other path, it is as long as the folder needs.
std::string DatedLogName(const std::string& folder, const LocalDate& date, const FileProbe& files);

} // namespace steward
