#include "terminal/PromptState.h"

#include <cstring>

namespace steward {

PromptAction ApplyPromptRule(PromptState& state, const char* text)
{
    if (!state.PromptPending)
        return PromptAction::Append;
    if (std::strcmp(text, "\r\n") == 0)
        return PromptAction::Drop;
    state.PromptPending = false;
    if (state.EchoPending) {
        state.EchoPending = false;
        return PromptAction::Append;
    }
    return PromptAction::BreakThenAppend;
}

} // namespace steward
