#pragma once

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
};

constexpr std::array<WindowTableRow, WINDOW_ROWS> WindowTable = {{
    {GAME_ROW, "Game Window", 'g'},
    {THOUGHT_ROW, "Thought Window", 't'},
    {ARRIVAL_ROW, "Arrival Window", 'a'},
}};

} // namespace steward
