#include "TextBufferFixture.h"

namespace steward::test {
namespace {

constexpr std::uint32_t RING = SMALL_CAPACITY;
// Where the last line starts, so that "seamword" runs over the ring's end.
constexpr TextBuffer::Position LAST_LINE_AT = 186;
constexpr char LAST_LINE[] = "one \x8Btwo\xA0, seamword gamma";

enum class Select { Word, Line };

struct SelectCase {
    const char* name;
    Select what;
    bool fromHead;
    // Bytes from HeadPos forward, or from WritePos back.
    std::int32_t distance;
    std::string text;
    std::int32_t rawLength;
};

class TextBufferSelect : public testing::TestWithParam<SelectCase> {
  protected:
    // A wrapped ring that starts with whole "alpha beta" lines and ends in LAST_LINE.
    void SetUp() override
    {
        buffer = MakeWrappingBuffer(150, RING);
        for (int i = 0; i < 25; ++i)
            buffer->AppendText("alpha beta\n", true);
        while (buffer->GetWritePos() != LAST_LINE_AT)
            buffer->AppendText("\n", true);
        buffer->AppendText(LAST_LINE, true);
        ASSERT_TRUE(buffer->IsWrapped());
        ASSERT_LT(buffer->GetWritePos(), LAST_LINE_AT);
    }
    std::unique_ptr<TextBuffer> buffer;
};

TEST_P(TextBufferSelect, SelectsTheWordOrDisplayLine)
{
    const SelectCase& c = GetParam();
    const auto at = c.fromHead ? buffer->AdvancePos(buffer->GetHeadPos(), c.distance)
                               : buffer->AdvancePos(buffer->GetWritePos(), RING - c.distance);
    if (c.what == Select::Word)
        buffer->SelectWord(at);
    else
        buffer->SelectLine(at);
    std::int32_t low = 0;
    std::int32_t high = 0;
    buffer->SelectionRange(low, high);
    EXPECT_EQ(buffer->SelectionText(), c.text);
    EXPECT_EQ(high - low, c.rawLength);
}

// From the tail, LAST_LINE reads: 0 WritePos, 3 "m" of gamma, 11 "m" of seamword (ring
// index 0), 12 its "a" (index 199), 16 the comma, 19 the "w" of the coloured "two".
INSTANTIATE_TEST_SUITE_P(
    RingEndsAndSeam, TextBufferSelect,
    testing::Values(
        SelectCase{"WordAtHead", Select::Word, true, 0, "alpha", 5},
        SelectCase{"LineAtHead", Select::Line, true, 0, "alpha beta", 10},
        SelectCase{"LineOnTerminatorIsTheTerminator", Select::Line, true, 10, "\r\n", 1},
        SelectCase{"WordBeforeWritePos", Select::Word, false, 3, "gamma", 5},
        SelectCase{"WordAtWritePosIsEmpty", Select::Word, false, 0, "", 0},
        SelectCase{"LineAtWritePos", Select::Line, false, 0, "one two, seamword gamma", 25},
        SelectCase{"WordAfterSeam", Select::Word, false, 11, "seamword", 8},
        SelectCase{"WordBeforeSeam", Select::Word, false, 12, "seamword", 8},
        SelectCase{"CommaSelectsNothing", Select::Word, false, 16, "", 0},
        SelectCase{"ColourInsideWordIsKeptInFrontIsNot", Select::Word, false, 19, "two", 4}),
    [](const auto& info) { return info.param.name; });

// The plain text of a full ring is its bytes transcribed one by one, and a text whose line
// ends would not fit keeps its older part.
TEST(TextBufferExport, FullRingIsTranscribedWithoutColours)
{
    auto buffer = MakeBuffer(GAME_BUFFER_CAPACITY);
    for (int i = 0; buffer->GetCapacity() * 2 > static_cast<std::uint32_t>(i) * 10; ++i)
        buffer->AppendText((std::to_string(i) + " \x81red\xA0 x\n").c_str(), true);
    ASSERT_TRUE(buffer->IsWrapped());
    std::string expected;
    for (const char c : RingText(*buffer)) {
        if (c == '\n')
            expected += "\r\n";
        else if (!IsColorCode(static_cast<unsigned char>(c)))
            expected += c;
    }
    EXPECT_EQ(buffer->ExportPlainText(), expected + "\r\n");
}

TEST(TextBufferExport, TooManyLineEndsKeepTheOlderPart)
{
    auto buffer = MakeBuffer(GAME_BUFFER_CAPACITY);
    buffer->AppendText("oldest\n", true);
    buffer->AppendText(std::string(GAME_BUFFER_CAPACITY - 110, '\n').c_str(), true);
    ASSERT_FALSE(buffer->IsWrapped());
    const std::string text = buffer->ExportPlainText();
    EXPECT_LT(text.size(), std::size_t{GAME_BUFFER_CAPACITY} + 8192);
    EXPECT_EQ(text.substr(0, 8), "oldest\r\n");
    EXPECT_EQ(text.substr(text.size() - 2), "\r\n");
}

} // namespace
} // namespace steward::test
