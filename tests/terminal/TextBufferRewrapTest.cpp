#include "TextBufferFixture.h"

namespace steward::test {
namespace {

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
