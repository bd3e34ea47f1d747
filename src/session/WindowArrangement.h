#pragma once

#include "base/Geometry.h"
#include "session/WindowTable.h"

#include <array>
#include <string>

namespace steward {

// What the arrangement needs of the MDI container, row by row of the WindowTable.
class ChildWindowHost {
  public:
    virtual ~ChildWindowHost() = default;

    virtual bool Exists(WindowRow row) const = 0;
    virtual bool IsMinimised(WindowRow row) const = 0;
    virtual bool IsMaximised(WindowRow row) const = 0;
    virtual void Restore(WindowRow row) = 0;
    virtual void Maximise(WindowRow row) = 0;
    virtual void Move(WindowRow row, const Rect& place) = 0;
    virtual void Activate(WindowRow row) = 0;
    // The inner area of the MdiClient; its corner is 0, 0.
    virtual Rect ClientArea() const = 0;
    virtual void FocusCommandLine() = 0;
};

// The automatic arrangement: the first open window of the table takes the lower three
// quarters, the others share the top quarter side by side; alone, it is maximised.
// With force false it does nothing unless autoArrange is on.
void ArrangeWindows(ChildWindowHost& host, bool force, bool autoArrange);

// Where a new child window appears before a stored position is applied.
Rect ChildCreationRect(bool autoArrange, int openCount);

// The letters of "Open Windows" that a profile stores: one per open window, in table order,
// upper case for the active one.
std::string OpenWindowsLetters(const std::array<bool, WINDOW_ROWS>& open, int activeRow);

// The rows that a stored "Open Windows" opens, in order: lower-case letters at once, then the
// last upper-case one (which so becomes the active window), then the Game window if none of
// them was it. A row is opened once, however often its letter stands there.
struct RestorePlan {
    std::array<WindowRow, WINDOW_ROWS> Rows{};
    int Count = 0;
};
RestorePlan PlanRestore(const char* letters);

} // namespace steward
