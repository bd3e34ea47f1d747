#include "WindowFixture.h"

#include "base/ColorCode.h"

#include <string>

namespace steward::testing {
namespace {

constexpr COLORREF WHITE = MakeRgb(255, 255, 255);
constexpr COLORREF BLACK = MakeRgb(0, 0, 0);
constexpr COLORREF RED = Palette[12];
constexpr COLORREF BLUE = Palette[9];
// Rows of the default client area: (105 - 5) / 10 rows, centred 2 pixels down.
constexpr std::int32_t ROWS = 10;
constexpr std::int32_t TOP = 2;
constexpr std::int32_t LAST_ROW_Y = TOP + (ROWS - 1) * CELL_HEIGHT;
constexpr char RED_WORD[] = "ab\x8C"
                            "red\xA0"
                            "cd";

// A colour by its letter: White, blacK, Red, Blue, else its hex.
std::string Name(COLORREF color)
{
    const std::pair<COLORREF, const char*> names[] = {
        {WHITE, "W"}, {BLACK, "K"}, {RED, "R"}, {BLUE, "B"}};
    for (const auto& [known, name] : names)
        if (color == known)
            return name;
    char hex[16];
    std::snprintf(hex, sizeof hex, "%06x", color);
    return hex;
}

class PaintTextTest : public WindowTest {
  protected:
    // The text runs that a paint draws on the row whose top is y, as "text fg/bg" joined by '|'.
    std::string RowRuns(AnsiWindow& window, std::int32_t y = LAST_ROW_Y)
    {
        std::string runs;
        for (const DrawCall& call : Paint(window))
            if (!call.cursor && call.y == y && !call.text.empty())
                runs += (runs.empty() ? "" : "|") + call.text + " " + Name(call.textColor) + "/" +
                        Name(call.backColor);
        return runs;
    }
    // The calls (on the row whose top is y), one a line: x, the rect, the text and its colours
    // (a fill's text colour is never seen).
    static std::string Calls(const std::vector<DrawCall>& drawn, std::int32_t y = -1)
    {
        std::string calls;
        for (const DrawCall& call : drawn) {
            if (y != -1 && call.y != y)
                continue;
            char line[160];
            std::snprintf(line, sizeof line, "%d %d,%d-%d,%d '%s' %s/%s\n", call.x, call.rect.left,
                          call.rect.top, call.rect.right, call.rect.bottom, call.text.c_str(),
                          call.text.empty() ? "-" : Name(call.textColor).c_str(),
                          Name(call.backColor).c_str());
            calls += line;
        }
        return calls;
    }
    // The runs of every row, one row a line.
    std::string Screen(AnsiWindow& window)
    {
        std::string rows;
        for (std::int32_t row = 0; row < ROWS; ++row)
            rows += (row ? "\n" : "") + RowRuns(window, TOP + row * CELL_HEIGHT);
        return rows;
    }
};

// Each line starts in the window's colours, as each text closes what it opens.
TEST_F(PaintTextTest, ColourCodesSplitARowIntoRunsWithTheirColours)
{
    auto window = Make("Thought Window");
    window->AppendText(("plain\n" + std::string(RED_WORD) +
                        "\n\x99xy\xA1z\n\x8C\x99"
                        "both\xA0\xA1\n\xA0\xA1\xA0x\n\x8C"
                        "a\x89"
                        "b\xA0"
                        "c\xA0"
                        "d")
                           .c_str());
    EXPECT_EQ(Screen(*window), "\n\n\n\n"
                               "plain W/K\n"
                               "ab W/K|red R/K|cd W/K\n"
                               "xy W/B|z W/K\n"
                               "both R/B\n"
                               "x W/K\n"
                               "a R/K|b B/K|c R/K|d W/K");
    // An overlong line shows its first 511 bytes and loses a code behind them.
    window = Make("Thought Window");
    window->AppendText(("\x8C" + std::string(520, 'x') + "\xA0\nnext").c_str());
    EXPECT_EQ(RowRuns(*window, LAST_ROW_Y - CELL_HEIGHT),
              std::string(READ_LINE_LIMIT - 1, 'x') + " R/K");
    EXPECT_EQ(RowRuns(*window), "next R/K");
}

// The runs are placed at the sum of their widths, and the rest of the row is filled in the
// window's colour even under an open background code.
TEST_F(PaintTextTest, RunsArePlacedAtTheSumOfTheirWidthsAndTheRowIsFilledInTheWindowColour)
{
    auto window = Make("Thought Window");
    window->AppendText("ab\x8C"
                       "c\x99"
                       "de");
    EXPECT_EQ(Calls(Paint(*window), LAST_ROW_Y), "4 4,92-20,102 'ab' W/K\n"
                                                 "20 20,92-28,102 'c' R/K\n"
                                                 "28 28,92-44,102 'de' R/B\n"
                                                 "44 44,92-400,102 '' -/K\n");
}

TEST_F(PaintTextTest, AnOpenColourGoesOnIntoTheNextRowsUntilItsCodeLeavesTheTop)
{
    auto window = Make("Thought Window");
    window->AppendText("\x8C"
                       "first\nsecond\n\x99third\xA1\nfourth\n");
    EXPECT_EQ(Screen(*window), "\n\n\n\n\nfirst R/K\nsecond R/K\nthird R/B\nfourth R/K\n");
    AppendLines(*window, ROWS - 2);
    EXPECT_EQ(RowRuns(*window, TOP), "fourth W/K");
    // Each paint starts from the window's colours, whatever the last one left.
    window->AppendText("\x8C\x99open");
    Paint(*window);
    window->AppendText("\xA0\xA1\xA0\xA1\nafter");
    EXPECT_EQ(RowRuns(*window), "after W/K");
}

// An active window draws a row with selection in the defaults with the selection exchanged;
// an inactive one shows the colours instead.
TEST_F(PaintTextTest, TheSelectionShowsOnlyInTheActiveWindow)
{
    auto window = Make("Thought Window");
    window->AppendText(RED_WORD);
    // The text starts behind the 99 line feeds of a fresh ring; select "b", the code and "re".
    window->GetLiveBuffer().SetSelection(100, 104);
    EXPECT_EQ(RowRuns(*window), "a W/K|b K/W|re K/W|d W/K|cd W/K");
    host.active = false;
    EXPECT_EQ(RowRuns(*window), "ab W/K|red R/K|cd W/K");
}

// A window too low for a row is cleared in one fill; (109 - 100) / 2 leaves 4 pixels above the
// rows and 5 below; a paint with erasing also fills the bands above and left of the rows.
TEST_F(PaintTextTest, TheBandsAroundTheRowsAreFilledWithTheWindowColours)
{
    host.client = {0, 0, 300, 14};
    auto window = Make("Game Window", true);
    window->AppendText("hidden");
    EXPECT_EQ(Calls(Paint(*window)), "0 0,0-300,14 '' -/K\n");
    host.client = {0, 0, 300, 109};
    EXPECT_EQ(Calls(Paint(*Make("Thought Window")), 104), "0 0,104-300,109 '' -/K\n");
    host.client = {0, 0, 400, 105};
    RecordingLayer layer;
    Make("Thought Window")->Paint(layer, true);
    layer.calls.resize(2);
    EXPECT_EQ(Calls(layer.calls), "0 0,0-400,2 '' -/K\n"
                                  "0 0,0-4,105 '' -/K\n");
}

TEST_F(PaintTextTest, AFrozenViewPaintsItsTopLineAndEmptyRowsAsAnEmptyRunAndAFill)
{
    auto window = Make("Thought Window");
    AppendLines(*window, 30);
    window->ApplyScrollCommand(SB_TOP, 0);
    EXPECT_EQ(Calls(Paint(*window), TOP), "4 4,2-4,12 '' -/K\n"
                                          "4 4,2-400,12 '' -/K\n");
    window->ApplyScrollCommand(SB_THUMBTRACK, 99 + 4);
    window->AppendText("newer\n");
    EXPECT_EQ(RowRuns(*window, TOP), "line 4 W/K");
    EXPECT_EQ(RowRuns(*window), "line 13 W/K");
}

TEST_F(PaintTextTest, TheCursorFollowsTheLastRowOfALiveGameWindowOnly)
{
    const struct {
        const char* name;
        bool game;
        bool freeze;
        std::uint8_t showCursor;
        bool drawn;
    } cases[] = {{"Game Window", true, false, 1, true},
                 {"Game Window", true, true, 1, false},
                 {"Game Window", true, false, 0, false},
                 {"Thought Window", false, false, 1, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.name) + (c.freeze ? " frozen" : "") +
                     (c.showCursor ? "" : " without cursor"));
        settings.ShowCursor = c.showCursor;
        auto window = Make(c.name, c.game);
        AppendLines(*window, 20);
        window->AppendText("> ");
        if (c.freeze)
            window->ApplyScrollCommand(SB_LINEUP, 0);
        RecordingLayer layer;
        window->PaintText(layer);
        const DrawCall* cursor = layer.Cursor();
        ASSERT_EQ(cursor != nullptr, c.drawn);
        if (!cursor)
            continue;
        EXPECT_EQ(cursor->text, "_");
        EXPECT_EQ(cursor->x, TEXT_LEFT + 2 * CELL_WIDTH);
        EXPECT_EQ(cursor->y, LAST_ROW_Y);
        EXPECT_EQ(cursor->textColor, WHITE);
        EXPECT_EQ(cursor->backColor, BLACK);
    }
}

TEST_F(PaintTextTest, NewColoursOfTheWindowAreUsedFromTheNextPaint)
{
    auto window = Make("Thought Window");
    window->AppendText("x\x8Cy");
    host.pickedColor = MakeRgb(1, 2, 3);
    window->ChangeForegroundColor();
    host.pickedColor = MakeRgb(4, 5, 6);
    window->ChangeBackgroundColor();
    EXPECT_EQ(RowRuns(*window), "x 030201/060504|y R/060504");
}

} // namespace
} // namespace steward::testing
