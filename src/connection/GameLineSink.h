#pragma once

namespace steward {

// Where decoded GameLines go: the line pipeline, or a test's recorder.
class GameLineSink {
  public:
    virtual ~GameLineSink() = default;
    // The text is NUL-terminated, may hold CR, LF, ESC, BEL and ColorCodes, and is overwritten
    // by the next line, so it must be finished with before the call returns.
    virtual void ProcessGameLine(const char* line) = 0;
};

} // namespace steward
