#pragma once

#include "highlights/HighlightList.h"
#include "highlights/HighlightRule.h"
#include "highlights/PatternAutomaton.h"
#include "highlights/SoundPlayer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace steward {

// ApplyHighlights from an index of one list, with the same bytes and sounds as the plain form.
// The entries are parsed and indexed again only when the list has changed; a line is scanned
// once for all match texts, and only the entries that occur in it run the exact algorithm.
// Inserting ColorCodes never creates an occurrence of a text free of them, so the entries
// whose text holds a ColorCode byte are the only ones that run on every line.
class HighlightMatcher {
  public:
    explicit HighlightMatcher(const HighlightList& list) : list_(list) {}

    void ApplyHighlights(char* line, std::size_t capacity, bool squelch, HighlightSounds& sounds);

  private:
    void Rebuild();
    void Mark(std::size_t rule) { candidates_[rule / 64] |= std::uint64_t{1} << (rule % 64); }

    const HighlightList& list_;
    std::uint64_t version_ = 0;
    std::vector<HighlightRule> rules_;      // the run of entries in use, in slot order
    std::vector<std::uint64_t> always_;     // bit set of the rules that run on every line
    std::vector<std::uint64_t> candidates_; // bit set of the rules to run on this line
    PatternAutomaton automaton_;
};

} // namespace steward
