#include "TextBufferFixture.h"

namespace steward::test {
namespace {

using Rows = std::vector<std::string>;

class RecordingBell : public BellListener {
  public:
    void Beep() override { ++beeps; }
    int beeps = 0;
};

// Rows of the last lines, joined by '|'.
std::string Tail(TextBuffer& buffer, std::int32_t rows)
{
    std::string joined;
    for (const std::string& row : LastRows(buffer, rows))
        joined += row + "|";
    return joined.substr(0, joined.size() - 1);
}

TEST(TextBufferCreate, RefusesRingsTooSmallAndStartsWithEmptyLines)
{
    EXPECT_EQ(TextBuffer::CreateTextBuffer(0), nullptr);
    EXPECT_EQ(TextBuffer::CreateTextBuffer(INITIAL_LINE_FEEDS), nullptr);
    EXPECT_NE(TextBuffer::CreateTextBuffer(MIN_BUFFER_CAPACITY), nullptr);
    EXPECT_EQ(MakeBuffer(GAME_BUFFER_CAPACITY)->GetCapacity(), GAME_BUFFER_CAPACITY);
    auto buffer = MakeBuffer();
    EXPECT_EQ(buffer->CountLines(), 99);
    EXPECT_EQ(RingText(*buffer), std::string(99, '\n'));
    EXPECT_EQ(CopiedText(*buffer), "\r\n");
    EXPECT_EQ(Tail(*buffer, 3), "||");
    buffer->AppendText("abc", true);
    EXPECT_EQ(buffer->CountLines(), 100);
    EXPECT_EQ(Tail(*buffer, 3), "||abc");
}

// The exact bytes kept for control bytes, tabs and codes; each line starts at column 0.
TEST(TextBufferAppend, StoresControlBytesTabsAndCodes)
{
    auto buffer = BufferWith("\r\na\n\rb\nab\rcd\n\x1b[0m\x08\xA4\xFE\n\x85red\xA0\na\xFF\n"
                             "\tx\n123456\tx\n1234567\tx\n\t\tx\n\x81\tx\nabc\r\tx\nabc\n\tx");
    EXPECT_EQ(RingText(*buffer).substr(TEXT_START),
              "\na\nb\nabcd\n\x1b[0m\x08\xA4\xFE\n\x85red\xA0\na\xFF\n       x\n123456 x\n"
              "1234567        x\n" +
                  std::string(15, ' ') + "x\n\x81       x\nabc       x\nabc\n       x");
    RecordingBell bell;
    buffer->AppendText("\n\x07", false);
    buffer->SetBellListener(&bell);
    buffer->AppendText("\x07"
                       "ding\x07\x07",
                       true);
    EXPECT_EQ(bell.beeps, 3);
    EXPECT_EQ(Tail(*buffer, 1), "ding");
}

// Breaks at the last space before the limit; rewrap at random widths is checked against a
// reference in TextBufferModelTest.
TEST(TextBufferAppend, WrapsAndRewrapsAtTheWidth)
{
    auto buffer = MakeWrappingBuffer(10, WINDOW_BUFFER_CAPACITY,
                                     "abcd efghi\nabcd efghij\nabcdefghijklmnopqrst end\n"
                                     "abc defg\nhijklmnopq\naaaa bbbbbbbbbbbbbb\n\tabcdefghijk\n"
                                     "abcd fghi\x81j\nhello wor\x81ld abcd\nabcdefgh\rij kl");
    EXPECT_EQ(Tail(*buffer, 16), "abcd efghi|abcd|efghij|abcdefghijklmnopqrst|end|abc defg|"
                                 "hijklmnopq|aaaa|bbbbbbbbbbbbbb|      |abcdefghijk|"
                                 "abcd fghi\x81j|hello|wor\x81ld|abcd|abcdefghij kl");
    const struct {
        std::int32_t appendColumns;
        std::int32_t rewrapColumns;
        const char* text;
        const char* rows;
    } cases[] = {{10, 20, "hello world again", "hello world again"},
                 {5, 12, "aaaa bbbb cccc dddd", "aaaa bbbb|cccc dddd"},
                 // The space after "four" is itself a character at the edge.
                 {10, 10, "one two three four five six\nab\tcdefgh",
                  "one two|three|four five|six|ab    |cdefgh"},
                 {5, 40, "aaa bbb\nccc ddd", "aaa bbb|ccc ddd"},
                 {40, 10,
                  "hello world again\nabcdefghijklmnop qr\n\x81"
                  "abcd fghi\xA0j",
                  "hello|world|again|abcdefghijklmnop|qr|\x81"
                  "abcd fghi\xA0j"},
                 {40, 40, "one\xFFtwo", "one two"}};
    for (const auto& c : cases) {
        buffer = MakeWrappingBuffer(c.appendColumns, WINDOW_BUFFER_CAPACITY, c.text);
        Resize(*buffer, c.rewrapColumns);
        const std::string rows = c.rows;
        EXPECT_EQ(Tail(*buffer, 1 + std::count(rows.begin(), rows.end(), '|')), rows) << c.text;
    }
}

TEST(TextBufferAppend, MarginAndNarrowWindowKeepTheMinimumWidth)
{
    auto buffer = MakeBuffer();
    buffer->SetGeometry(4, 10, UniformWidths());
    EXPECT_EQ(buffer->GetWrapLimit(), 4 + MIN_WRAP_WIDTH);
    buffer->AppendText("abc def", true);
    EXPECT_EQ(Tail(*buffer, 2), "abc|def");
    // Twelve pixels of margin leave room for three characters before the limit.
    buffer = BufferWith("ab c de");
    buffer->SetGeometry(12, 0, UniformWidths());
    buffer->Rewrap();
    EXPECT_EQ(Tail(*buffer, 3), "ab|c|de");
    buffer = MakeBuffer(SMALL_CAPACITY);
    Resize(*buffer, 3);
    EXPECT_EQ(RingText(*buffer), std::string(99, '\n'));
}

// The seam's exact edges; what the ring keeps across it is checked against the reference.
TEST(TextBufferRing, FillsExactlyWrapsOnItsLastByteAndReadsEmptyWithoutLineFeeds)
{
    const std::string text(SMALL_CAPACITY - 100, 'x');
    auto buffer = BufferWith(text.c_str(), SMALL_CAPACITY);
    EXPECT_FALSE(buffer->IsWrapped());
    EXPECT_EQ(buffer->GetWritePos(), SMALL_CAPACITY - 1);
    EXPECT_EQ(buffer->GetHeadPos(), 0u);
    buffer->AppendText("x", true);
    EXPECT_TRUE(buffer->IsWrapped());
    EXPECT_EQ(buffer->GetWritePos(), 0u);
    EXPECT_EQ(buffer->ByteAt(0), WRITE_MARK);
    EXPECT_EQ(buffer->GetHeadPos(), 2u);

    buffer = BufferWith(std::string(300, 'x').c_str(), SMALL_CAPACITY);
    EXPECT_EQ(buffer->GetHeadPos(), buffer->GetWritePos());
    EXPECT_EQ(buffer->CountLines(), 0);
    EXPECT_EQ(CopiedText(*buffer), "\r\n");
    EXPECT_EQ(Tail(*buffer, 2), "|");
    buffer->SeekFromEnd(3);
    EXPECT_EQ(buffer->GetWalkPos(), buffer->GetWritePos());
    Resize(*buffer, 3);
    buffer->AppendText("xx", true);
    EXPECT_EQ(buffer->CountLines(), 0);
    buffer->AppendText("\nabc\n", true);
    EXPECT_EQ(RingText(*buffer), "abc\n");
    EXPECT_EQ(buffer->CountLines(), 1);
}

TEST(TextBufferRing, WalkingAdvancingAndOffsetsStayInsideTheRing)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    EXPECT_EQ(buffer->Next(SMALL_CAPACITY - 1), 0u);
    EXPECT_EQ(buffer->Prev(0), SMALL_CAPACITY - 1);
    EXPECT_LT(buffer->Next(SMALL_CAPACITY + 7), SMALL_CAPACITY);
    EXPECT_LT(buffer->Prev(SMALL_CAPACITY + 7), SMALL_CAPACITY);
    EXPECT_EQ(buffer->ByteAt(SMALL_CAPACITY + 1), buffer->ByteAt(1));
    const struct {
        TextBuffer::Position from;
        std::int32_t count;
        TextBuffer::Position expected;
    } advances[] = {{5, -3, 5}, {195, 4, 199}, {195, 5, 0}, {10, 2 * SMALL_CAPACITY + 1, 11}};
    for (const auto& c : advances)
        EXPECT_EQ(buffer->AdvancePos(c.from, c.count), c.expected) << c.from << " + " << c.count;

    buffer->AppendText((std::string(SMALL_CAPACITY - 80, 'x') + "\nabc").c_str(), true);
    const auto head = buffer->GetHeadPos();
    ASSERT_GT(head, 0u);
    EXPECT_EQ(buffer->Offset(head), 0);
    EXPECT_EQ(buffer->Offset(buffer->Prev(head)), static_cast<std::int32_t>(SMALL_CAPACITY - 1));
    EXPECT_EQ(buffer->Offset(buffer->GetWritePos()),
              static_cast<std::int32_t>(RingText(*buffer).size()));
}

} // namespace
} // namespace steward::test
