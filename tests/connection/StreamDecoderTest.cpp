#include "connection/DecoderFixture.h"

#include <gtest/gtest.h>

namespace steward {
namespace {

using testing::Lines;

class ColorDecodingTest : public testing::DecoderTest {
  protected:
    std::string Decode(const std::string& raw, unsigned char saysColor = 10)
    {
        settings.SaysColor = saysColor;
        sink.lines.clear();
        decoder.DecodeGameLine(raw.c_str());
        EXPECT_EQ(sink.lines.size(), 1u);
        return sink.lines.empty() ? std::string() : sink.lines.back();
    }
};

struct ColorCase {
    const char* name;
    std::string raw;
    unsigned char saysColor;
    std::string decoded;
};

const ColorCase COLOR_CASES[] = {
    {"plain text", "You see a tree.\r\n", 10, "You see a tree.\r\n"},
    {"speech with background", "T\0331xyU\0330xy\r\n", 0x1A, "T\221\212U\241\240\r\n"},
    {"speech with default colour", "T\0331xyU\0330xy\r\n", 10, "T\212U\240\r\n"},
    {"token bytes x and y are never read", "\0331\033\033a\0330\n\r", 10, "\212a\240"},
    {"off with nothing open", "a\0330xyb", 10, "a\240b"},
    {"off with nothing open ignores the colour", "\0330xy", 0x1A, "\240"},
    {"two on in a row close the first", "\0331xy\0331xyA", 10, "\212\240\212A"},
    {"CR closes an open colour", "\0331xyhi\r\n", 10, "\212hi\240\r\n"},
    {"CR then off closes twice", "\0331xya\rb\0330xy\n", 0x1A, "\221\212a\241\240\rb\241\240\n"},
    {"colour left open at the line end", "\0331xyhi\n", 10, "\212hi\n"},
    {"ESC before any other byte stays", "\033[0m", 10, "\033[0m"},
    {"ESC ESC then selector keeps the first ESC", "\033\0331xyz", 10, "\033\212z"},
    {"status record passes", "\033\033>00140014\033\r\n", 10, "\033\033>00140014\033\r\n"},
    {"ESC at the line end", "a\033", 10, "a\033"},
    {"token cut after its selector", "a\0331", 10, "a\212"},
    {"high bit is cleared", "\301\342\377", 10, "Ab\177"},
    {"0x8D is no CR", "\0331xy\215\n", 10, "\212\r\n"},
    {"0x9B is no ESC", "\2331xy", 10, "\0331xy"},
    {"0xB1 is no selector", "\033\261xy", 10, "\0331xy"},
    {"0x80 ends the text for later stages", "ab\200cd\n", 10, "ab"},
};

TEST_F(ColorDecodingTest, TokensBecomeColorCodesAndTextLosesBitSeven)
{
    for (const ColorCase& c : COLOR_CASES)
        EXPECT_EQ(Decode(c.raw, c.saysColor), c.decoded) << c.name;
}

// The colour state and a 0x80 end with their line; a token cut by a block end breaks while
// partial lines are not held, and one cut by the line limit is not repaired.
TEST_F(ColorDecodingTest, TokensAcrossLinesBlocksAndTheLineLimit)
{
    Decode("\0331xyopen\n", 0x1A);
    EXPECT_EQ(Decode("\0330xy\r\n", 0x1A), "\240\r\n");
    settings.SaysColor = 10;
    EXPECT_EQ(Receive({"ab\200cd\nnext\n"}, false), (Lines{"ab", "next\n"}));

    struct CutCase {
        Lines blocks;
        Lines notHeld;
        Lines held;
    };
    const CutCase cases[] = {
        {{"say \033", "1xyhi\0330xy\r\n"}, {"say \033", "1xyhi\240\r\n"}, {"say \212hi\240\r\n"}},
        {{"say \0331", "xyhi\r\n"}, {"say \212", "xyhi\r\n"}, {"say \212hi\240\r\n"}},
        {{"say \0331xy", "hi\r\n"}, {"say \212", "hi\r\n"}, {"say \212hi\240\r\n"}},
        {{"\0331xyhi", "\0330xy\r\n"}, {"\212hi", "\240\r\n"}, {"\212hi\240\r\n"}},
    };
    for (const CutCase& c : cases) {
        EXPECT_EQ(Receive(c.blocks, false), c.notHeld) << c.blocks[0];
        EXPECT_EQ(Receive(c.blocks, true), c.held) << c.blocks[0];
    }
    const std::string text(4095, 'a');
    EXPECT_EQ(Receive({text.substr(0, 2048), text.substr(2048), "\0331xyU\r\n"}, true),
              (Lines{text + "\212", "xyU\r\n"}));
}

struct LineCase {
    const char* name;
    Lines blocks;
    Lines held;    // delivered with HoldPartialLines on
    Lines notHeld; // delivered with HoldPartialLines off
};

std::string Bytes(const char* text, std::size_t length)
{
    return {text, length};
}

// Cuts a stream into blocks as a socket delivering 1024 bytes a read would.
Lines Cut(const std::string& stream)
{
    Lines blocks;
    for (std::size_t at = 0; at < stream.size(); at += 1024)
        blocks.push_back(stream.substr(at, 1024));
    return blocks;
}

using LineAssemblyTest = testing::DecoderTest;

const std::string A1024(1024, 'a');
const std::string A4096(4096, 'a');
const std::string A4097(4097, 'a');

const LineCase LINE_CASES[] = {
    {"several lines in one block",
     {"a\r\nb\r\nc\r\n"},
     {"a\r\n", "b\r\n", "c\r\n"},
     {"a\r\n", "b\r\n", "c\r\n"}},
    {"line cut by a block end",
     {"You se", "e a tree.\n"},
     {"You see a tree.\n"},
     {"You se", "e a tree.\n"}},
    {"prompt without line end", {">"}, {}, {">"}},
    {"LF ends a line, CR stays in the text",
     {"a\n\rb\r\n"},
     {"a\n", "\rb\r\n"},
     {"a\n", "\rb\r\n"}},
    {"bare CR ends nothing", {"a\rb\n"}, {"a\rb\n"}, {"a\rb\n"}},
    {"empty lines", {"\n\n"}, {"\n", "\n"}, {"\n", "\n"}},
    {"NUL drops the rest of the block", {Bytes("ab\ncd\0ef\ngh\n", 13)}, {"ab\n"}, {"ab\n", "cd"}},
    {"NUL first drops the whole block", {Bytes("\0ab\n", 4), "c\n"}, {"c\n"}, {"c\n"}},
    {"held bytes join the next block",
     {Bytes("ab\ncd\0x\n", 8), "ef\n"},
     {"ab\n", "cdef\n"},
     {"ab\n", "cd", "ef\n"}},
    {"empty block", {""}, {}, {}},
    {"4096 bytes and LF make one line",
     Cut(A4096 + "\nb\n"),
     {A4096 + "\n", "b\n"},
     {A1024, A1024, A1024, A1024, "\n", "b\n"}},
    {"4097 bytes make one line", Cut(A4097), {A4097}, {A1024, A1024, A1024, A1024, "a"}},
    {"byte 4098 starts a new line",
     Cut(A4097 + "b\n"),
     {A4097, "b\n"},
     {A1024, A1024, A1024, A1024, "ab\n"}},
    {"LF behind 4097 bytes is a line of its own",
     Cut(A4097 + "\n"),
     {A4097, "\n"},
     {A1024, A1024, A1024, A1024, "a\n"}},
    {"long line is cut again and again",
     Cut(std::string(8194, 'a') + "\n"),
     {A4097, A4097, "\n"},
     {A1024, A1024, A1024, A1024, A1024, A1024, A1024, A1024, "aa\n"}},
};

TEST_F(LineAssemblyTest, LinesEndAtLineFeedTheLimitOrTheBlockUnlessHeld)
{
    for (const LineCase& c : LINE_CASES) {
        for (const bool hold : {true, false}) {
            testing::RecordingSink fresh;
            StreamDecoder local{fresh, dump, settings};
            local.SetHoldPartialLines(hold);
            for (const std::string& block : c.blocks)
                local.HandleSocketEvent(block.data(), block.size());
            EXPECT_EQ(fresh.lines, hold ? c.held : c.notHeld)
                << c.name << (hold ? " (held)" : " (not held)");
        }
    }
}

// An overlong read is taken as several blocks; the read size stays within the receive buffer.
TEST_F(LineAssemblyTest, ReadSizes)
{
    EXPECT_EQ(Receive({std::string(RECEIVE_CHUNK_MAX + 10, 'a')}, false),
              (Lines{std::string(RECEIVE_CHUNK_MAX, 'a'), std::string(10, 'a')}));
    const std::pair<std::int32_t, std::size_t> sizes[] = {{1024, 1024}, {256, 256}, {2048, 2048},
                                                          {5000, 2048}, {100, 256}, {-1, 256}};
    for (const auto& [asked, used] : sizes) {
        settings.ReceiveChunkSize = asked;
        EXPECT_EQ(decoder.ReceiveChunkSize(), used) << asked;
    }
}

} // namespace
} // namespace steward
