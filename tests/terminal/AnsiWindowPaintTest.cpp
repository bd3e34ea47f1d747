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

struct Segment {
    std::string text;
    COLORREF textColor;
    COLORREF backColor;
};

std::vector<Segment> RunsOfRow(const std::vector<DrawCall>& calls, std::int32_t y)
{
    std::vector<Segment> runs;
    for (const DrawCall& call : calls)
        if (!call.cursor && call.y == y && !call.text.empty())
            runs.push_back({call.text, call.textColor, call.backColor});
    return runs;
}

void ExpectRuns(const std::vector<Segment>& actual, const std::vector<Segment>& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(actual[i].text, expected[i].text) << "run " << i;
        EXPECT_EQ(actual[i].textColor, expected[i].textColor) << "run " << i;
        EXPECT_EQ(actual[i].backColor, expected[i].backColor) << "run " << i;
    }
}

using PaintTextTest = WindowTest;

TEST_F(PaintTextTest, ColourCodesSplitARowIntoRunsWithTheirColours)
{
    struct Case {
        const char* text;
        std::vector<Segment> runs;
    };
    const Case cases[] = {
        {"plain", {{"plain", WHITE, BLACK}}},
        {"ab\x8C"
         "red\xA0"
         "cd",
         {{"ab", WHITE, BLACK}, {"red", RED, BLACK}, {"cd", WHITE, BLACK}}},
        {"\x99xy\xA1z", {{"xy", WHITE, BLUE}, {"z", WHITE, BLACK}}},
        {"\x8C\x99"
         "both\xA0\xA1",
         {{"both", RED, BLUE}}},
        // Closing codes without an opening one fall back to the window's defaults.
        {"\xA0\xA1\xA0x", {{"x", WHITE, BLACK}}},
        {"\x8C"
         "a\x89"
         "b\xA0"
         "c\xA0"
         "d",
         {{"a", RED, BLACK}, {"b", BLUE, BLACK}, {"c", RED, BLACK}, {"d", WHITE, BLACK}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        auto window = Make("Thought Window");
        window->AppendText(c.text);
        ExpectRuns(RunsOfRow(Paint(*window), LAST_ROW_Y), c.runs);
    }
}

TEST_F(PaintTextTest, RunsArePlacedAtTheSumOfTheirWidths)
{
    auto window = Make("Thought Window");
    window->AppendText("ab\x8C"
                       "cde");
    RecordingLayer layer;
    window->PaintText(layer);
    const std::vector<DrawCall> drawn = layer.Runs();
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0].x, TEXT_LEFT);
    EXPECT_EQ(drawn[0].rect.right, TEXT_LEFT + 2 * CELL_WIDTH);
    EXPECT_EQ(drawn[1].x, TEXT_LEFT + 2 * CELL_WIDTH);
    EXPECT_EQ(drawn[1].rect.right, TEXT_LEFT + 5 * CELL_WIDTH);
    EXPECT_EQ(drawn[1].rect.bottom - drawn[1].rect.top, CELL_HEIGHT);
}

TEST_F(PaintTextTest, TheRestOfARowHasTheWindowBackgroundEvenUnderAnOpenBackgroundCode)
{
    auto window = Make("Thought Window");
    window->AppendText("\x99xy");
    const std::vector<DrawCall> calls = Paint(*window);
    const DrawCall* fill = nullptr;
    for (const DrawCall& call : calls)
        if (call.y == LAST_ROW_Y && call.text.empty() && call.rect.left == TEXT_LEFT + 16)
            fill = &call;
    ASSERT_NE(fill, nullptr);
    EXPECT_EQ(fill->rect.right, host.client.right);
    EXPECT_EQ(fill->rect.bottom, LAST_ROW_Y + CELL_HEIGHT);
    EXPECT_EQ(fill->backColor, BLACK);
}

