#include "WindowFixture.h"

#include <string>
#include <vector>

namespace steward::testing {
namespace {

// A fresh ring reads as 99 empty lines; 30 more make 129, shown in 10 rows.
constexpr std::int32_t TEXT_LINES = 30;
constexpr std::int32_t LINES = 99 + TEXT_LINES;
constexpr std::int32_t ROWS = 10;
constexpr std::int32_t LAST_PAGE = LINES - ROWS;
constexpr std::int32_t LIVE = NO_TOP_LINE;

class ScrollTest : public WindowTest {
  protected:
    ScrollTest() : window(Make("Thought Window")) { AppendLines(*window, TEXT_LINES); }
    // Frozen or live, the top line, the line counts of the view and the live buffer, the bar.
    std::string State()
    {
        return std::string(window->IsFrozen() ? "frozen" : "live") + " top " +
               std::to_string(window->GetTopLine()) + " lines " +
               std::to_string(window->GetViewLineCount()) + "/" +
               std::to_string(window->GetLineCount()) + " bar " +
               std::to_string(host.scroll.minimum) + ".." + std::to_string(host.scroll.maximum) +
               "@" + std::to_string(host.scroll.position);
    }

    std::unique_ptr<AnsiWindow> window;
};

// Each command from a live window (from LIVE) or a view frozen with that top line.
TEST_F(ScrollTest, ScrollCommands)
{
    const struct {
        const char* name;
        std::int32_t from;
        int command;
        std::int32_t thumb;
        std::int32_t topLine;
    } cases[] = {
        {"line up freezes one line above the last page", LIVE, SB_LINEUP, 0, LAST_PAGE - 1},
        {"page up", LIVE, SB_PAGEUP, 0, LAST_PAGE - ROWS},
        {"top", LIVE, SB_TOP, 0, 0},
        {"thumb as a percentage", LIVE, SB_THUMBTRACK, 50, LINES * 50 / 100 - ROWS / 2},
        {"thumb position alike", LIVE, SB_THUMBPOSITION, 10, LINES * 10 / 100 - ROWS / 2},
        {"thumb at the bottom stays live", LIVE, SB_THUMBTRACK, 100, LIVE},
        {"line down live", LIVE, SB_LINEDOWN, 0, LIVE},
        {"page down live", LIVE, SB_PAGEDOWN, 0, LIVE},
        {"bottom live", LIVE, SB_BOTTOM, 0, LIVE},
        {"line down", 10, SB_LINEDOWN, 0, 11},
        {"line up", 10, SB_LINEUP, 0, 9},
        {"line up at the top stays", 0, SB_LINEUP, 0, 0},
        {"page down", 10, SB_PAGEDOWN, 0, 20},
        {"page up below the top stops at 0", 4, SB_PAGEUP, 0, 0},
        {"thumb is the top line", 10, SB_THUMBTRACK, 57, 57},
        {"top", 50, SB_TOP, 0, 0},
        {"bottom ends the freeze", 10, SB_BOTTOM, 0, LIVE},
        {"line down at the last but one page ends it", LAST_PAGE - 1, SB_LINEDOWN, 0, LIVE},
        {"page down past the end ends it", LAST_PAGE - 3, SB_PAGEDOWN, 0, LIVE},
        {"an unknown command does nothing", 10, 8, 0, 10}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        window->EndScrollback();
        if (c.from != LIVE) {
            window->ApplyScrollCommand(SB_TOP, 0);
            window->ApplyScrollCommand(SB_THUMBTRACK, c.from);
            ASSERT_EQ(window->GetTopLine(), c.from);
        }
        host.invalidations.clear();
        window->ApplyScrollCommand(c.command, c.thumb);
        const bool frozen = c.topLine != LIVE;
        EXPECT_EQ(window->IsFrozen(), frozen);
        if (frozen || c.command == SB_THUMBTRACK) {
            EXPECT_EQ(window->GetTopLine(), c.topLine);
        }
        EXPECT_EQ(host.scroll.maximum, frozen ? LAST_PAGE : LIVE_SCROLL_MAX);
        EXPECT_EQ(host.scroll.position, frozen ? c.topLine : LIVE_SCROLL_MAX);
        if (frozen) {
            EXPECT_EQ(window->GetViewLines(), LINES);
        } else if (c.from == LIVE && c.command != SB_THUMBTRACK) {
            EXPECT_TRUE(host.invalidations.empty());
        }
    }
    // One line at a time, as a drag scrolls.
    window->EndScrollback();
    window->ScrollUpOne(false);
    EXPECT_EQ(window->GetTopLine(), LAST_PAGE - 1);
    window->ScrollUpOne(true);
    EXPECT_EQ(window->GetTopLine(), LAST_PAGE - 2);
    window->ScrollDownOne(true);
    window->ScrollDownOne(true);
    EXPECT_FALSE(window->IsFrozen());
}

TEST_F(ScrollTest, TextArrivingWhileFrozenWaitsUnseenInTheLiveBuffer)
{
    host.invalidations.clear();
    window->EndScrollback();
    EXPECT_EQ(host.invalidations, std::vector<bool>{false});
    window->ApplyScrollCommand(SB_PAGEUP, 0);
    host.invalidations.clear();
    EXPECT_EQ(window->AppendText("while away\n"), 1);
    EXPECT_TRUE(host.invalidations.empty());
    EXPECT_EQ(State(), "frozen top 109 lines 129/130 bar 0..119@109");
    window->EndScrollback();
    EXPECT_EQ(State(), "live top -100 lines 129/130 bar 0..100@100");
    EXPECT_EQ(host.invalidations, std::vector<bool>{false});
    RecordingLayer layer;
    window->PaintText(layer);
    EXPECT_EQ(layer.RowText(2 + 8 * CELL_HEIGHT), "while away");
}

TEST_F(ScrollTest, TheSelectionMadeInTheViewGoesBackToTheLiveBuffer)
{
    window->GetLiveBuffer().SetSelection(100, 105);
    window->ApplyScrollCommand(SB_TOP, 0);
    EXPECT_EQ(window->GetViewBuffer().GetSelEnd(), 105);
    window->GetViewBuffer().SetSelection(120, 130);
    EXPECT_TRUE(window->HasSelection());
    window->ThawView();
    EXPECT_EQ(window->GetLiveBuffer().GetSelStart(), 120);
    EXPECT_EQ(window->GetLiveBuffer().GetSelEnd(), 130);
    window->ApplyScrollCommand(SB_TOP, 0);
    window->GetViewBuffer().ClearSelection();
    EXPECT_FALSE(window->HasSelection());
}

TEST_F(ScrollTest, ResizingKeepsALiveBarAtTheBottomUnlessMinimisedOrAllLinesShow)
{
    host.client = {0, 0, 50, 30};
    window->Size(true);
    EXPECT_EQ(window->GetRows(), ROWS);
    EXPECT_EQ(window->GetClientRect().right, 400);

    host.scroll = {};
    host.client = {0, 0, 250, 300};
    window->Size(false);
    EXPECT_EQ(window->GetRows(), (300 - 5) / 10);
    EXPECT_EQ(State(), "live top -100 lines 99/129 bar 0..100@100");

    // A window that shows all its lines cannot be frozen.
    host.client = {0, 0, 400, 2000};
    window->Size(false);
    for (int command : {SB_LINEUP, SB_PAGEUP, SB_TOP, SB_THUMBTRACK}) {
        window->ApplyScrollCommand(command, 30);
        EXPECT_FALSE(window->IsFrozen()) << command;
        EXPECT_EQ(host.scroll.position, LIVE_SCROLL_MAX);
    }
}

// Lines of about 80 characters wrap into two rows of a 400 pixel window.
TEST_F(WindowTest, ResizingAFrozenViewKeepsItsTopLineAndANewFontRewrapsBothBuffers)
{
    auto window = Make("Thought Window");
    for (int i = 0; i < 30; ++i) {
        std::string line = "L" + std::to_string(i);
        while (line.size() < 80)
            line += " word";
        window->AppendText((line + "\n").c_str());
    }
    const auto topRow = [&] {
        RecordingLayer layer;
        window->PaintText(layer);
        return layer.RowText(window->GetTextTop()).substr(0, 3);
    };
    window->ApplyScrollCommand(SB_TOP, 0);
    window->ApplyScrollCommand(SB_THUMBTRACK, 99 + 2 * 5);
    ASSERT_EQ(topRow(), "L5 ");
    const std::int32_t linesBefore = window->GetViewLines();
    host.client = {0, 0, 200, 105};
    window->Size(false);
    EXPECT_TRUE(window->IsFrozen());
    EXPECT_GT(window->GetViewLines(), linesBefore);
    EXPECT_EQ(window->GetViewLineCount(), window->GetViewLines());
    EXPECT_EQ(topRow(), "L5 ");
    EXPECT_EQ(host.scroll.maximum, window->GetViewLines() - 1);
    EXPECT_EQ(host.scroll.position, window->GetTopLine());

    host.client = {0, 0, 400, 105};
    window->Size(false);
    const std::int32_t liveBefore = window->GetLineCount();
    const std::int32_t viewBefore = window->GetViewLineCount();
    LogFontRecord larger;
    larger.lfHeight = -20;
    window->SetLogFont(larger);
    EXPECT_EQ(window->GetLineHeight(), 2 * CELL_HEIGHT);
    EXPECT_EQ(window->GetRows(), (105 - CELL_HEIGHT) / (2 * CELL_HEIGHT));
    EXPECT_GT(window->GetLineCount(), liveBefore);
    EXPECT_GT(window->GetViewLineCount(), viewBefore);
}

// A Thought window of 10 rows of 10 pixels from y = 2: with the live tail, six rows of the
// frozen view, the bar, and three rows of the live end.
constexpr std::int32_t TOP = 2;
constexpr std::int32_t VIEW_ROWS = 6;

class ScrollbackWindowTest : public WindowTest {
  protected:
    std::unique_ptr<AnsiWindow> MakeWithOptions(bool liveTail)
    {
        steward.Set(SHOW_LIVE_TAIL, liveTail ? 1 : 0);
        auto window = AnsiWindow::Create("Thought Window",
                                         {host, settings, nullptr, nullptr, nullptr, &steward});
        AppendLines(*window, 30);
        return window;
    }
    std::vector<std::string> Rows(AnsiWindow& window)
    {
        RecordingLayer layer;
        window.PaintText(layer);
        std::vector<std::string> rows;
        for (std::int32_t row = 0; row < ROWS; ++row)
            rows.push_back(layer.RowText(TOP + row * CELL_HEIGHT));
        return rows;
    }

