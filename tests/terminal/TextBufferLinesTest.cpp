#include "TextBufferFixture.h"

#include <cstring>

namespace steward::test {
namespace {

using Rows = std::vector<std::string>;

// Counts and lines at random are checked against the reference in TextBufferModelTest.
TEST(TextBufferLines, SeekFromEndStopsAtTheEnds)
{
    auto buffer = BufferWith("one\ntwo");
    for (std::int32_t rows : {0, -1, -100}) {
        buffer->SeekLine(0);
        buffer->SeekFromEnd(rows);
        EXPECT_EQ(buffer->GetWalkPos(), buffer->GetWritePos()) << rows;
    }
    // A small ring whose head has crossed the seam keeps "A\nB" alone.
    buffer = BufferWith(std::string(300, 'x').c_str(), SMALL_CAPACITY);
    buffer->AppendText("\nA\nB", true);
    buffer->SeekFromEnd(5);
    EXPECT_EQ(buffer->GetWalkPos(), buffer->GetHeadPos());
    EXPECT_EQ(LastRows(*buffer, 5), (Rows{"A", "B", "", "", ""}));
}

// Positions outside the kept text belong to no line.
TEST(TextBufferLines, LineIndexOfOutsideTheTextIsZero)
{
    auto buffer = BufferWith("one\ntwo\xFFthree");
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
        EXPECT_EQ(out[6], 0x7E);
        EXPECT_EQ(ReadOne(*buffer), "next");
    }
    const std::string longLine(600, 'x');
    auto buffer = BufferWith((longLine + "\nshort").c_str());
    buffer->SeekLine(99);
    EXPECT_EQ(ReadOne(*buffer), std::string(READ_LINE_LIMIT, 'x'));
    EXPECT_EQ(ReadOne(*buffer), "short");
    EXPECT_EQ(CopiedText(*buffer), longLine + "\r\nshort\r\n");

    buffer->SeekLine(1000);
    char out[READ_LINE_BUFFER_SIZE];
    std::int32_t limit = READ_LINE_LIMIT;
    bool seen = true;
    EXPECT_STREQ(buffer->ReadLine(out, limit, true, &seen), "");
    EXPECT_EQ(limit, 0);
    EXPECT_FALSE(seen);
    EXPECT_EQ(buffer->GetWalkPos(), buffer->GetWritePos());
}

TEST(TextBufferReadLine, SelectionMarksBracketTheSelectedBytes)
{
    const struct {
        std::int32_t selStart; // relative to the start of "hello world"
        std::int32_t selEnd;
        bool useSelection;
        std::int32_t limit;
        std::string line;
        bool seen;
    } cases[] = {{0, 0, true, 511, "hello world", false},
                 {0, 5, false, 511, "hello world", false},
                 {0, 5, true, 511, "\xA2hello\xA3 world", true},
                 {5, 0, true, 511, "\xA2hello\xA3 world", true},
                 {6, 11, true, 511, "hello \xA2world\xA3", true},
                 {-1, 3, true, 511, "\xA2hel\xA3lo world", true},
                 {-9, 20, true, 511, "\xA2hello world\xA3", true},
                 {-4, 0, true, 511, "\xA3hello world", false},
                 {13, 15, true, 511, "hello world", false},
                 {0, 5, true, 3, "\xA2hel\xA3", true},
                 {6, 11, true, 3, "hel", false},
                 {-1, 2, true, 2, "\xA2he\xA3", true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.selStart << ".." << c.selEnd << " limit " << c.limit);
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
}

} // namespace
} // namespace steward::test
