#pragma once

#include "base/FrameCommand.h"
#include "highlights/ClipboardHighlights.h"
#include "highlights/HighlightList.h"
#include "highlights/HighlightMatcher.h"
#include "highlights/SoundPlayer.h"

#include <cstddef>
#include <string>

namespace steward {

// Receives the debug trace lines of loading and saving, which the user never sees.

// The two lists of the session, with the one index that the matcher keeps over both.
class HighlightStore {
  public:
    HighlightStore() = default;
    HighlightStore(const HighlightStore&) = delete;
    HighlightStore& operator=(const HighlightStore&) = delete;

    HighlightList StringHighlights;
    HighlightList NameHighlights;

    // The strings first, then the names on what the strings produced.
    void ApplyHighlights(char* line, std::size_t capacity, bool squelch, HighlightSounds& sounds);
    bool IsNameListed(const char* name) const;

    // Reads StringHighlights from the first file and NameHighlights from the second, telling
    // trace the debug line of each file.
    void Load(const std::string& highlightsPath, const std::string& namesPath);
    [[nodiscard]] bool Save(const std::string& highlightsPath, const std::string& namesPath) const;

    // Copy Special: the clipboard's lines go to the list of the command; false for another one.
    bool CopyToHighlights(int command, ClipboardReader& clipboard);

  private:
    HighlightMatcher matcher_{StringHighlights, NameHighlights};
};

} // namespace steward
