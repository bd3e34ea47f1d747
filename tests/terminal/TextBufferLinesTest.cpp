#include "TextBufferFixture.h"

#include <cstring>

namespace steward::test {
namespace {

constexpr std::uint32_t SMALL_CAPACITY = 200;
// Offset of the first appended byte in a fresh buffer.
constexpr std::int32_t TEXT_START = INITIAL_LINE_FEEDS - 1;

std::unique_ptr<TextBuffer> BufferWith(const char* text,
                                       std::uint32_t capacity = WINDOW_BUFFER_CAPACITY)
{
    auto buffer = MakeBuffer(capacity);
    buffer->AppendText(text, true);
    return buffer;
}

// A small ring whose head has crossed the seam: it keeps "A\nB", nothing of the flood.
std::unique_ptr<TextBuffer> BufferWithTwoLinesLeft()
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    buffer->AppendText(std::string(300, 'x').c_str(), true);
    buffer->AppendText("\nA\nB", true);
    EXPECT_EQ(RingText(*buffer), "A\nB");
    return buffer;
}

struct CountCase {
    const char* text;
    std::int32_t lines;
};

void PrintTo(const CountCase& c, std::ostream* out)
{
    *out << ::testing::PrintToString(std::string(c.text)) << " has " << c.lines << " lines";
}

class TextBufferCountLines : public testing::TestWithParam<CountCase> {};

TEST_P(TextBufferCountLines, AfterAFreshStart)
{
    EXPECT_EQ(BufferWith(GetParam().text)->CountLines(), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Texts, TextBufferCountLines,
                         testing::Values(CountCase{"abc\n", 100}, CountCase{"abc\ndef", 101},
                                         CountCase{"abc\n\n", 101},
                                         CountCase{"a\xFF"
                                                   "b",
                                                   101}));

struct TailCase {
    const char* name;
    const char* text;
    std::int32_t rows;
    std::vector<std::string> shown;
};

class TextBufferSeekFromEnd : public testing::TestWithParam<TailCase> {};

TEST_P(TextBufferSeekFromEnd, ShowsTheTail)
{
    auto buffer = BufferWith(GetParam().text);
    EXPECT_EQ(LastRows(*buffer, GetParam().rows), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TextBufferSeekFromEnd,
    testing::Values(TailCase{"OneRowShowsTheUnfinishedLine", "one\ntwo\nthree", 1, {"three"}},
                    TailCase{"ThreeRows", "one\ntwo\nthree", 3, {"one", "two", "three"}},
                    TailCase{"FinalLineFeedLeavesTheLastRowEmpty",
                             "one\ntwo\nthree\n",
                             3,
                             {"two", "three", ""}},
                    TailCase{"SoftLineEndsAreRows", "one\ntwo\xFFthree", 2, {"two", "three"}}),
    [](const auto& info) { return info.param.name; });

TEST(TextBufferSeekFromEnd, RowsBelowOneLeaveWalkPosOnTheEnd)
{
    auto buffer = BufferWith("one\ntwo");
    for (std::int32_t rows : {0, -1, -100}) {
        buffer->SeekLine(0);
        buffer->SeekFromEnd(rows);
        EXPECT_EQ(buffer->GetWalkPos(), buffer->GetWritePos()) << rows;
    }
}

TEST(TextBufferSeekFromEnd, MoreRowsThanLinesStopsAtTheHead)
{
    auto buffer = BufferWithTwoLinesLeft();
    buffer->SeekFromEnd(5);
    EXPECT_EQ(buffer->GetWalkPos(), buffer->GetHeadPos());
    EXPECT_EQ(LastRows(*buffer, 5), (std::vector<std::string>{"A", "B", "", "", ""}));
}

struct SeekCase {
    std::int32_t index;
    std::string line;
};

void PrintTo(const SeekCase& c, std::ostream* out)
{
    *out << "line " << c.index << " is " << ::testing::PrintToString(c.line);
}

class TextBufferSeekLine : public testing::TestWithParam<SeekCase> {};

TEST_P(TextBufferSeekLine, PutsWalkPosOnTheLineStart)
{
    auto buffer = BufferWith("one\ntwo\nthree");
    const auto p = buffer->SeekLine(GetParam().index);
    EXPECT_EQ(p, buffer->GetWalkPos());
    EXPECT_EQ(ReadOne(*buffer), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(Indexes, TextBufferSeekLine,
                         testing::Values(SeekCase{-3, ""}, SeekCase{98, ""}, SeekCase{99, "one"},
                                         SeekCase{101, "three"}, SeekCase{102, ""}));

TEST(TextBufferSeekLine, PastTheLastLineStandsOnTheEnd)
{
    auto buffer = BufferWith("one\ntwo\n");
    EXPECT_EQ(buffer->SeekLine(101), buffer->GetWritePos());
    EXPECT_EQ(buffer->SeekLine(1000), buffer->GetWritePos());
    EXPECT_EQ(buffer->SeekLine(0), buffer->GetHeadPos());
}

// Lines numbered from the head, read with SeekLine and from the tail, agree with what the ring
// keeps while the head goes round the seam.
TEST(TextBufferLineWalks, AgreeWithTheKeptTextAcrossTheSeam)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    for (int i = 0; i < 120; ++i) {
        const std::string line = "line " + std::to_string(i) + (i % 3 == 0 ? " longer\n" : "\n");
        buffer->AppendText(line.c_str(), true);
        const std::string kept = RingText(*buffer);
        std::vector<std::string> lines;
        std::size_t from = 0;
        for (std::size_t lf = kept.find('\n'); lf != std::string::npos;
             lf = kept.find('\n', from)) {
            lines.push_back(kept.substr(from, lf - from));
            from = lf + 1;
        }
        ASSERT_EQ(AllLines(*buffer), lines);
        if (lines.size() >= 4) {
            const std::vector<std::string> tail{lines.end() - 3, lines.end()};
            auto shown = LastRows(*buffer, 4);
            ASSERT_EQ(shown.back(), "");
            shown.pop_back();
            ASSERT_EQ(shown, tail);
        }
        for (std::int32_t index = 0; index < buffer->CountLines(); ++index) {
            ASSERT_EQ(buffer->LineIndexOf(buffer->SeekLine(index)), index);
        }
    }
}

TEST(TextBufferLineIndexOf, CountsTerminatorsUpToThePosition)
{
    auto buffer = BufferWith("one\ntwo\xFFthree");
    const auto head = buffer->GetHeadPos();
    EXPECT_EQ(buffer->LineIndexOf(head), 0);
    EXPECT_EQ(buffer->LineIndexOf(buffer->AdvancePos(head, TEXT_START)), 99);
    EXPECT_EQ(buffer->LineIndexOf(buffer->AdvancePos(head, TEXT_START + 5)), 100);
    EXPECT_EQ(buffer->LineIndexOf(buffer->AdvancePos(head, TEXT_START + 9)), 101);
    EXPECT_EQ(buffer->LineIndexOf(buffer->GetWritePos()), 101);
}

TEST(TextBufferLineIndexOf, PositionOutsideTheTextGivesZero)
{
    auto buffer = BufferWith("one\ntwo");
    EXPECT_EQ(buffer->LineIndexOf(buffer->Next(buffer->GetWritePos())), 0);
    EXPECT_EQ(buffer->LineIndexOf(WINDOW_BUFFER_CAPACITY - 1), 0);
}

// A line is cut at the limit, colour codes counted, and the walk still moves to the next line.
TEST(TextBufferReadLine, CutsAtTheLimitAndStillMovesToTheNextLine)
{
    for (const auto& [text, cut] : {std::pair{"abcdefgh\nnext", "abc"}, std::pair{"\x81"
                                                                                  "abcdef\nnext",
                                                                                  "\x81"
                                                                                  "ab"}}) {
        auto buffer = BufferWith(text);
        buffer->SeekLine(99);
        char out[16];
        std::memset(out, 0x7E, sizeof out);
        std::int32_t limit = 3;
        EXPECT_STREQ(buffer->ReadLine(out, limit, false, nullptr), cut);
        EXPECT_EQ(limit, 3);
        // Nothing written past limit + 3 bytes.
        EXPECT_EQ(out[6], 0x7E);
        EXPECT_EQ(ReadOne(*buffer), "next");
    }
}

TEST(TextBufferReadLine, LongLineLosesItsTailOnScreenOnly)
{
    const std::string longLine(600, 'x');
    auto buffer = BufferWith((longLine + "\nshort").c_str());
    buffer->SeekLine(99);
    EXPECT_EQ(ReadOne(*buffer), std::string(READ_LINE_LIMIT, 'x'));
    EXPECT_EQ(ReadOne(*buffer), "short");
    EXPECT_EQ(CopiedText(*buffer), longLine + "\r\nshort\r\n");
}

TEST(TextBufferReadLine, AtTheEndGivesEmptyLinesAndStays)
{
    auto buffer = BufferWith("last");
    buffer->SeekLine(1000);
    char out[READ_LINE_BUFFER_SIZE];
    std::int32_t limit = READ_LINE_LIMIT;
    bool seen = true;
    EXPECT_STREQ(buffer->ReadLine(out, limit, true, &seen), "");
    EXPECT_EQ(limit, 0);
    EXPECT_FALSE(seen);
    EXPECT_EQ(buffer->GetWalkPos(), buffer->GetWritePos());
}

struct MarkCase {
    const char* name;
    std::int32_t selStart; // relative to the start of "hello world"
    std::int32_t selEnd;
    bool useSelection;
    std::int32_t limit;
    std::string line;
    bool seen;
};

class TextBufferSelectionMarks : public testing::TestWithParam<MarkCase> {};

TEST_P(TextBufferSelectionMarks, BracketTheSelectedBytes)
{
    const MarkCase& c = GetParam();
    auto buffer = BufferWith("hello world\nsecond");
    buffer->SetSelection(TEXT_START + c.selStart, TEXT_START + c.selEnd);
    buffer->SeekLine(99);
    char out[READ_LINE_BUFFER_SIZE + 8];
    std::memset(out, 0x7E, sizeof out);
    std::int32_t limit = c.limit;
    bool seen = !c.seen;
    EXPECT_EQ(std::string(buffer->ReadLine(out, limit, c.useSelection, &seen)), c.line);
    EXPECT_EQ(seen, c.seen);
    EXPECT_LE(std::strlen(out) + 1, static_cast<std::size_t>(c.limit + READ_LINE_EXTRA));
    EXPECT_EQ(ReadOne(*buffer), "second");
}

INSTANTIATE_TEST_SUITE_P(
    Selections, TextBufferSelectionMarks,
    testing::Values(MarkCase{"None", 0, 0, true, 511, "hello world", false},
                    MarkCase{"NotWanted", 0, 5, false, 511, "hello world", false},
                    MarkCase{"FirstWord", 0, 5, true, 511, "\xA2hello\xA3 world", true},
                    MarkCase{"Reversed", 5, 0, true, 511, "\xA2hello\xA3 world", true},
                    MarkCase{"ToTheLineEnd", 6, 11, true, 511, "hello \xA2world\xA3", true},
                    MarkCase{"BeganOnAnEarlierLine", -1, 3, true, 511, "\xA2hel\xA3lo world", true},
                    MarkCase{"CoversTheWholeLine", -9, 20, true, 511, "\xA2hello world\xA3", true},
                    MarkCase{"EndsWhereTheLineBegins", -4, 0, true, 511, "\xA3hello world", false},
                    MarkCase{"OnALaterLine", 13, 15, true, 511, "hello world", false},
                    MarkCase{"CutInsideTheSelection", 0, 5, true, 3, "\xA2hel\xA3", true},
                    MarkCase{"CutBeforeTheSelection", 6, 11, true, 3, "hel", false},
                    MarkCase{"MaximalMarksAtTheLimit", -1, 2, true, 2, "\xA2he\xA3", true}),
    [](const auto& info) { return info.param.name; });

} // namespace
} // namespace steward::test
