#include "base/FrameGate.h"

#include <gtest/gtest.h>

namespace steward {
namespace {

// A request (or, with `fired`, the end of a wait) at a time, and the gate's answer.
struct Step {
    std::int64_t nowMs;
    bool fired;
    std::int64_t answer;
};

TEST(FrameGate, DrawsAtOnceAfterAQuietFrameAndOnceAtTheEndOfABusyOne)
{
    const Step steps[] = {
        {100, false, 0},  // the first request draws
        {105, false, 11}, // within the frame: wait for its end
        {110, false, -1}, // joins the waiting draw
        {116, true, 0},   // the wait ends and draws
        {120, false, 12}, // the frame of that draw
        {132, true, 0},   //
        {200, false, 0},  // after a quiet frame at once again
        {216, false, 0},  // exactly one frame later
    };
    FrameGate gate(16);
    for (const Step& step : steps) {
        if (step.fired)
            gate.Drawn(step.nowMs);
        else
            EXPECT_EQ(gate.Request(step.nowMs), step.answer) << "at " << step.nowMs;
    }
}

} // namespace
} // namespace steward
