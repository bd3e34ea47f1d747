#pragma once

#include "connection/GameLineSink.h"

#include <string>
#include <vector>

namespace steward::testing {

// Keeps each line as later stages see it: up to its first NUL.
class RecordingSink : public GameLineSink {
  public:
    void ProcessGameLine(const char* line) override { lines.emplace_back(line); }
    std::vector<std::string> lines;
};

} // namespace steward::testing
