#pragma once

namespace steward {

// Trace lines are for developers. Every part of the program writes them through Trace, and one
// sink takes them: standard error while tracing is switched on, or a test's recorder.
class TraceSink {
  public:
    virtual ~TraceSink() = default;
    virtual void TraceLine(const char* line) = 0;
};

// Installs a sink (nullptr switches tracing off) and returns the one it replaces.
TraceSink* SetTraceSink(TraceSink* sink);
// Sends trace lines to standard error, or nowhere.
void SetTraceEnabled(bool on);
// Lines longer than a few kilobytes are cut.
void Trace(const char* format, ...) __attribute__((format(printf, 1, 2)));

} // namespace steward
