#include "terminal/Wheel.h"

#include <gtest/gtest.h>

namespace steward {
namespace {

TEST(WheelScrollCommand, PagesWithoutShiftLinesWithIt)
{
    const struct {
        bool shift;
        int amount;
        int command;
    } cases[] = {
        {false, 120, 2}, {false, 0, 2}, {false, -120, 3},
        {true, 120, 0},  {true, 0, 0},  {true, -1, 1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(WheelScrollCommand(c.shift, c.amount), c.command) << c.shift << " " << c.amount;
}

} // namespace
} // namespace steward