TEST_F(PaintTextTest, AnOpenColourGoesOnIntoTheNextRowsUntilItsCodeLeavesTheTop)
{
    auto window = Make("Thought Window");
    window->AppendText("\x8C"
                       "first\nsecond\n\x99third\xA1\nfourth\n");
    const std::vector<DrawCall> calls = Paint(*window);
    ExpectRuns(RunsOfRow(calls, LAST_ROW_Y - 2 * CELL_HEIGHT), {{"third", RED, BLUE}});
    ExpectRuns(RunsOfRow(calls, LAST_ROW_Y - CELL_HEIGHT), {{"fourth", RED, BLACK}});

    AppendLines(*window, ROWS - 2);
    const std::vector<DrawCall> later = Paint(*window);
    ExpectRuns(RunsOfRow(later, TOP), {{"fourth", WHITE, BLACK}});
}

TEST_F(PaintTextTest, ARowWithSelectionIsDrawnInTheDefaultsWithTheSelectionExchanged)
{
    auto window = Make("Thought Window");
    window->AppendText("ab\x8C"
                       "red\xA0"
                       "cd");
    // The text starts behind the 99 line feeds of a fresh ring; select "b", the code and "re".
    window->GetLiveBuffer().SetSelection(100, 104);
    ExpectRuns(RunsOfRow(Paint(*window), LAST_ROW_Y), {{"a", WHITE, BLACK},
                                                       {"b", BLACK, WHITE},
                                                       {"re", BLACK, WHITE},
                                                       {"d", WHITE, BLACK},
                                                       {"cd", WHITE, BLACK}});
    EXPECT_TRUE(window->HasSelection());
}

TEST_F(PaintTextTest, AnInactiveWindowShowsTheColoursInsteadOfTheSelection)
{
    auto window = Make("Thought Window");
    window->AppendText("ab\x8C"
                       "red\xA0"
                       "cd");
    window->GetLiveBuffer().SetSelection(100, 104);
    host.active = false;
    ExpectRuns(RunsOfRow(Paint(*window), LAST_ROW_Y),
               {{"ab", WHITE, BLACK}, {"red", RED, BLACK}, {"cd", WHITE, BLACK}});
}

TEST_F(PaintTextTest, AnOverlongLineShowsItsFirst511BytesAndLosesACodeBehindThem)
{
    auto window = Make("Thought Window");
    const std::string text = "\x8C" + std::string(520, 'x') + "\xA0\nnext";
    window->AppendText(text.c_str());
    const std::vector<DrawCall> calls = Paint(*window);
    ExpectRuns(RunsOfRow(calls, LAST_ROW_Y - CELL_HEIGHT),
               {{std::string(READ_LINE_LIMIT - 1, 'x'), RED, BLACK}});
    ExpectRuns(RunsOfRow(calls, LAST_ROW_Y), {{"next", RED, BLACK}});
}

TEST_F(PaintTextTest, AWindowLowerThanOneRowIsOnlyCleared)
{
    host.client = {0, 0, 300, 14};
    auto window = Make("Game Window", true);
    window->AppendText("hidden");
    const std::vector<DrawCall> calls = Paint(*window);
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_TRUE(calls[0].text.empty());
    EXPECT_EQ(calls[0].rect.right, 300);
    EXPECT_EQ(calls[0].rect.bottom, 14);
    EXPECT_EQ(calls[0].backColor, BLACK);
}

TEST_F(PaintTextTest, AnEmptyRowIsAnEmptyRunThenAFillFromTheTextEdge)
{
    auto window = Make("Thought Window");
    AppendLines(*window, 20);
    window->ApplyScrollCommand(SB_TOP, 0);
    ASSERT_TRUE(window->IsFrozen());
    const std::vector<DrawCall> calls = Paint(*window);
    std::vector<DrawCall> firstRow;
    for (const DrawCall& call : calls)
        if (call.y == TOP)
            firstRow.push_back(call);
    ASSERT_EQ(firstRow.size(), 2u);
    EXPECT_EQ(firstRow[0].x, TEXT_LEFT);
    EXPECT_EQ(firstRow[0].rect.right, TEXT_LEFT);
    EXPECT_EQ(firstRow[1].rect.left, TEXT_LEFT);
    EXPECT_EQ(firstRow[1].rect.right, host.client.right);
}

