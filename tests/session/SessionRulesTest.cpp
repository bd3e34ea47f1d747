#include "session/FrameLayout.h"
#include "session/LogNames.h"
#include "session/ReconnectPlan.h"
#include "session/RestMode.h"

#include <gtest/gtest.h>

#include <random>

#include <set>
#include <string>
#include <vector>

namespace steward {
namespace {

// A client area of 800 by 600 with a command line 20 high: the MDI client and the panel follow
// the display mode, the command line and tool buttons keep to the bottom in every mode.
TEST(LayoutFrame, PlacesTheMdiClientAndPanelForEachDisplayMode)
{
    const struct {
        std::uint8_t mode;
        Rect mdi;
        int panelTop;
    } cases[] = {
        {0, RectAt(7, 62, 786, 509), 0},
        {1, RectAt(7, 4, 786, 509), 0},
        {2, RectAt(7, 4, 786, 567), HIDDEN_PANEL_TOP},
        {9, RectAt(7, 62, 786, 509), 0},
    };
    for (const auto& c : cases) {
        const FrameLayout layout = LayoutFrame(800, 600, 20, c.mode);
        EXPECT_EQ(layout.MdiClient, c.mdi) << int(c.mode);
        EXPECT_EQ(layout.PanelTop, c.panelTop) << int(c.mode);
        EXPECT_EQ(layout.CommandLine, RectAt(6, 576, 680, 20));
        EXPECT_EQ(layout.ToolButtons[0], (Corner{692, 574}));
        EXPECT_EQ(layout.ToolButtons[3], (Corner{692 + 3 * 26, 574}));
    }
    EXPECT_EQ(PanelTopBelow(505), 509);
}

class FakeFiles : public FileProbe {
  public:
    bool Exists(const char* path) const override { return files.count(path) != 0; }
    std::set<std::string> files;
};

class AllFiles : public FileProbe {
  public:
    bool Exists(const char*) const override { return true; }
};

TEST(DatedLogName, TakesTheFirstFreeNumberUpToTheLast)
{
    const FakeFiles none;
    const AllFiles all;
    FakeFiles taken;
    taken.files = {"/d/Thornmere Log 12-24-2026 (1).Txt", "/d/Thornmere Log 12-24-2026 (2).Txt"};
    const std::string deep(300, 'x');
    const struct {
        std::string folder;
        LocalDate date;
        const FileProbe& files;
        std::string name;
    } cases[] = {
        {"/data", {2026, 3, 7}, none, "/data/Thornmere Log 3-07-2026 (1).Txt"},
        {"/d", {2026, 12, 24}, taken, "/d/Thornmere Log 12-24-2026 (3).Txt"},
        {"/d", {2026, 1, 1}, all, "/d/Thornmere Log 1-01-2026 (9998).Txt"},
        {deep, {2026, 1, 1}, none, deep + "/Thornmere Log 1-01-2026 (1).Txt"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DatedLogName(c.folder, c.date, c.files), c.name);
}

class RecordingSender : public RestSender {
  public:
    void SendCommand(const char* text) override { sent.emplace_back(text); }
    std::vector<std::string> sent;
};

// A seeded walk of entering, leaving and ticks: every hundred and twenty-first tick since a
// rest began or last sent sends "exper" and, unless the rest is silent, a snore; a rest that
// was left sends nothing.
TEST(RestMode, SendsOnEveryHundredAndTwentyFirstTickOfARest)
{
    std::mt19937 random(5);
    RestState rest;
    RecordingSender sender;
    std::vector<std::string> expected;
    bool resting = false;
    bool silent = false;
    int ticks = 0;
    for (int step = 0; step < 2000; ++step) {
        SCOPED_TRACE(::testing::Message() << "seed 5 step " << step);
        if (const unsigned event = random() % 4; event == 0) {
            silent = random() % 2 != 0;
            rest.Enter(silent);
            resting = true;
            ticks = 0;
        } else if (event == 1) {
            EXPECT_EQ(rest.Leave(), resting);
            resting = false;
        } else {
            for (unsigned n = random() % 250; n > 0; --n) {
                rest.OnTimer(sender);
                if (resting && ++ticks == 121) {
                    ticks = 0;
                    expected.emplace_back("exper");
                    if (!silent)
                        expected.emplace_back("act snores softly");
                }
            }
        }
        ASSERT_EQ(sender.sent, expected);
    }
}

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
