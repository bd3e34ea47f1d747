#pragma once

#include "highlights/SoundPlayer.h"

#include <cstddef>

namespace steward {

// The working values of one entry, read from its packed text; the pointers lead into it.
struct HighlightRule {
    const char* Sound = nullptr;
    std::size_t SoundLength = 0;
    bool EntireLine = false;
    bool WholeWord = true;
    bool CaseSensitive = false;
    const char* Match = nullptr;
    std::size_t MatchLength = 0;
    unsigned char Color = 0;
};

// Reads the markers "{sound}", "$", "*", "@" in that order; false for a malformed entry (an
// unclosed "{" or no match text), which ends the run through its list.
bool ParseHighlightRule(const char* text, unsigned char color, HighlightRule& rule);

// A NUL-terminated line of Length bytes in a buffer of Capacity bytes; colour codes never
// bring a double quote, so Quoted holds for the whole run.
struct HighlightLine {
    char* Text = nullptr;
    std::size_t Length = 0;
    std::size_t Capacity = 0;
    bool Quoted = false;
};

// False when the buffer holds no NUL, so that the line must be left alone.
bool OpenHighlightLine(char* text, std::size_t capacity, HighlightLine& line);

// Colours every hit of one rule in the line and starts its sounds; false when a hit's colour
// codes no longer fit in the buffer, which ends the work on this line.
bool ApplyHighlightRule(const HighlightRule& rule, HighlightLine& line, bool squelch,
                        HighlightSounds& sounds);

// True when the stretch [start, end) of text (length bytes) stands on word boundaries.
bool StandsOnWordBoundaries(const char* text, std::size_t length, std::size_t start,
                            std::size_t end);

} // namespace steward
