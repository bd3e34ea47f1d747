#include "WindowFixture.h"

namespace steward::testing {
namespace {

// Rows of 10 pixels from TextTop 2, text from TextLeft 4, cells 8 wide: the host's client
// area of 400 by 105 shows 10 rows.
constexpr std::int32_t RowY(std::int32_t row)
{
    return 2 + CELL_HEIGHT * row + CELL_HEIGHT / 2;
}

struct PointCase {
    const char* name;
    std::int32_t x;
    std::int32_t y;
    // The position found, as bytes back from WritePos.
    std::int32_t back;
};

class PosFromPointTest : public WindowTest, public ::testing::WithParamInterface<PointCase> {};

// Rows 7 to 9 show "first", "ab" red "cd" and "last"; rows 0 to 6 are blank.
TEST_P(PosFromPointTest, FindsTheNearestBoundary)
{
    auto window = Make("Thought Window");
    window->AppendText("first\nab\x81"
                       "cd\xA0\nlast");
    const PointCase& c = GetParam();
    TextBuffer& buffer = window->GetLiveBuffer();
    const auto expected = buffer.AdvancePos(
        buffer.GetWritePos(), static_cast<std::int32_t>(WINDOW_BUFFER_CAPACITY) - c.back);
    EXPECT_EQ(window->PosFromPoint(c.x, c.y), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Points, PosFromPointTest,
    ::testing::Values(
        PointCase{"AboveGivesTopRowStart", 200, -30, 24}, PointCase{"BlankRow", 200, RowY(0), 24},
        PointCase{"LeftOfText", 2, RowY(8), 11}, PointCase{"OnTextLeft", 4, RowY(8), 11},
        PointCase{"RightHalfOfFirstCharacter", 16, RowY(8), 10},
        PointCase{"BehindAColourCode", 17, RowY(8), 8}, PointCase{"RightOfText", 300, RowY(8), 5},
        PointCase{"BetweenRowsIsTheLower", 200, 2 + CELL_HEIGHT * 8, 5},
        PointCase{"OnTheCursor", 300, RowY(9), 0}, PointCase{"BelowGivesLastRow", 12, 500, 3}),
    [](const auto& info) { return info.param.name; });

TEST_F(WindowTest, PosFromPointOnACutLineStopsBehindItsShownBytes)
{
    host.client = {0, 0, 8000, 105};
    auto window = Make("Thought Window");
    window->AppendText(std::string(600, 'x').c_str());
    TextBuffer& buffer = window->GetLiveBuffer();
    const auto expected = buffer.AdvancePos(buffer.GetWritePos(), WINDOW_BUFFER_CAPACITY - 89);
    EXPECT_EQ(window->PosFromPoint(7000, RowY(9)), expected);
}

TEST_F(WindowTest, DraggingAboveTheWindowScrollsTheSelectionIntoTheFrozenView)
{
    auto window = Make("Thought Window");
    AppendLines(*window, 30);
    window->LButtonDown(12, RowY(9), false);
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
}

} // namespace
} // namespace steward::testing
