#include "terminal/Wheel.h"

namespace steward {

namespace {

// The scroll bar commands of the system, by number.
constexpr int LINE_UP = 0;
constexpr int LINE_DOWN = 1;
constexpr int PAGE_UP = 2;
constexpr int PAGE_DOWN = 3;

} // namespace

int WheelScrollCommand(bool shift, int amount)
{
    if (shift)
        return amount >= 0 ? LINE_UP : LINE_DOWN;
    return amount >= 0 ? PAGE_UP : PAGE_DOWN;
}

} // namespace steward
