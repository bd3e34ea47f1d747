#pragma once

#include "highlights/HighlightList.h"

#include <cstddef>
#include <string>

namespace steward {

// The platform's clipboard, as the Copy Special commands read it.
class ClipboardReader {
  public:
    virtual ~ClipboardReader() = default;
    // The clipboard's text as bytes; false when it cannot be opened or holds no text.
    virtual bool ReadText(std::string& text) = 0;
};

// Of each clipboard line at most this many bytes are taken.
constexpr std::size_t CLIPBOARD_LINE_MAX = 250;

// Adds every line of the clipboard's text that is not empty to the list, with colour 14 and no
// markers of its own, for the two Copy Special commands.
void AddFromClipboard(HighlightList& list, ClipboardReader& clipboard);

} // namespace steward
