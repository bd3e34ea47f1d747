#include "highlights/HighlightMatch.h"

#include "highlights/HighlightRule.h"

#include <cstring>

namespace steward {

void ApplyHighlights(const HighlightList& list, char* line, std::size_t capacity, bool squelch,
                     HighlightSounds& sounds)
{
    HighlightLine work;
    if (!OpenHighlightLine(line, capacity, work))
        return;
    for (std::size_t slot = 0; slot < HIGHLIGHT_SLOTS; ++slot) {
        HighlightRule rule;
        if (!ParseHighlightRule(list.Text(slot), list.Color(slot), rule))
            return;
        if (!ApplyHighlightRule(rule, work, squelch, sounds))
            return;
    }
}

bool IsNameListed(const HighlightList& list, const char* name)
{
    const std::size_t length = std::strlen(name);
    for (std::size_t slot = 0; slot < HIGHLIGHT_SLOTS; ++slot) {
        HighlightRule rule;
        if (!ParseHighlightRule(list.Text(slot), list.Color(slot), rule))
            return false;
        for (const char* hit = std::strstr(name, rule.Match); hit;
             hit = std::strstr(hit + 1, rule.Match)) {
            const std::size_t start = static_cast<std::size_t>(hit - name);
            if (!rule.WholeWord ||
                StandsOnWordBoundaries(name, length, start, start + rule.MatchLength))
                return true;
        }
    }
    return false;
}

} // namespace steward
