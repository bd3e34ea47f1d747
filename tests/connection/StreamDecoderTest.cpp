#include "connection/DecoderFixture.h"

#include <gtest/gtest.h>

#include <random>

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
    {"a second CR finds nothing open", "\0331xya\rb\rc", 10, "\212a\240\rb\rc"},
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

// What the decoder hands on, byte by byte: reads of at most RECEIVE_CHUNK_MAX bytes, each up to
// its first NUL; a line ends after LF or at LINE_BUFFER_SIZE bytes and, unless partial lines are
// held, at the end of each read; bit seven is cleared.
Lines ModelLines(const Lines& reads, bool hold)
{
    Lines lines;
    std::string line;
    const auto deliver = [&] {
        lines.push_back(line);
        line.clear();
    };
    for (const std::string& read : reads) {
        for (std::size_t at = 0; at == 0 || at < read.size(); at += RECEIVE_CHUNK_MAX) {
            const std::string block = read.substr(at, RECEIVE_CHUNK_MAX);
            for (const char c : block.substr(0, block.find('\0'))) {
                line += static_cast<char>(c & 0x7F);
                if (c == '\n' || line.size() == LINE_BUFFER_SIZE)
                    deliver();
            }
            if (!hold && !line.empty())
                deliver();
        }
    }
    return lines;
}

TEST(LineAssembly, LinesEndAtLineFeedTheLimitOrTheReadUnlessHeld)
{
    // Runs of text just below, at and beyond the line limit, and line feeds right behind them.
    const std::size_t runs[] = {LINE_BUFFER_SIZE - 2, LINE_BUFFER_SIZE - 1, LINE_BUFFER_SIZE,
                                2 * LINE_BUFFER_SIZE};
    const std::string pieces[] = {"a", "b\n", "\r", "\n", std::string(1, '\0'), "\xC1"};
    for (unsigned seed = 1; seed <= 300; ++seed) {
        std::mt19937 random(seed);
        Lines reads(1 + random() % 12);
        for (std::string& read : reads) {
            for (unsigned n = random() % 7; n > 0; --n) {
                if (random() % 4 == 0)
                    read.append(random() % 2 ? runs[random() % 4] : random() % 3000, 'a');
                else
                    read += pieces[random() % std::size(pieces)];
            }
        }
        for (const bool hold : {false, true}) {
            SCOPED_TRACE(::testing::Message() << "seed " << seed << (hold ? " held" : ""));
            testing::RecordingSink sink;
            PacketDump dump;
            Settings settings;
            StreamDecoder decoder{sink, dump, settings};
            decoder.SetHoldPartialLines(hold);
            for (const std::string& read : reads)
                decoder.HandleSocketEvent(read.data(), read.size());
            EXPECT_EQ(sink.lines, ModelLines(reads, hold));
        }
    }
}

using LineAssemblyTest = testing::DecoderTest;

// The read size stays within the receive buffer.
TEST_F(LineAssemblyTest, ReadSizes)
{
    const std::pair<std::int32_t, std::size_t> sizes[] = {{1024, 1024}, {256, 256}, {2048, 2048},
                                                          {5000, 2048}, {100, 256}, {-1, 256}};
    for (const auto& [asked, used] : sizes) {
        settings.ReceiveChunkSize = asked;
        EXPECT_EQ(decoder.ReceiveChunkSize(), used) << asked;
    }
}

} // namespace
} // namespace steward
