#pragma once

#include "highlights/HighlightList.h"
#include "highlights/SoundPlayer.h"

#include <cstddef>

namespace steward {

// Runs the entries of the list, in slot order, over the NUL-terminated line in a buffer of
// capacity bytes, writing ColorCodes around each hit and starting the sounds of the hits
// unless squelch (SquelchSounds) is on. This is the plain form that reads every entry anew;
// HighlightMatcher gives the same bytes and sounds from an index.
void ApplyHighlights(const HighlightList& list, char* line, std::size_t capacity, bool squelch,
                     HighlightSounds& sounds);

// True when an entry of the list occurs in name, case-sensitively, on word boundaries unless
// the entry says "*".
bool IsNameListed(const HighlightList& list, const char* name);

} // namespace steward
