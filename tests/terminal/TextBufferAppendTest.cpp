#include "TextBufferFixture.h"

namespace steward::test {
namespace {

// The bytes that one append stored behind the initial line feeds of a fresh buffer.
std::string StoredAfterFreshStart(const TextBuffer& buffer)
{
    return RingText(buffer).substr(INITIAL_LINE_FEEDS - 1);
}

// Text, then a run of spaces, then more text.
std::string WithSpaces(const char* before, std::size_t spaces, const char* after)
{
    std::string text = before;
    text.append(spaces, ' ');
    text += after;
    return text;
}

TEST(TextBufferCreate, RefusesRingsTooSmallForTheInitialLines)
{
    EXPECT_EQ(TextBuffer::CreateTextBuffer(0), nullptr);
    EXPECT_EQ(TextBuffer::CreateTextBuffer(INITIAL_LINE_FEEDS), nullptr);
    EXPECT_NE(TextBuffer::CreateTextBuffer(MIN_BUFFER_CAPACITY), nullptr);
    auto game = TextBuffer::CreateTextBuffer(GAME_BUFFER_CAPACITY);
    ASSERT_NE(game, nullptr);
    EXPECT_EQ(game->GetCapacity(), GAME_BUFFER_CAPACITY);
}

TEST(TextBufferCreate, FreshBufferReadsAsNinetyNineEmptyLines)
{
    auto buffer = MakeBuffer();
    EXPECT_EQ(buffer->CountLines(), 99);
    EXPECT_EQ(RingText(*buffer), std::string(99, '\n'));
    EXPECT_EQ(CopiedText(*buffer), "\r\n");
    EXPECT_EQ(LastRows(*buffer, 3), (std::vector<std::string>{"", "", ""}));
}

TEST(TextBufferAppend, FirstTextShowsOnTheBottomRow)
{
    auto buffer = MakeBuffer();
    buffer->AppendText("abc", true);
    EXPECT_EQ(buffer->CountLines(), 100);
    EXPECT_EQ(LastRows(*buffer, 3), (std::vector<std::string>{"", "", "abc"}));
}

struct StoreCase {
    const char* name;
    const char* text;
    std::string stored;
};

class TextBufferStores : public testing::TestWithParam<StoreCase> {};

TEST_P(TextBufferStores, WhatTheRingKeeps)
{
    auto buffer = MakeBuffer();
    buffer->AppendText(GetParam().text, true);
    EXPECT_EQ(StoredAfterFreshStart(*buffer), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(ControlBytes, TextBufferStores,
                         testing::Values(StoreCase{"CrLfStoresOneByte", "\r\n", "\n"},
                                         StoreCase{"LfCr", "a\n\rb", "a\nb"},
                                         StoreCase{"LoneCrMovesNoText", "ab\rcd", "abcd"},
                                         StoreCase{"BellIsNotStored",
                                                   "a\x07"
                                                   "b",
                                                   "ab"},
                                         StoreCase{"EscapeBackspaceAndHighBytesAreCharacters",
                                                   "\x1b[0m\x08\xA4\xFE", "\x1b[0m\x08\xA4\xFE"},
                                         StoreCase{"ColorCodes", "\x85red\xA0", "\x85red\xA0"},
                                         StoreCase{"RawFFIsStored",
                                                   "a\xFF"
                                                   "b",
                                                   "a\xFF"
                                                   "b"}),
                         [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Tabs, TextBufferStores,
    testing::Values(
        StoreCase{"AtColumnZeroGivesSeven", "\tx", WithSpaces("", 7, "x")},
        StoreCase{"AtColumnSixGivesOne", "123456\tx", "123456 x"},
        StoreCase{"AtColumnSevenGivesEight", "1234567\tx", WithSpaces("1234567", 8, "x")},
        StoreCase{"TwoTabs", "\t\tx", WithSpaces("", 15, "x")},
        StoreCase{"ColorCodesTakeNoColumn", "\x81\tx", WithSpaces("\x81", 7, "x")},
        StoreCase{"CarriageReturnRestartsColumns", "abc\r\tx", WithSpaces("abc", 7, "x")},
        StoreCase{"LineFeedRestartsColumns", "abc\n\tx", WithSpaces("abc\n", 7, "x")}),
    [](const auto& info) { return info.param.name; });

TEST(TextBufferAppend, TabColumnsCarryOverBetweenAppends)
{
    auto buffer = MakeBuffer();
    buffer->AppendText("abc", true);
    buffer->AppendText("\tx", true);
    EXPECT_EQ(StoredAfterFreshStart(*buffer), "abc    x");
}

TEST(TextBufferBell, EachBellByteBeepsOnce)
{
    auto buffer = MakeBuffer();
    RecordingBell bell;
    buffer->SetBellListener(&bell);
    buffer->AppendText("\x07"
                       "ding\x07\x07",
                       true);
    EXPECT_EQ(bell.beeps, 3);
    EXPECT_EQ(StoredAfterFreshStart(*buffer), "ding");
}

TEST(TextBufferBell, WithoutListenerTheBellIsSilentlyDropped)
{
    auto buffer = MakeBuffer();
    buffer->AppendText("a\x07", false);
    EXPECT_EQ(StoredAfterFreshStart(*buffer), "a");
}

struct WrapCase {
    const char* name;
    std::int32_t columns;
    const char* text;
    std::vector<std::string> rows;
};

class TextBufferWraps : public testing::TestWithParam<WrapCase> {};

TEST_P(TextBufferWraps, BreaksAtTheLastSpaceBeforeTheLimit)
{
    auto buffer = MakeWrappingBuffer(GetParam().columns);
    buffer->AppendText(GetParam().text, true);
    const auto rows = static_cast<std::int32_t>(GetParam().rows.size());
    EXPECT_EQ(LastRows(*buffer, rows), GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(
    AtTheWidth, TextBufferWraps,
    testing::Values(
        WrapCase{"FitsExactly", 10, "abcd efghi", {"", "abcd efghi"}},
        WrapCase{"OneTooMany", 10, "abcd efghij", {"abcd", "efghij"}},
        WrapCase{"NoSpaceIsNeverBroken", 10, "abcdefghijklmnopqrst", {"", "abcdefghijklmnopqrst"}},
        WrapCase{
            "LongWordThenSpace", 10, "abcdefghijklmnopqrst end", {"abcdefghijklmnopqrst", "end"}},
        WrapCase{"NotAcrossAHardLineEnd", 10, "abc defg\nhijklmnopq", {"abc defg", "hijklmnopq"}},
        WrapCase{"NotAcrossASoftLineEnd", 10, "aaaa bbbbbbbbbbbbbb", {"aaaa", "bbbbbbbbbbbbbb"}},
        WrapCase{"OnTheLastSpaceOfATab", 10, "\tabcdefghijk", {"      ", "abcdefghijk"}},
        WrapCase{
            "ColorCodesHaveNoWidthWhileAppending", 10, "abcd fghi\x81j", {"", "abcd fghi\x81j"}},
        WrapCase{"ColorCodesAreMeasuredBehindABreak",
                 10,
                 "hello wor\x81ld abcd",
                 {"hello", "wor\x81ld", "abcd"}},
        WrapCase{"CarriageReturnRestartsTheRow", 10, "abcdefgh\rij kl", {"", "abcdefghij kl"}}),
    [](const auto& info) { return info.param.name; });

TEST(TextBufferWrap, SoftLineEndsAreLinesEverywhere)
{
    auto buffer = MakeWrappingBuffer(10);
    buffer->AppendText("hello world again\n", true);
    EXPECT_EQ(buffer->CountLines(), 99 + 3);
    buffer->SeekLine(100);
    EXPECT_EQ(ReadOne(*buffer), "world");
    EXPECT_EQ(CopiedText(*buffer), "hello world again\r\n\r\n");
}

TEST(TextBufferWrap, MarginAndNarrowWindowKeepTwentyFivePixels)
{
    auto buffer = MakeBuffer();
    buffer->SetGeometry(4, 10, UniformWidths());
    EXPECT_EQ(buffer->GetWrapLimit(), 4 + MIN_WRAP_WIDTH);
    buffer->AppendText("abc def", true);
    EXPECT_EQ(LastRows(*buffer, 2), (std::vector<std::string>{"abc", "def"}));
}

} // namespace
} // namespace steward::test
