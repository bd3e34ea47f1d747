#pragma once

#include "config/StewardOptions.h"

#include <array>

namespace steward {

// The three child windows; a window's rank here decides its place in ArrangeWindows.
enum WindowRow : int {
    GAME_ROW = 0,
    THOUGHT_ROW = 1,
    ARRIVAL_ROW = 2,
};

constexpr int WINDOW_ROWS = 3;

struct WindowTableRow {
    WindowRow Row;
    // Title of the child window and name of its section in the profile.
    const char* Name;
    char Letter;
    // The option that can give the window a longer scrollback.
    StewardOption Scrollback;
};

constexpr std::array<WindowTableRow, WINDOW_ROWS> WindowTable = {{
    {GAME_ROW, "Game Window", 'g', GAME_SCROLLBACK_KB},
    {THOUGHT_ROW, "Thought Window", 't', THOUGHT_SCROLLBACK_KB},
    {ARRIVAL_ROW, "Arrival Window", 'a', ARRIVAL_SCROLLBACK_KB},
}};

} // namespace steward
