#pragma once

#include <cstddef>

namespace steward {

// What a running script waits for; the line analysis releases each wait.
enum ScriptWaitKind : int {
    WAIT_NONE = 0,
    WAIT_TEXT = 1,
    WAIT_ROOM = 2,
    WAIT_PROMPT = 8,
};

constexpr std::size_t WAIT_TEXT_SIZE = 256;

struct ScriptWaitState {
    ScriptWaitKind ScriptWait = WAIT_NONE;
    char WaitText[WAIT_TEXT_SIZE] = {};
};

} // namespace steward
