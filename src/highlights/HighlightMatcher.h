#pragma once

#include "highlights/HighlightList.h"
#include "highlights/HighlightRule.h"
#include "highlights/PatternAutomaton.h"
#include "highlights/SoundPlayer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace steward {

// ApplyHighlights from an index of one list, or of two lists run one after the other, with the
// same bytes and sounds as running the entries one by one in slot order. The entries are parsed and
// indexed again only when a list has changed; a line is scanned once for the match texts of all
// lists, and only the entries that occur in it run the exact algorithm. Inserting ColorCodes never
// creates an occurrence of a text free of them, so the scan of the line as it arrives serves every
// list, and the entries whose text holds a ColorCode byte are the only ones run on every line.
class HighlightMatcher {
  public:
    explicit HighlightMatcher(const HighlightList& list);
    HighlightMatcher(const HighlightList& first, const HighlightList& second);

    void ApplyHighlights(char* line, std::size_t capacity, bool squelch, HighlightSounds& sounds);

  private:
    static constexpr std::size_t MAX_LISTS = 2;

    struct Source {
        const HighlightList* List = nullptr;
        std::uint64_t Version = 0;
        std::size_t RunEnd = 0; // one behind this list's last rule in rules_
    };

    bool Stale() const;
    void Rebuild();
    void Mark(std::size_t rule) { candidates_[rule / 64] |= std::uint64_t{1} << (rule % 64); }
    std::size_t RunEndOf(std::size_t rule) const;

    std::array<Source, MAX_LISTS> sources_{};
    std::size_t sourceCount_ = 0;
    std::vector<HighlightRule> rules_;      // the runs of entries in use, list by list
    std::vector<std::uint64_t> always_;     // bit set of the rules that run on every line
    std::vector<std::uint64_t> candidates_; // bit set of the rules to run on this line
    PatternAutomaton automaton_;
};

} // namespace steward
