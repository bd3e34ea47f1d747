#include "PlainHighlights.h"

#include "highlights/HighlightRule.h"

namespace steward::testing {

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

} // namespace steward::testing
