#pragma once

namespace steward {

// Frame commands keep their numbers: menus, tool buttons and macro words share them and
// all of them are served by the frame's one switchboard.
enum FrameCommand : int {
    CMD_RESET_STEWARD_MODE = 844,
};

} // namespace steward
