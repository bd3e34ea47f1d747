#pragma once

#include "base/Trace.h"

#include <string>
#include <vector>

namespace steward {

// Takes the program's trace lines while it lives, then gives the previous sink back.
class TraceRecorder : public TraceSink {
  public:
    TraceRecorder() : previous_(SetTraceSink(this)) {}
    ~TraceRecorder() override { SetTraceSink(previous_); }
    TraceRecorder(const TraceRecorder&) = delete;
    TraceRecorder& operator=(const TraceRecorder&) = delete;

    void TraceLine(const char* line) override { Lines.push_back(line); }

    std::vector<std::string> Lines;

  private:
    TraceSink* previous_;
};

} // namespace steward
