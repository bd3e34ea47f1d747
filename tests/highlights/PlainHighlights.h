#pragma once

#include "highlights/HighlightList.h"
#include "highlights/SoundPlayer.h"

#include <cstddef>

namespace steward::testing {

// The oracle for HighlightMatcher: runs the entries of the list one by one, in slot order, over
// the NUL-terminated line, the slow and obvious way. The matcher must give the same bytes and
// sounds.
void ApplyHighlights(const HighlightList& list, char* line, std::size_t capacity, bool squelch,
                     HighlightSounds& sounds);

} // namespace steward::testing
