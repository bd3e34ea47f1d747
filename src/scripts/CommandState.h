#pragma once

#include "scripts/Rewrites.h"

#include <cstddef>

namespace steward {

constexpr std::size_t SCRIPT_NAME_SIZE = 256;
constexpr std::size_t SCRIPT_PARAMETERS_SIZE = 256;

// The session's fields that the command sender shares with the frame and the script runner.
struct CommandState {
    char DragTarget[DRAG_TARGET_SIZE] = {};
    // The script that MM_RUN_SCRIPT opens, and the parameters of the last .Cmd run.
    char ScriptName[SCRIPT_NAME_SIZE] = {};
    char ScriptParameters[SCRIPT_PARAMETERS_SIZE] = {};
};

} // namespace steward
