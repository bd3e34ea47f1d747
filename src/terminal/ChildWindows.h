#pragma once

namespace steward {

class AnsiWindow;

// The three text windows as core code reaches them. GameWindow lives as long as the frame;
// the Thought and Arrival windows are null while the player has them closed.
struct ChildWindows {
    AnsiWindow* GameWindow = nullptr;
    AnsiWindow* ThoughtWindow = nullptr;
    AnsiWindow* ArrivalWindow = nullptr;
};

} // namespace steward
