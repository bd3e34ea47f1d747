#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace steward {

// A multi-pattern automaton over texts folded to ASCII lower case: one pass over a line tells
// which patterns occur in it, in any case. Built once; a scan allocates nothing.
class PatternAutomaton {
  public:
    // Beyond this many table cells the automaton is not built and Usable() is false.
    static constexpr std::size_t MAX_CELLS = std::size_t{1} << 24;

    // Builds over the given patterns; pattern i reports as i. Empty patterns never report.
    void Build(const std::vector<const char*>& patterns);
    bool Usable() const { return usable_; }

    // Calls found(i) at least once for every pattern i that occurs in the first length bytes of
    // text, each at most once per scan.
    template <typename Found> void Scan(const char* text, std::size_t length, Found&& found);

  private:
    static constexpr std::uint32_t NONE = UINT32_MAX;

    std::uint32_t AddState();
    void Insert(const char* pattern, std::uint32_t index);
    void Link();
    void Renumber();

    bool usable_ = false;
    std::size_t classes_ = 1;
    std::uint8_t classOf_[256] = {};
    std::vector<std::uint32_t> next_;     // states x classes, the full transition table
    std::vector<std::uint32_t> fail_;     // longest proper suffix that is a state
    std::vector<std::uint32_t> output_;   // nearest state on the suffix chain that ends a pattern
    std::vector<std::uint32_t> firstEnd_; // first pattern ending at a state, or NONE
    std::vector<std::uint32_t> nextSame_; // next pattern ending at the same state, or NONE
    std::vector<std::uint32_t> seen_;     // scan stamp of the last visit of an output state
    std::uint32_t stamp_ = 0;
    // After the build a table cell holds the start of the next state's row, and the states
    // where a pattern ends (in them or on their suffix chain) have the rows from here on.
    std::uint32_t firstEndingRow_ = 0;
};

template <typename Found>
void PatternAutomaton::Scan(const char* text, std::size_t length, Found&& found)
{
    if (++stamp_ == 0) {
        std::fill(seen_.begin(), seen_.end(), 0);
        stamp_ = 1;
    }
    const std::uint32_t* table = next_.data();
    std::uint32_t row = 0;
    for (std::size_t i = 0; i < length; ++i) {
        row = table[row + classOf_[static_cast<unsigned char>(text[i])]];
        if (row < firstEndingRow_)
            continue;
        for (std::uint32_t out = output_[row / classes_]; out != NONE && seen_[out] != stamp_;
             out = output_[fail_[out]]) {
            seen_[out] = stamp_;
            for (std::uint32_t p = firstEnd_[out]; p != NONE; p = nextSame_[p])
                found(p);
        }
    }
}

} // namespace steward
