#pragma once

#include <cstddef>

namespace steward {

class AnsiWindow;

// What the line analysis needs of the rest of the program besides the panel and the queue:
// the append operation of a text window, the session log, and the two highlight lists.
class LineHost {
  public:
    virtual ~LineHost() = default;

    // AWM_APPENDTEXT with wParam 0.
    virtual void AppendText(AnsiWindow& window, const char* text) = 0;
    // Adds a text to the session log.
    virtual void WriteSessionLog(const char* text) = 0;
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

// The options the analysis reads, with their defaults; the frame keeps them equal to Settings.
struct LineOptions {
    bool LocalEcho = true;
    bool IgnoreYells = false;
    bool CompressThoughtMessages = false;
    bool OnlyListedArrivals = false;
    bool ShowStatusPrompt = false;
    unsigned char SaysColor = 10;
    unsigned char WhispersColor = 11;
    unsigned char CompressedThoughtColor = 40;
};

} // namespace steward
