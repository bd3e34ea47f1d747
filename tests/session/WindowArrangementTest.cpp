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

TEST(ArrangeWindows, GameAloneIsMaximised)
{
    RecordingChildren host;
    host.open[GAME_ROW] = true;
    ArrangeWindows(host, false, true);
    EXPECT_TRUE(host.moves.empty());
    EXPECT_EQ(host.calls, (std::vector<std::string>{"maximise 0", "activate 0", "focus"}));
}

TEST(ArrangeWindows, TwoWindowsShareTopBandAndLowerThreeQuarters)
{
    RecordingChildren host;
    host.open[GAME_ROW] = host.open[THOUGHT_ROW] = true;
    ArrangeWindows(host, false, true);
    using M = RecordingChildren::MoveCall;
    EXPECT_EQ(host.moves, (std::vector<M>{{THOUGHT_ROW, RectAt(0, 0, 800, 100)},
                                          {GAME_ROW, RectAt(0, 100, 800, 302)}}));
}

TEST(ArrangeWindows, ThreeWindowsSplitTheTopBandInHalves)
{
    RecordingChildren host;
    host.open[GAME_ROW] = host.open[THOUGHT_ROW] = host.open[ARRIVAL_ROW] = true;
    ArrangeWindows(host, false, true);
    using M = RecordingChildren::MoveCall;
    EXPECT_EQ(host.moves, (std::vector<M>{{THOUGHT_ROW, RectAt(0, 0, 400, 100)},
                                          {ARRIVAL_ROW, RectAt(400, 0, 400, 100)},
                                          {GAME_ROW, RectAt(0, 100, 800, 302)}}));
}

TEST(ArrangeWindows, WithoutGameTheFirstOpenRowTakesTheLowerPart)
{
    RecordingChildren host;
    host.open[THOUGHT_ROW] = host.open[ARRIVAL_ROW] = true;
    ArrangeWindows(host, false, true);
    using M = RecordingChildren::MoveCall;
    EXPECT_EQ(host.moves, (std::vector<M>{{ARRIVAL_ROW, RectAt(0, 0, 800, 100)},
                                          {THOUGHT_ROW, RectAt(0, 100, 800, 302)}}));
    EXPECT_EQ(host.calls, (std::vector<std::string>{"focus"}));
}

TEST(ArrangeWindows, RestoresMinimisedAndMaximisedWindowsFirst)
{
    RecordingChildren host;
    host.open[GAME_ROW] = host.open[THOUGHT_ROW] = true;
    host.maximised[GAME_ROW] = true;
    host.minimised[THOUGHT_ROW] = true;
    ArrangeWindows(host, false, true);
    EXPECT_EQ(host.calls,
              (std::vector<std::string>{"restore 0", "restore 1", "activate 0", "focus"}));
}

TEST(ArrangeWindows, OffUnlessForced)
{
    RecordingChildren host;
    host.open[GAME_ROW] = true;
    ArrangeWindows(host, false, false);
    EXPECT_TRUE(host.calls.empty());
    ArrangeWindows(host, true, false);
    EXPECT_EQ(host.calls.front(), "maximise 0");
}

TEST(ArrangeWindows, NoWindowNoWork)
{
    RecordingChildren host;
    ArrangeWindows(host, true, true);
    EXPECT_TRUE(host.calls.empty());
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
