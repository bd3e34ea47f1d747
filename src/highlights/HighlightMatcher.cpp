#include "highlights/HighlightMatcher.h"

#include "base/ColorCode.h"

#include <algorithm>
#include <bit>

namespace steward {
namespace {

bool HoldsColorCode(const HighlightRule& rule)
{
    return std::any_of(rule.Match, rule.Match + rule.MatchLength,
                       [](char c) { return IsColorCode(static_cast<unsigned char>(c)); });
}

} // namespace

HighlightMatcher::HighlightMatcher(const HighlightList& list) : sourceCount_(1)
{
    sources_[0].List = &list;
}

HighlightMatcher::HighlightMatcher(const HighlightList& first, const HighlightList& second)
    : sourceCount_(2)
{
    sources_[0].List = &first;
    sources_[1].List = &second;
}

bool HighlightMatcher::Stale() const
{
    for (std::size_t i = 0; i < sourceCount_; ++i) {
        if (sources_[i].Version != sources_[i].List->Version())
            return true;
    }
    return false;
}

void HighlightMatcher::Rebuild()
{
    rules_.clear();
    for (std::size_t i = 0; i < sourceCount_; ++i) {
        Source& source = sources_[i];
        source.Version = source.List->Version();
        for (std::size_t slot = 0; slot < HIGHLIGHT_SLOTS; ++slot) {
            HighlightRule rule;
            if (!ParseHighlightRule(source.List->Text(slot), source.List->Color(slot), rule))
                break;
            rules_.push_back(rule);
        }
        source.RunEnd = rules_.size();
    }
    const std::size_t words = (rules_.size() + 63) / 64;
    always_.assign(words, 0);
    candidates_.assign(words, 0);
    std::vector<const char*> patterns;
    for (const HighlightRule& rule : rules_)
        patterns.push_back(HoldsColorCode(rule) ? "" : rule.Match);
    automaton_.Build(patterns);
    for (std::size_t i = 0; i < rules_.size(); ++i) {
        if (*patterns[i] == '\0' || !automaton_.Usable())
            always_[i / 64] |= std::uint64_t{1} << (i % 64);
    }
}

std::size_t HighlightMatcher::RunEndOf(std::size_t rule) const
{
    for (std::size_t i = 0; i < sourceCount_; ++i) {
        if (rule < sources_[i].RunEnd)
            return sources_[i].RunEnd;
    }
    return rules_.size();
}

void HighlightMatcher::ApplyHighlights(char* line, std::size_t capacity, bool squelch,
                                       HighlightSounds& sounds)
{
    if (Stale())
        Rebuild();
    if (rules_.empty())
        return;
    HighlightLine work;
    if (!OpenHighlightLine(line, capacity, work))
        return;
    std::copy(always_.begin(), always_.end(), candidates_.begin());
    if (automaton_.Usable())
        automaton_.Scan(line, work.Length, [this](std::size_t rule) { Mark(rule); });
    // A full buffer ends the run of the list it happens in; the next list still runs.
    std::size_t skipUntil = 0;
    for (std::size_t word = 0; word < candidates_.size(); ++word) {
        for (std::uint64_t bits = candidates_[word]; bits != 0; bits &= bits - 1) {
            const std::size_t rule = word * 64 + static_cast<std::size_t>(std::countr_zero(bits));
            if (rule >= skipUntil && !ApplyHighlightRule(rules_[rule], work, squelch, sounds))
                skipUntil = RunEndOf(rule);
        }
    }
}

} // namespace steward
