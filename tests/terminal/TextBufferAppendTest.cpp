#include "TextBufferFixture.h"

namespace steward::test {
namespace {

using Rows = std::vector<std::string>;

class RecordingBell : public BellListener {
  public:
    void Beep() override { ++beeps; }
    int beeps = 0;
};

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
    EXPECT_EQ(LastRows(*buffer, 3), (Rows{"", "", ""}));
    buffer->AppendText("abc", true);
    EXPECT_EQ(buffer->CountLines(), 100);
    EXPECT_EQ(LastRows(*buffer, 3), (Rows{"", "", "abc"}));
}

// What one append stores behind the initial line feeds of a fresh buffer.
TEST(TextBufferAppend, StoresControlBytesTabsAndCodes)
{
    const struct {
        const char* text;
        std::string stored;
    } cases[] = {{"\r\n", "\n"},
                 {"a\n\rb", "a\nb"},
                 {"ab\rcd", "abcd"},
                 {"\x1b[0m\x08\xA4\xFE", "\x1b[0m\x08\xA4\xFE"},
                 {"\x85red\xA0", "\x85red\xA0"},
                 {"a\xFF", "a\xFF"},
                 {"\tx", "       x"},
                 {"123456\tx", "123456 x"},
                 {"1234567\tx", "1234567        x"},
                 {"\t\tx", std::string(15, ' ') + "x"},
                 {"\x81\tx", "\x81       x"},
                 {"abc\r\tx", "abc       x"},
                 {"abc\n\tx", "abc\n       x"}};
    for (const auto& c : cases) {
        auto buffer = BufferWith(c.text);
        EXPECT_EQ(RingText(*buffer).substr(TEXT_START), c.stored) << c.text;
    }
}

TEST(TextBufferAppend, EachBellByteBeepsOnceAndIsNotStored)
{
    auto buffer = MakeBuffer();
    buffer->AppendText("a\x07", false);
    RecordingBell bell;
    buffer->SetBellListener(&bell);
    buffer->AppendText("\x07"
                       "ding\x07\x07",
                       true);
    EXPECT_EQ(bell.beeps, 3);
    EXPECT_EQ(RingText(*buffer).substr(TEXT_START), "ading");
}

// Appends break at the last space before the limit.
TEST(TextBufferAppend, WrapsAtTheWidth)
{
    const struct {
        const char* text;
        Rows rows;
    } cases[] = {{"abcd efghi", {"", "abcd efghi"}},
                 {"abcd efghij", {"abcd", "efghij"}},
                 {"abcdefghijklmnopqrst", {"", "abcdefghijklmnopqrst"}},
                 {"abcdefghijklmnopqrst end", {"abcdefghijklmnopqrst", "end"}},
                 {"abc defg\nhijklmnopq", {"abc defg", "hijklmnopq"}},
                 {"aaaa bbbbbbbbbbbbbb", {"aaaa", "bbbbbbbbbbbbbb"}},
                 {"\tabcdefghijk", {"      ", "abcdefghijk"}},
                 {"abcd fghi\x81j", {"", "abcd fghi\x81j"}},
                 {"hello wor\x81ld abcd", {"hello", "wor\x81ld", "abcd"}},
                 {"abcdefgh\rij kl", {"", "abcdefghij kl"}}};
    for (const auto& c : cases) {
        auto buffer = MakeWrappingBuffer(10, WINDOW_BUFFER_CAPACITY, c.text);
        EXPECT_EQ(LastRows(*buffer, static_cast<std::int32_t>(c.rows.size())), c.rows) << c.text;
    }
}

TEST(TextBufferAppend, MarginAndNarrowWindowKeepTheMinimumWidth)
{
    auto buffer = MakeBuffer();
    buffer->SetGeometry(4, 10, UniformWidths());
    EXPECT_EQ(buffer->GetWrapLimit(), 4 + MIN_WRAP_WIDTH);
    buffer->AppendText("abc def", true);
    EXPECT_EQ(LastRows(*buffer, 2), (Rows{"abc", "def"}));
}

// Rewrap at random widths is checked against a reference in TextBufferModelTest; these rows
// name the rules.
TEST(TextBufferRewrap, ToTheNewWidth)
{
    const struct {
        std::int32_t appendColumns;
        std::int32_t rewrapColumns;
        const char* text;
        std::vector<std::string> rows;
    } cases[] = {
        {10, 20, "hello world again", {"", "hello world again"}},
        {5, 12, "aaaa bbbb cccc dddd", {"aaaa bbbb", "cccc dddd"}},
        {40, 10, "hello world again", {"hello", "world", "again"}},
        // The space after "four" is itself a character at the edge, so it breaks before "four".
        {10, 10, "one two three four five six", {"one two", "three", "four five", "six"}},
        {5, 40, "aaa bbb\nccc ddd", {"aaa bbb", "ccc ddd"}},
        {40, 10, "abcdefghijklmnop qr", {"abcdefghijklmnop", "qr"}},
        {10, 10, "ab\tcdefgh", {"ab    ", "cdefgh"}},
        {40,
         10,
         "\x81"
         "abcd fghi\xA0j",
         {"", "\x81"
              "abcd fghi\xA0j"}},
        {40, 40, "one\xFFtwo", {"", "one two"}}};
    for (const auto& c : cases) {
        auto buffer = MakeWrappingBuffer(c.appendColumns, WINDOW_BUFFER_CAPACITY, c.text);
        Resize(*buffer, c.rewrapColumns);
        EXPECT_EQ(LastRows(*buffer, static_cast<std::int32_t>(c.rows.size())), c.rows) << c.text;
    }
}

TEST(TextBufferRewrap, KeepsTheMarginAndTheMinimumWidthAndLeavesAFreshRingAlone)
{
    // Twelve pixels of margin leave room for three characters before the limit.
    auto buffer = BufferWith("ab c de");
    buffer->SetGeometry(12, 0, UniformWidths());
    EXPECT_EQ(buffer->GetWrapLimit(), 12 + MIN_WRAP_WIDTH);
    buffer->Rewrap();
    EXPECT_EQ(LastRows(*buffer, 3), (std::vector<std::string>{"ab", "c", "de"}));

    buffer = MakeBuffer(SMALL_CAPACITY);
    Resize(*buffer, 3);
    EXPECT_EQ(RingText(*buffer), std::string(99, '\n'));
}

} // namespace
} // namespace steward::test
