#include "highlights/HighlightMatcher.h"

#include "connection/ColorCode.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace steward {
namespace {

bool HoldsColorCode(const HighlightRule& rule)
{
    return std::any_of(rule.Match, rule.Match + rule.MatchLength,
                       [](char c) { return IsColorCode(static_cast<unsigned char>(c)); });
}

} // namespace

void HighlightMatcher::Rebuild()
{
    version_ = list_.Version();
    rules_.clear();
    for (std::size_t slot = 0; slot < HIGHLIGHT_SLOTS; ++slot) {
        HighlightRule rule;
        if (!ParseHighlightRule(list_.Text(slot), list_.Color(slot), rule))
            break;
        rules_.push_back(rule);
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

void HighlightMatcher::ApplyHighlights(char* line, std::size_t capacity, bool squelch,
                                       HighlightSounds& sounds)
{
    if (version_ != list_.Version())
        Rebuild();
    if (rules_.empty())
        return;
    const void* end = std::memchr(line, '\0', capacity);
    if (!end)
        return;
    HighlightLine work{line, static_cast<std::size_t>(static_cast<const char*>(end) - line),
                       capacity};
    std::copy(always_.begin(), always_.end(), candidates_.begin());
    if (automaton_.Usable())
        automaton_.Scan(line, work.Length, [this](std::size_t rule) { Mark(rule); });
    for (std::size_t word = 0; word < candidates_.size(); ++word) {
        for (std::uint64_t bits = candidates_[word]; bits != 0; bits &= bits - 1) {
            const std::size_t rule = word * 64 + static_cast<std::size_t>(std::countr_zero(bits));
            if (!ApplyHighlightRule(rules_[rule], work, squelch, sounds))
                return;
        }
    }
}

} // namespace steward
