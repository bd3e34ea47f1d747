#include "TextBufferFixture.h"

namespace steward::test {
namespace {

// Where the last line starts, so that "seamword" runs over the ring's end.
constexpr TextBuffer::Position LAST_LINE_AT = 186;

TEST(TextBufferSelect, SelectsTheWordOrDisplayLineAtTheRingEndsAndTheSeam)
{
    // A wrapped ring that starts with whole "alpha beta" lines and ends in the last line.
    auto buffer = MakeWrappingBuffer(150, SMALL_CAPACITY);
    for (int i = 0; i < 25; ++i)
        buffer->AppendText("alpha beta\n", true);
    while (buffer->GetWritePos() != LAST_LINE_AT)
        buffer->AppendText("\n", true);
    buffer->AppendText("one \x8Btwo\xA0, seamword gamma", true);
    ASSERT_TRUE(buffer->IsWrapped());
    ASSERT_LT(buffer->GetWritePos(), LAST_LINE_AT);
    // From the tail, the last line reads: 0 WritePos, 3 "m" of gamma, 11 "m" of seamword (ring
    // index 0), 12 its "a" (index 199), 16 the comma, 19 the "w" of the coloured "two".
    const struct {
        bool line;
        bool fromHead;
        std::int32_t distance; // from HeadPos forward, or from WritePos back
        std::string text;
        std::int32_t rawLength;
    } cases[] = {{false, true, 0, "alpha", 5},      {true, true, 0, "alpha beta", 10},
                 {true, true, 10, "\r\n", 1},       {false, false, 3, "gamma", 5},
                 {false, false, 0, "", 0},          {true, false, 0, "one two, seamword gamma", 25},
                 {false, false, 11, "seamword", 8}, {false, false, 12, "seamword", 8},
                 {false, false, 16, "", 0},         {false, false, 19, "two", 4}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << (c.line ? "line " : "word ") << c.distance
                                        << (c.fromHead ? " from the head" : " back"));
        const auto at =
            c.fromHead ? buffer->AdvancePos(buffer->GetHeadPos(), c.distance)
                       : buffer->AdvancePos(buffer->GetWritePos(), SMALL_CAPACITY - c.distance);
        if (c.line)
            buffer->SelectLine(at);
        else
            buffer->SelectWord(at);
        std::int32_t low = 0;
        std::int32_t high = 0;
        buffer->SelectionRange(low, high);
        EXPECT_EQ(buffer->SelectionText(), c.text);
        EXPECT_EQ(high - low, c.rawLength);
    }
}

// A text whose line ends would not fit the export keeps its older part; what fits is checked
// against the reference in TextBufferModelTest.
TEST(TextBufferExport, KeepsTheOlderPartWhenTheLineEndsWouldNotFit)
{
    auto buffer = BufferWith("oldest\n", GAME_BUFFER_CAPACITY);
    buffer->AppendText(std::string(GAME_BUFFER_CAPACITY - 110, '\n').c_str(), true);
    ASSERT_FALSE(buffer->IsWrapped());
    const std::string text = buffer->ExportPlainText();
    EXPECT_LT(text.size(), std::size_t{GAME_BUFFER_CAPACITY} + 8192);
    EXPECT_EQ(text.substr(0, 8), "oldest\r\n");
    EXPECT_EQ(text.substr(text.size() - 2), "\r\n");
}

} // namespace
} // namespace steward::test
