#pragma once

class QWidget;

namespace steward {

// A message box and the bell, which any part of the program may need; tests give a recording
// double, so that no box waits for a click.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    // A message box; a null title shows none.
    virtual void ShowMessage(QWidget* parent, const char* text, const char* title) = 0;
    virtual void Beep() = 0;
};

} // namespace steward
