#pragma once

namespace steward {

// Whether the Game window ends with a prompt that has no line end, and whether a command
// was sent since the last text reached it. The line pipeline sets them; the Game window's
// append rule reads and clears them.
struct PromptState {
    bool PromptPending = false;
    bool EchoPending = false;
};

// What the Game window does with a text it is asked to append.
enum class PromptAction {
    Append,         // append the text as it is
    Drop,           // a bare line end behind a prompt: show nothing
    BreakThenAppend // start a new row with "\n", then append the text
};

// The Game window's append rule: decides the action and updates the two flags.
PromptAction ApplyPromptRule(PromptState& state, const char* text);

} // namespace steward
