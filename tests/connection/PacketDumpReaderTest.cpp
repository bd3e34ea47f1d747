#include "connection/PacketDumpReader.h"

#include "connection/ReplayFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace steward {
namespace {

using testing::ReadBytes;
using testing::TempFolder;
using testing::WriteBytes;
using Blocks = std::vector<std::string>;

struct Read {
    Blocks blocks;
    DumpProblems problems;
};

Read ReadDump(const std::string& text)
{
    std::istringstream in(text);
    PacketDumpReader reader(in);
    Read read;
    char block[RECEIVE_CHUNK_MAX];
    while (const std::size_t length = reader.NextBlock(block))
        read.blocks.emplace_back(block, length);
    read.problems = reader.Problems();
    return read;
}

// Each block dumped as the receive path dumps it, written out after each block.
std::string Dump(const Blocks& blocks)
{
    TempFolder folder;
    const std::string path = folder.File("dump.txt");
    PacketDump dump;
    EXPECT_TRUE(dump.OpenNew(path.c_str()));
    for (const std::string& block : blocks) {
        DumpPacket(dump, block.c_str());
        EXPECT_TRUE(dump.Flush());
    }
    dump.Close();
    return ReadBytes(path);
}

std::string Joined(const Blocks& blocks)
{
    std::string all;
    for (const std::string& block : blocks)
        all += block;
    return all;
}

// Random blocks with many NULs, colour-range and 0xFF bytes among the text.
Blocks RandomBlocks(unsigned seed)
{
    std::mt19937 random(seed);
    const char special[] = {'\0', '\x80', '\xFF', '\x1B', '\r', '\n', '\x7B'};
    Blocks blocks(1 + random() % 12);
    for (std::string& block : blocks) {
        // Full blocks are common in a flood; a NUL cuts a block short, so half have none.
        block.resize(random() % 3 == 0 ? RECEIVE_CHUNK_MAX : random() % RECEIVE_CHUNK_MAX);
        const std::size_t first = random() % 2;
        for (char& byte : block)
            byte = random() % 50 == 0 ? special[first + random() % (sizeof special - first)]
                                      : static_cast<char>(0x20 + random() % 0x60);
    }
    return blocks;
}

TEST(PacketDumpReader, ReadsBackTheBlocksAsTheDecoderSawThem)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        const Blocks blocks = RandomBlocks(seed);
        // A block ends at its first NUL for the dump as for the decoder; an empty one does nothing.
        Blocks seen;
        for (const std::string& block : blocks)
            if (const std::string head = block.substr(0, block.find('\0')); !head.empty())
                seen.push_back(head);
        const Read read = ReadDump(Dump(blocks));
        EXPECT_EQ(read.blocks, seen) << "seed " << seed;
        EXPECT_EQ(read.problems.BrokenRows + read.problems.UnevenBlocks, 0u) << "seed " << seed;
        EXPECT_FALSE(read.problems.CutRow) << "seed " << seed;
    }
}

TEST(PacketDumpReader, ADumpCutAnywherePlaysEveryHexPairBeforeTheCut)
{
    const Blocks blocks = {"Obvious exits: north, east.\r\n",
                           "\x1B"
                           "1ab>",
                           std::string(40, 'z')};
    const std::string dump = Dump(blocks);
    const std::string all = Joined(blocks);
    for (std::size_t cut = 0; cut <= dump.size(); ++cut) {
        const std::string part = dump.substr(0, cut);
        // The pairs that stand wholly in the part, counted row by row.
        std::size_t pairs = 0;
        bool insideRow = false;
        for (std::size_t start = 0; start < part.size();) {
            const std::size_t end = dump.find("\r\n", start);
            const bool row = dump.compare(start, 4, "----") != 0 && end > start;
            if (row) {
                // A row holds its pairs, two blanks and one character per byte.
                pairs +=
                    std::min((std::min(end, cut) - start + 1) / 3, end - start - DUMP_TEXT_COLUMN);
                insideRow = cut < end + 2;
            }
            start = end + 2;
        }
        const Read read = ReadDump(part);
        EXPECT_EQ(Joined(read.blocks), all.substr(0, pairs)) << "cut at " << cut;
        if (insideRow || cut == dump.size()) {
            EXPECT_EQ(read.problems.CutRow, insideRow) << "cut at " << cut;
        }
    }
}

const std::string ROW_ABC = "61 62 63" + std::string(42, ' ') + "abc";

