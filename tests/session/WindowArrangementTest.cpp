#include "session/WindowArrangement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

class RecordingChildren : public ChildWindowHost {
  public:
    bool Exists(WindowRow row) const override { return open[row]; }
    bool IsMinimised(WindowRow row) const override { return minimised[row]; }
    bool IsMaximised(WindowRow row) const override { return maximised[row]; }
    void Restore(WindowRow row) override
    {
        minimised[row] = maximised[row] = false;
        calls.push_back("restore " + std::to_string(row));
    }
    void Maximise(WindowRow row) override
    {
        maximised[row] = true;
        calls.push_back("maximise " + std::to_string(row));
    }
    void Move(WindowRow row, const Rect& place) override { moves.push_back({row, place}); }
    void Activate(WindowRow row) override { calls.push_back("activate " + std::to_string(row)); }
    Rect ClientArea() const override { return RectAt(0, 0, 800, 402); }
    void FocusCommandLine() override { calls.push_back("focus"); }

    struct MoveCall {
        WindowRow row;
        Rect place;
        bool operator==(const MoveCall&) const = default;
    };
    bool open[WINDOW_ROWS] = {};
    bool minimised[WINDOW_ROWS] = {};
    bool maximised[WINDOW_ROWS] = {};
    std::vector<std::string> calls;
    std::vector<MoveCall> moves;
};

// The game takes the lower three quarters and the other windows share the top band; arranging
// is off unless turned on or forced.
TEST(ArrangeWindows, PlacesTheOpenWindowsWhenOnOrForced)
{
    using M = RecordingChildren::MoveCall;
    using Calls = std::vector<std::string>;
    const M thoughtTop{THOUGHT_ROW, RectAt(0, 0, 800, 100)};
    const M gameBelow{GAME_ROW, RectAt(0, 100, 800, 302)};
    const Calls gameAlone{"maximise 0", "activate 0", "focus"};
    // sized: the game maximised and the thoughts minimised beforehand.
    // clang-format off
    const struct { const char* name; std::vector<WindowRow> open; bool sized, forced, on;
                   std::vector<M> moves; Calls calls; } cases[] = {
        {"the game alone is maximised", {GAME_ROW}, false, false, true, {}, gameAlone},
        {"two windows", {GAME_ROW, THOUGHT_ROW}, false, false, true, {thoughtTop, gameBelow},
         {"activate 0", "focus"}},
        {"three split the top band in halves", {GAME_ROW, THOUGHT_ROW, ARRIVAL_ROW}, false, false,
         true, {{THOUGHT_ROW, RectAt(0, 0, 400, 100)}, {ARRIVAL_ROW, RectAt(400, 0, 400, 100)},
                gameBelow}, {"activate 0", "focus"}},
        {"without the game the first open row takes the lower part", {THOUGHT_ROW, ARRIVAL_ROW},
         false, false, true,
         {{ARRIVAL_ROW, RectAt(0, 0, 800, 100)}, {THOUGHT_ROW, RectAt(0, 100, 800, 302)}},
         {"focus"}},
        {"minimised and maximised windows are restored first", {GAME_ROW, THOUGHT_ROW}, true,
         false, true, {thoughtTop, gameBelow}, {"restore 0", "restore 1", "activate 0", "focus"}},
        {"off", {GAME_ROW}, false, false, false, {}, {}},
        {"off but forced", {GAME_ROW}, false, true, false, {}, gameAlone},
        {"no window, no work", {}, false, true, true, {}, {}},
    };
    // clang-format on
    for (const auto& c : cases) {
        RecordingChildren host;
        for (WindowRow row : c.open)
            host.open[row] = true;
        host.maximised[GAME_ROW] = host.minimised[THOUGHT_ROW] = c.sized;
        ArrangeWindows(host, c.forced, c.on);
        EXPECT_EQ(host.moves, c.moves) << c.name;
        EXPECT_EQ(host.calls, c.calls) << c.name;
    }
}

TEST(ChildCreationRect, StepsDownWhenNotArranged)
{
    EXPECT_EQ(ChildCreationRect(true, 2), RectAt(1, 1, 100, 100));
    EXPECT_EQ(ChildCreationRect(false, 0), RectAt(0, 0, 400, 200));
    EXPECT_EQ(ChildCreationRect(false, 2), RectAt(50, 50, 400, 200));
}

std::vector<WindowRow> Plan(const char* letters)
{
    RestorePlan plan = PlanRestore(letters);
    return {plan.Rows.begin(), plan.Rows.begin() + plan.Count};
}

TEST(PlanRestore, OpensLowerCaseAtOnceAndTheLastUpperCaseLast)
{
    using R = std::vector<WindowRow>;
    EXPECT_EQ(Plan("tG"), (R{THOUGHT_ROW, GAME_ROW}));
    EXPECT_EQ(Plan("TGA"), (R{ARRIVAL_ROW, GAME_ROW}));
    EXPECT_EQ(Plan(""), (R{GAME_ROW}));
    EXPECT_EQ(Plan("xyz"), (R{GAME_ROW}));
    EXPECT_EQ(Plan("gtA"), (R{GAME_ROW, THOUGHT_ROW, ARRIVAL_ROW}));
    EXPECT_EQ(Plan("ggtt"), (R{GAME_ROW, THOUGHT_ROW}));
}

TEST(OpenWindowsLetters, MarksTheActiveWindowInUpperCase)
{
    EXPECT_EQ(OpenWindowsLetters({true, true, false}, GAME_ROW), "Gt");
    EXPECT_EQ(OpenWindowsLetters({true, true, true}, ARRIVAL_ROW), "gtA");
    EXPECT_EQ(OpenWindowsLetters({true, false, false}, -1), "g");
}

} // namespace
} // namespace steward
