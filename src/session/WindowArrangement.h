#pragma once

#include "session/Geometry.h"
#include "session/WindowTable.h"

#include <array>
#include <cstddef>

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
    // The inner size of the MdiClient.
    virtual Point ClientSize() const = 0;
    virtual void FocusCommandLine() = 0;
};

// The automatic arrangement: the first open window of the table takes the lower three
// quarters, the others share the top quarter side by side; alone, it is maximised.
// With force false it does nothing unless autoArrange is on.
void ArrangeWindows(ChildWindowHost& host, bool force, bool autoArrange);

// Where a new child window appears before a stored position is applied.
Rect ChildCreationRect(bool autoArrange, int openCount);

// The letters of "Open Windows" that a profile stores: one per open window, in table order,
// upper case for the active one. Room for the three letters and a NUL.
constexpr std::size_t OPEN_WINDOWS_SIZE = 32;
void OpenWindowsLetters(const std::array<bool, WINDOW_ROWS>& open, int activeRow,
                        char (&out)[OPEN_WINDOWS_SIZE]);

// The rows that a stored "Open Windows" opens, in order: lower-case letters at once, then the
// last upper-case one (which so becomes the active window), then the Game window if none of
// them was it. A row is opened once, however often its letter stands there.
constexpr const char NO_OPEN_WINDOWS[] = "{none}";
constexpr const char DEFAULT_OPEN_WINDOWS[] = "tG";
struct RestorePlan {
    std::array<WindowRow, WINDOW_ROWS> Rows{};
    int Count = 0;
};
// A profile without the value, which reads as NO_OPEN_WINDOWS, opens DEFAULT_OPEN_WINDOWS.
RestorePlan PlanRestore(const char* letters);

} // namespace steward
