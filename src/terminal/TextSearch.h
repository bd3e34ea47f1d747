#pragma once

#include "terminal/TextBuffer.h"

#include <cstdint>
#include <string_view>

namespace steward {

enum class SearchDirection { Older, Newer };

// A match as distances from the buffer's HeadPos, End behind its last byte: the form a
// selection takes.
struct TextHit {
    std::int32_t Start = -1;
    std::int32_t End = -1;
    bool Found() const { return Start >= 0; }
};

// Looks for needle in the buffer's text, in place. Older gives the last match that begins
// before from, Newer the first that begins at or after it. Colour codes inside the text never
// stop a match, a soft line end matches a blank, and a hard line end matches nothing. Without
// matchCase, A to Z and a to z are alike.
TextHit FindText(const TextBuffer& buffer, std::string_view needle, std::int32_t from,
                 SearchDirection direction, bool matchCase);

} // namespace steward
