#pragma once

class QWidget;

namespace steward {

// Moves the window, at its size, to the middle of its screen; the task bar is not looked at, and
// a window larger than the screen gets negative coordinates. The window is laid out first, so
// a dialog can be centred before it is shown.
void CenterWindow(QWidget& window);

} // namespace steward
