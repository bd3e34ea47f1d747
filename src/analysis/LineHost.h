#pragma once

#include <cstddef>

namespace steward {

class AnsiWindow;

// What the line analysis needs of the rest of the program besides the panel and the queue:
// the append operation of a text window and the two highlight lists.
class LineHost {
  public:
    virtual ~LineHost() = default;

    // AWM_APPENDTEXT with wParam 0.
    virtual void AppendText(AnsiWindow& window, const char* text) = 0;
    // ApplyHighlights with StringHighlights, then with NameHighlights, both with SquelchSounds;
    // the text may grow in place up to capacity.
    virtual void ApplyHighlights(char* text, std::size_t capacity) = 0;
    // IsNameListed on NameHighlights.
    virtual bool IsNameListed(const char* name) = 0;
};

// The local time of day, for the arrival texts.
struct TimeOfDay {
    int Hour = 0;
    int Minute = 0;
};

class LocalClock {
  public:
    virtual ~LocalClock() = default;
    virtual TimeOfDay Now() const = 0;
};

} // namespace steward
