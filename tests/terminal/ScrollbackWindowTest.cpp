#include "WindowFixture.h"

#include <string>
#include <vector>

namespace steward::testing {
namespace {

// A Thought window of 10 rows of 10 pixels from y = 2: with the live tail, six rows of the
// frozen view, the bar, and three rows of the live end.
constexpr std::int32_t TOP = 2;
constexpr std::int32_t ROWS = 10;
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
        if (liveTail)
            EXPECT_EQ(std::vector<std::string>(after.begin() + viewRows + 1, after.end()),
                      (std::vector<std::string>{"line 29", "fresh news", ""}));
        else
            EXPECT_EQ(after, before);
    }
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
