#include "WindowFixture.h"

namespace steward::testing {
namespace {

// Rows of 10 pixels from TextTop 2, text from TextLeft 4, cells 8 wide: the host's client
// area of 400 by 105 shows 10 rows.
constexpr std::int32_t RowY(std::int32_t row)
{
    return 2 + CELL_HEIGHT * row + CELL_HEIGHT / 2;
}

// The position found, as bytes back from WritePos.
std::int32_t BackFromEnd(AnsiWindow& window, std::int32_t x, std::int32_t y)
{
    const TextBuffer& buffer = window.GetLiveBuffer();
    return buffer.Offset(buffer.GetWritePos()) - buffer.Offset(window.PosFromPoint(x, y));
}

TEST_F(WindowTest, PosFromPointFindsTheNearestBoundary)
{
    // Rows 7 to 9 show "first", "ab" red "cd" and "last"; rows 0 to 6 are blank.
    auto window = Make("Thought Window");
    window->AppendText("first\nab\x81"
                       "cd\xA0\nlast");
    const struct {
        const char* name;
        std::int32_t x;
        std::int32_t y;
        std::int32_t back;
    } cases[] = {{"above gives the top row's start", 200, -30, 24},
                 {"blank row", 200, RowY(0), 24},
                 {"left of the text", 2, RowY(8), 11},
                 {"on the text's left", 4, RowY(8), 11},
                 {"right half of the first character", 16, RowY(8), 10},
                 {"behind a colour code", 17, RowY(8), 8},
                 {"right of the text", 300, RowY(8), 5},
                 {"between rows is the lower", 200, 2 + CELL_HEIGHT * 8, 5},
                 {"on the cursor", 300, RowY(9), 0},
                 {"below gives the last row", 12, 500, 3}};
    for (const auto& c : cases)
        EXPECT_EQ(BackFromEnd(*window, c.x, c.y), c.back) << c.name;

    // On a cut line it stops behind the shown bytes.
    host.client = {0, 0, 8000, 105};
    window = Make("Thought Window");
    window->AppendText(std::string(600, 'x').c_str());
    EXPECT_EQ(BackFromEnd(*window, 7000, RowY(9)), 89);
}

TEST_F(WindowTest, DraggingAboveTheWindowScrollsTheSelectionIntoTheFrozenView)
{
    auto window = Make("Thought Window");
    AppendLines(*window, 30);
    window->LButtonDown(12, RowY(9), false);
    window->MouseMove(12, 0);
    EXPECT_FALSE(window->IsFrozen()) << "the top row is still inside";
    window->MouseMove(12, -4);
    ASSERT_TRUE(window->IsFrozen());
    window->MouseMove(12, -4);
    EXPECT_EQ(window->GetTopLine(), window->GetViewLines() - window->GetRows() - 2);
    window->EndDrag();
    window->Copy();
    // From the start of the top row, two lines above the live page, to the cursor.
    std::string expected;
    for (int line = 18; line < 30; ++line)
        expected += "line " + std::to_string(line) + "\r\n";
    EXPECT_EQ(host.clipboard, expected);
    // The next click drops the highlight at once.
    const int updates = host.updates;
    window->LButtonDown(12, RowY(9), false);
    EXPECT_EQ(host.updates, updates + 1);
}

} // namespace
} // namespace steward::testing