    StewardOptions steward;
};

TEST_F(ScrollbackWindowTest, NewTextShowsBelowTheFrozenViewOnlyWithTheLiveTail)
{
    for (const bool liveTail : {true, false}) {
        SCOPED_TRACE(liveTail ? "live tail" : "standard");
        auto window = MakeWithOptions(liveTail);
        window->ApplyScrollCommand(SB_PAGEUP, 0);
        ASSERT_TRUE(window->IsFrozen());
        const std::vector<std::string> before = Rows(*window);
        host.invalidations.clear();
        window->AppendText("fresh news\n");
        const std::vector<std::string> after = Rows(*window);

        const std::int32_t viewRows = liveTail ? VIEW_ROWS : ROWS;
        for (std::int32_t row = 0; row < viewRows; ++row)
            EXPECT_EQ(after[row], before[row]) << "row " << row;
        EXPECT_EQ(host.invalidations.size(), liveTail ? 1u : 0u);
        if (liveTail) {
            EXPECT_EQ(std::vector<std::string>(after.begin() + viewRows + 1, after.end()),
                      (std::vector<std::string>{"line 29", "fresh news", ""}));
            EXPECT_EQ(window->SplitBarTop(), TOP + VIEW_ROWS * CELL_HEIGHT);
            EXPECT_EQ(window->ViewBottom(), window->SplitBarTop()) << "the bar ends the view";
        } else {
            EXPECT_EQ(after, before);
        }
    }
}

// Colours left open in the frozen view go on down the view but not into the live tail, where a
// colour's end with none open starts nothing either.
TEST_F(ScrollbackWindowTest, TheLiveTailStartsInTheWindowColours)
{
    auto window = MakeWithOptions(true);
    window->AppendText("\x8C\x99\x9Aopen\n");
    AppendLines(*window, 5, "after ");
    window->AppendText("late\xA1r\n");
    window->ApplyScrollCommand(SB_LINEUP, 0);
    RecordingLayer layer;
    window->PaintText(layer);
    std::vector<std::string> runs;
    for (const DrawCall& call : layer.calls)
        if (!call.text.empty())
            runs.push_back(call.text + (call.textColor == MakeRgb(255, 255, 255) &&
                                                call.backColor == MakeRgb(0, 0, 0)
                                            ? ""
                                            : " in colour"));
    EXPECT_EQ(runs, (std::vector<std::string>{"line 26", "line 27", "line 28", "line 29",
                                              "open in colour", "after 0 in colour", "after 4",
                                              "late", "r"}));
}

TEST_F(ScrollbackWindowTest, FindScrollsBackToTheHitAndSelectsIt)
{
    auto window = MakeWithOptions(true);
    window->AppendText("a dragon lands\n");
    AppendLines(*window, 40, "later ");

    ASSERT_TRUE(window->Find("DRAGON", SearchDirection::Older, false));
    EXPECT_TRUE(window->IsFrozen());
    EXPECT_EQ(window->GetViewBuffer().SelectionText(), "dragon");
    const std::vector<std::string> rows = Rows(*window);
    EXPECT_EQ(rows[VIEW_ROWS / 3], "a dragon lands");

    // Nothing older: the view stays where the hit put it.
    const std::int32_t top = window->GetTopLine();
    EXPECT_FALSE(window->Find("dragon", SearchDirection::Older, false));
    EXPECT_EQ(window->GetTopLine(), top);

    // A hit on the last page ends the freeze and keeps the selection.
    ASSERT_TRUE(window->Find("later 39", SearchDirection::Newer, true));
    EXPECT_FALSE(window->IsFrozen());
    EXPECT_EQ(window->GetLiveBuffer().SelectionText(), "later 39");

    // A search that finds nothing leaves a live window live.
    EXPECT_FALSE(window->Find("griffin", SearchDirection::Older, false));
    EXPECT_FALSE(window->IsFrozen());
}

} // namespace
} // namespace steward::testing
