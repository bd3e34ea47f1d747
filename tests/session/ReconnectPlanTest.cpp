#include "session/ReconnectPlan.h"

#include <gtest/gtest.h>

#include <vector>

namespace steward {
namespace {

enum Event { DROP_ON, DROP_OFF, FAIL, QUIT, CONNECTED, BY_HAND };

int Apply(ReconnectPlan& plan, Event event)
{
    switch (event) {
    case DROP_ON:
        return plan.Dropped(true);
    case DROP_OFF:
        return plan.Dropped(false);
    case FAIL:
        return plan.TryFailed();
    case QUIT:
        plan.PlayerQuit();
        break;
    case CONNECTED:
        plan.Connected();
        break;
    case BY_HAND:
        plan.Stop();
        break;
    }
    return 0;
}

TEST(ReconnectPlan, WaitsDoubleUpToAMinuteForTenTriesAndStopWhenThePlayerActs)
{
    const struct {
        const char* name;
        std::vector<Event> events;
        // The wait that each event gives, in seconds; 0 for none.
        std::vector<int> waits;
        bool waitingAtEnd;
    } cases[] = {
        {"the option off tries nothing", {DROP_OFF}, {0}, false},
        {"ten tries, then no more",
         {DROP_ON, FAIL, FAIL, FAIL, FAIL, FAIL, FAIL, FAIL, FAIL, FAIL, FAIL},
         {2, 4, 8, 16, 32, 60, 60, 60, 60, 60, 0},
         false},
        {"the player's quit is no drop to retry", {QUIT, DROP_ON}, {0, 0}, false},
        {"a quit while waiting ends the waiting", {DROP_ON, QUIT, FAIL}, {2, 0, 0}, false},
        {"a connect by hand ends the waiting", {DROP_ON, FAIL, BY_HAND, FAIL}, {2, 4, 0, 0}, false},
        {"a new connection forgets the quit", {QUIT, CONNECTED, DROP_ON}, {0, 0, 2}, true},
        {"a new drop starts again from the first wait",
         {DROP_ON, FAIL, FAIL, CONNECTED, DROP_ON},
         {2, 4, 8, 0, 2},
         true},
    };
    for (const auto& c : cases) {
        ReconnectPlan plan;
        std::vector<int> waits;
        for (Event event : c.events)
            waits.push_back(Apply(plan, event));
        EXPECT_EQ(waits, c.waits) << c.name;
        EXPECT_EQ(plan.Waiting(), c.waitingAtEnd) << c.name;
    }
}

TEST(ReconnectPlan, QuitIsTheFirstWordInAnyCase)
{
    const struct {
        const char* text;
        bool quit;
    } cases[] = {{"quit", true},      {"  QUIT", true},    {"Quit now", true},
                 {"quitting", false}, {"say quit", false}, {"qui", false}};
    for (const auto& c : cases)
        EXPECT_EQ(IsQuitCommand(c.text), c.quit) << c.text;
}

} // namespace
} // namespace steward
