#pragma once

#include "base/ColorCode.h"
#include "highlights/ClipboardHighlights.h"
#include "highlights/HighlightList.h"
#include "highlights/HighlightRule.h"
#include "highlights/SoundPlayer.h"
#include "support/TempFolder.h"

#include <string>
#include <vector>

namespace steward::testing {

// Records the sound names that the matcher starts.
class RecordedSounds : public HighlightSounds {
  public:
    void PlayHighlightSound(const char* name) override { played.emplace_back(name); }
    std::vector<std::string> played;
};

// Records the paths asked for; only the paths in existing are found.
class RecordingPlayer : public SoundPlayer {
  public:
    bool PlayFile(const char* path) override
    {
        asked.emplace_back(path);
        for (const std::string& file : existing) {
            if (file == path)
                return true;
        }
        return false;
    }
    std::vector<std::string> existing;
    std::vector<std::string> asked;
};

class FakeClipboard : public ClipboardReader {
  public:
    bool ReadText(std::string& out) override
    {
        out = text;
        return available;
    }
    bool available = true;
    std::string text;
};

inline std::string On(unsigned char color)
{
    char out[8];
    return std::string(out, AppendColorOn(out, color));
}
inline std::string Off(unsigned char color)
{
    char out[8];
    return std::string(out, AppendColorOff(out, color));
}

// Wraps text in the colour codes of color.
inline std::string Lit(unsigned char color, const std::string& text)
{
    return On(color) + text + Off(color);
}

struct Entry {
    std::string text;
    unsigned char color = HIGHLIGHT_DEFAULT_COLOR;
};

inline void Fill(HighlightList& list, const std::vector<Entry>& entries)
{
    list.Clear();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        list.SetColor(i, entries[i].color);
        list.SetText(i, entries[i].text.c_str());
    }
}

// The oracle for HighlightMatcher: runs the entries of the list one by one, in slot order, over
// the NUL-terminated line, the slow and obvious way. The matcher must give the same bytes and
// sounds.
inline void ApplyHighlights(const HighlightList& list, char* line, std::size_t capacity,
                            bool squelch, HighlightSounds& sounds)
{
    HighlightLine work;
    if (!OpenHighlightLine(line, capacity, work))
        return;
    for (std::size_t slot = 0; slot < HIGHLIGHT_SLOTS; ++slot) {
        HighlightRule rule;
        if (!ParseHighlightRule(list.Text(slot), list.Color(slot), rule) ||
            !ApplyHighlightRule(rule, work, squelch, sounds))
            return;
    }
}

} // namespace steward::testing
