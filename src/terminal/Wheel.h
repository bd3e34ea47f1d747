#pragma once

namespace steward {

// A wheel turn scrolls the active child by pages, or by lines while Shift is held; the result
// is the scroll bar command (SB_) for the child.
int WheelScrollCommand(bool shift, int amount);

} // namespace steward