TEST(PacketDumpReader, TakesWhatCanBeReadOfABrokenDumpAndSaysWhatWasWrong)
{
    const std::string full = "61 62 63 64 65 66 67 68 69 6A 6B 6C 6D 6E 6F 70   abcdefghijklmnop";
    ASSERT_EQ(ROW_ABC.size(), 53u);
    const struct {
        const char* name;
        std::string dump;
        Blocks blocks;
        std::uint64_t broken;
        std::uint64_t firstBroken;
        std::uint64_t uneven;
    } cases[] = {
        {"a line that is no row",
         "\r\n\r\n---- (3 bytes)\r\nhello\r\n" + ROW_ABC + "\r\n",
         {"abc"},
         1,
         4,
         0},
        {"a text part that disagrees keeps the hex",
         "\r\n\r\n---- (3 bytes)\r\n" + ROW_ABC.substr(0, 50) + "xyz\r\n",
         {"abc"},
         1,
         4,
         0},
        {"rows lost to a full buffer",
         "\r\n\r\n---- (20 bytes)\r\n" + full + "\r\n\r\n\r\n",
         {"abcdefghijklmnop"},
         0,
         0,
         1},
        {"two rows on one line keep the first",
         "\r\n\r\n---- (32 bytes)\r\n" + full + full + "\r\n",
         {"abcdefghijklmnop"},
         1,
         4,
         1},
        {"line feeds alone",
         "\n\n---- (3 bytes)\n" + ROW_ABC + "\n\n\n---- (3 bytes)\n" + ROW_ABC + "\n",
         {"abc", "abc"},
         0,
         0,
         0},
        {"an empty block is left out",
         "\r\n\r\n---- (0 bytes)\r\n\r\n\r\n---- (3 bytes)\r\n" + ROW_ABC + "\r\n",
         {"abc"},
         0,
         0,
         0},
        {"a header with too many digits is no header",
         "\r\n\r\n---- (99999999999999999999 bytes)\r\n" + ROW_ABC + "\r\n",
         {"abc"},
         1,
         3,
         0},
    };
    for (const auto& c : cases) {
        const Read read = ReadDump(c.dump);
        EXPECT_EQ(read.blocks, c.blocks) << c.name;
        EXPECT_EQ(read.problems.BrokenRows, c.broken) << c.name;
        EXPECT_EQ(read.problems.FirstBrokenLine, c.firstBroken) << c.name;
        EXPECT_EQ(read.problems.UnevenBlocks, c.uneven) << c.name;
    }
}

TEST(ReplayFile, TellsTheFormatByTheFirstBytesAndCutsRawBytesIntoBlocks)
{
    TempFolder folder;
    const struct {
        const char* name;
        std::string content;
        ReplayFormat format;
        Blocks blocks;
    } cases[] = {
        {"empty", "", ReplayFormat::Empty, {}},
        {"dump",
         "\r\n\r\n---- (3 bytes)\r\n" + ROW_ABC + "\r\n",
         ReplayFormat::PacketDump,
         {"abc"}},
        {"text",
         "Welcome to Thornmere!",
         ReplayFormat::RawBytes,
         {"Welco", "me to", " Thor", "nmere", "!"}},
        {"line ends and no header", "\r\n\r\n-- x", ReplayFormat::RawBytes, {"\r\n\r\n-", "- x"}},
    };
    for (const auto& c : cases) {
        const std::string path = folder.File(c.name);
        WriteBytes(path, c.content);
        ReplayFile file;
        ASSERT_TRUE(file.Open(path.c_str())) << c.name;
        EXPECT_EQ(file.Format(), c.format) << c.name;
        Blocks blocks;
        char block[RECEIVE_CHUNK_MAX];
        while (const std::size_t length = file.NextBlock(block, 5))
            blocks.emplace_back(block, length);
        EXPECT_EQ(blocks, c.blocks) << c.name;
    }
    ReplayFile missing;
    EXPECT_FALSE(missing.Open(folder.File("missing").c_str()));
    ReplayFile folderItself;
    EXPECT_FALSE(folderItself.Open(folder.Path().c_str()));
}

TEST(ReplayFile, GameTextHoldsNoNulAndFewBinaryBytes)
{
    const struct {
        std::string bytes;
        bool text;
    } cases[] = {
        {"You see a rat.\r\n\x1B"
         "1ab\x07",
         true},
        {std::string("a\0b", 3), false},
        {"\x91\xC3\xFFz", false},
        {"abcdefg\x81", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(LooksLikeGameText(c.bytes.data(), c.bytes.size()), c.text) << c.bytes;
}

TEST(ReplayFile, SpeedDividesTheWaitBetweenBlocks)
{
    // The wait in blocks' time at speed 1; the slowest replay still moves.
    const struct {
        const char* text;
        bool valid;
        double blocks;
    } cases[] = {
        {"1", true, 1},     {"2", true, 0.5}, {"0.25", true, 4},  {"0", true, 0},
        {"1e-9", true, -1}, {"-1", false, 0}, {"fast", false, 0}, {"2x", false, 0},
        {"inf", false, 0},  {"", false, 0},
    };
    for (const auto& c : cases) {
        double speed = -1;
        EXPECT_EQ(ReadReplaySpeed(c.text, speed), c.valid) << c.text;
        if (!c.valid)
            continue;
        EXPECT_EQ(ReplayWaitMs(speed),
                  c.blocks < 0 ? REPLAY_LONGEST_WAIT_MS : std::lround(REPLAY_BLOCK_MS * c.blocks))
            << c.text;
    }
}

} // namespace
} // namespace steward
