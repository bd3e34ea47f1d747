#pragma once

namespace steward {

// Scroll commands of a text window, with the values of the window system's scroll bar; the
// scroll bar, the Page keys and the wheel all speak them.
constexpr int SB_LINEUP = 0;
constexpr int SB_LINEDOWN = 1;
constexpr int SB_PAGEUP = 2;
constexpr int SB_PAGEDOWN = 3;
constexpr int SB_THUMBPOSITION = 4;
constexpr int SB_THUMBTRACK = 5;
constexpr int SB_TOP = 6;
constexpr int SB_BOTTOM = 7;

} // namespace steward
