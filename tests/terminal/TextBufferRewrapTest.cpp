#include "TextBufferFixture.h"

#include <iterator>

namespace steward::test {
namespace {

constexpr std::uint32_t SMALL_CAPACITY = 200;

void Resize(TextBuffer& buffer, std::int32_t columns)
{
    buffer.SetGeometry(0, LimitForColumns(columns), UniformWidths());
    buffer.Rewrap();
}

struct RewrapCase {
    const char* name;
    std::int32_t appendColumns;
    std::int32_t rewrapColumns;
    const char* text;
    std::vector<std::string> rows;
};

class TextBufferRewraps : public testing::TestWithParam<RewrapCase> {};

TEST_P(TextBufferRewraps, ToTheNewWidth)
{
    const RewrapCase& c = GetParam();
    auto buffer = MakeWrappingBuffer(c.appendColumns);
    buffer->AppendText(c.text, true);
    Resize(*buffer, c.rewrapColumns);
    EXPECT_EQ(LastRows(*buffer, static_cast<std::int32_t>(c.rows.size())), c.rows);
}

INSTANTIATE_TEST_SUITE_P(
    Widths, TextBufferRewraps,
    testing::Values(
        RewrapCase{"WiderRemovesBreaks", 10, 20, "hello world again", {"", "hello world again"}},
        RewrapCase{
            "WiderKeepsNeededBreaks", 5, 12, "aaaa bbbb cccc dddd", {"aaaa bbbb", "cccc dddd"}},
        RewrapCase{"NarrowerAddsBreaks", 40, 10, "hello world again", {"hello", "world", "again"}},
        // The space after "four" is itself a character at the edge, so it breaks before "four".
        RewrapCase{"ASpaceAtTheEdgeBreaksBeforeTheWord",
                   10,
                   10,
                   "one two three four five six",
                   {"one two", "three", "four five", "six"}},
        RewrapCase{"HardLineEndsStay", 5, 40, "aaa bbb\nccc ddd", {"aaa bbb", "ccc ddd"}},
        RewrapCase{"LongWordStaysWhole", 40, 10, "abcdefghijklmnop qr", {"abcdefghijklmnop", "qr"}},
        RewrapCase{"TabSpacesAreMeasured", 10, 10, "ab\tcdefgh", {"ab    ", "cdefgh"}},
        RewrapCase{"ColorCodesHaveNoWidth",
                   40,
                   10,
                   "\x81"
                   "abcd fghi\xA0j",
                   {"", "\x81"
                        "abcd fghi\xA0j"}},
        RewrapCase{"RawFFBecomesASpace", 40, 40, "one\xFFtwo", {"", "one two"}}),
    [](const auto& info) { return info.param.name; });

TEST(TextBufferRewrap, TabsAreOnlyMeasuredByRewrap)
{
    auto buffer = MakeWrappingBuffer(10);
    buffer->AppendText("ab\tcdefgh", true);
    EXPECT_EQ(LastRows(*buffer, 1), (std::vector<std::string>{"ab     cdefgh"}));
}

TEST(TextBufferRewrap, NarrowWindowKeepsTheMinimumWidth)
{
    auto buffer = MakeBuffer();
    buffer->AppendText("ab cd ef gh", true);
    buffer->SetGeometry(4, 0, UniformWidths());
    buffer->Rewrap();
    EXPECT_EQ(LastRows(*buffer, 4), (std::vector<std::string>{"ab", "cd", "ef", "gh"}));
}

TEST(TextBufferRewrap, FreshAndEmptyBuffersAreLeftAlone)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    Resize(*buffer, 3);
    EXPECT_EQ(RingText(*buffer), std::string(99, '\n'));

    buffer->AppendText(std::string(300, 'x').c_str(), true);
    Resize(*buffer, 3);
    EXPECT_EQ(buffer->CountLines(), 0);
}

// For plain text, the soft line ends placed while appending at a width are those that Rewrap
// places for it from another width.
class TextBufferRewrapMatchesAppend : public testing::TestWithParam<std::int32_t> {};

const char* const WORDS[] = {"the ",
                             "quick ",
                             "brown ",
                             "fox ",
                             "jumps\n",
                             "over ",
                             "a ",
                             "lazy ",
                             "dog ",
                             "twice\n",
                             "unbreakablelongword ",
                             "end\n"};

TEST_P(TextBufferRewrapMatchesAppend, InAYoungBuffer)
{
    const std::int32_t columns = GetParam();
    auto appended = MakeWrappingBuffer(columns);
    auto rewrapped = MakeWrappingBuffer(80);
    for (int i = 0; i < 60; ++i) {
        const char* word = WORDS[i % std::size(WORDS)];
        appended->AppendText(word, true);
        rewrapped->AppendText(word, true);
        if (i % 7 == 0) {
            // Resizing back and forth leaves no trace.
            Resize(*rewrapped, columns + 3);
            Resize(*rewrapped, 80);
        }
    }
    Resize(*rewrapped, columns);
    EXPECT_EQ(RingText(*rewrapped), RingText(*appended));
    EXPECT_EQ(rewrapped->CountLines(), appended->CountLines());
}

// Rewrap depends on the text alone, not on the widths it was wrapped at before, also while
// the text runs across the seam.
TEST_P(TextBufferRewrapMatchesAppend, WhateverTheEarlierWidthAcrossTheSeam)
{
    const std::int32_t columns = GetParam();
    auto narrow = MakeWrappingBuffer(columns, SMALL_CAPACITY);
    auto wide = MakeWrappingBuffer(80, SMALL_CAPACITY);
    for (int i = 0; i < 60; ++i) {
        narrow->AppendText(WORDS[i % std::size(WORDS)], true);
        wide->AppendText(WORDS[i % std::size(WORDS)], true);
    }
    ASSERT_TRUE(narrow->IsWrapped());
    ASSERT_LT(narrow->GetWritePos(), narrow->GetHeadPos());
    Resize(*narrow, columns);
    Resize(*wide, columns);
    EXPECT_EQ(RingText(*wide), RingText(*narrow));
    EXPECT_EQ(AllLines(*wide), AllLines(*narrow));
}

INSTANTIATE_TEST_SUITE_P(Columns, TextBufferRewrapMatchesAppend, testing::Values(4, 7, 10, 16, 30));

} // namespace
} // namespace steward::test