TEST_F(PaintTextTest, AFrozenViewPaintsItsTopLineAndNotTheNewText)
{
    auto window = Make("Thought Window");
    AppendLines(*window, 30);
    window->ApplyScrollCommand(SB_TOP, 0);
    window->ApplyScrollCommand(SB_THUMBTRACK, 99 + 4);
    window->AppendText("newer\n");
    RecordingLayer layer;
    window->PaintText(layer);
    EXPECT_EQ(layer.RowText(TOP), "line 4");
    EXPECT_EQ(layer.RowText(LAST_ROW_Y), "line 13");
}

TEST_F(PaintTextTest, TheStripBelowTheRowsIsFilledWithTheWindowColours)
{
    host.client = {0, 0, 300, 109};
    auto window = Make("Thought Window");
    const std::vector<DrawCall> calls = Paint(*window);
    // (109 - 100) / 2 leaves 4 pixels above the rows and 5 below.
    const DrawCall* strip = nullptr;
    for (const DrawCall& call : calls)
        if (call.rect.left == 0 && call.rect.top == 104)
            strip = &call;
    ASSERT_NE(strip, nullptr);
    EXPECT_EQ(strip->rect.bottom, 109);
    EXPECT_EQ(strip->backColor, BLACK);
}

TEST_F(PaintTextTest, TheCursorFollowsTheLastRowOfALiveGameWindowOnly)
{
    struct Case {
        const char* name;
        bool game;
        bool freeze;
        std::uint8_t showCursor;
        bool drawn;
    };
    const Case cases[] = {
        {"Game Window", true, false, 1, true},
        {"Game Window", true, true, 1, false},
        {"Game Window", true, false, 0, false},
        {"Thought Window", false, false, 1, false},
    };
    for (const Case& c : cases) {
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

TEST_F(PaintTextTest, EachPaintStartsFromTheWindowColoursWhateverTheLastOneLeft)
{
    auto window = Make("Thought Window");
    window->AppendText("\x8C\x99open");
    Paint(*window);
    window->AppendText("\xA0\xA1\xA0\xA1\nafter");
    ExpectRuns(RunsOfRow(Paint(*window), LAST_ROW_Y), {{"after", WHITE, BLACK}});
}

TEST_F(PaintTextTest, APaintWithErasingAlsoFillsTheBandsAboveAndLeftOfTheRows)
{
    auto window = Make("Thought Window");
    RecordingLayer layer;
    window->Paint(layer, true);
    ASSERT_GE(layer.calls.size(), 2u);
    EXPECT_EQ(layer.calls[0].rect.bottom, TOP);
    EXPECT_EQ(layer.calls[0].rect.right, host.client.right);
    EXPECT_EQ(layer.calls[1].rect.right, TEXT_LEFT);
    EXPECT_EQ(layer.calls[1].rect.bottom, host.client.bottom);
    EXPECT_EQ(layer.calls[1].backColor, BLACK);
}

TEST_F(PaintTextTest, NewColoursOfTheWindowAreUsedFromTheNextPaint)
{
    auto window = Make("Thought Window");
    window->AppendText("x\x8Cy");
    host.pickedColor = MakeRgb(1, 2, 3);
    window->ChangeForegroundColor();
    host.pickedColor = MakeRgb(4, 5, 6);
    window->ChangeBackgroundColor();
    ExpectRuns(RunsOfRow(Paint(*window), LAST_ROW_Y),
               {{"x", MakeRgb(1, 2, 3), MakeRgb(4, 5, 6)}, {"y", RED, MakeRgb(4, 5, 6)}});
}

} // namespace
} // namespace steward::testing
