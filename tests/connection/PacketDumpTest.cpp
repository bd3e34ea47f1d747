#include "connection/PacketDump.h"
#include "config/LogHost.h"
#include "connection/DecoderFixture.h"
#include "connection/PacketDumpReader.h"
#include "connection/ReplayFile.h"
#include "connection/StreamDecoder.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace steward {
namespace {

using testing::ReadBytes;
using testing::TempFolder;

class PacketDumpTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(dump.OpenNew(path.c_str())); }

    std::string Dumped(const std::string& block)
    {
        DumpPacket(dump, block.c_str());
        dump.Close();
        return ReadBytes(path);
    }

    TempFolder folder;
    std::string path = folder.File("Packets.txt");
    PacketDump dump;
};

struct DumpCase {
    const char* name;
    std::string block;
    std::string listing;
};

const DumpCase DUMP_CASES[] = {
    {"16 bytes make one full row", "0123456789abcdef",
     "\r\n\r\n---- (16 bytes)\r\n"
     "30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66   0123456789abcdef\r\n"},
    {"17 bytes make a second row of one byte", "0123456789abcdefg",
     "\r\n\r\n---- (17 bytes)\r\n"
     "30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66   0123456789abcdef\r\n"
     "67                                                g\r\n"},
    {"empty block has a header only", "", "\r\n\r\n---- (0 bytes)\r\n"},
    {"text range stops at z", "yz{|}~ \x1F",
     "\r\n\r\n---- (8 bytes)\r\n"
     "79 7A 7B 7C 7D 7E 20 1F                           yz.... .\r\n"},
    {"tokens and high bytes show as they came",
     "\x1B"
     "1ab\x80\xFF",
     "\r\n\r\n---- (6 bytes)\r\n"
     "1B 31 61 62 80 FF                                 .1ab..\r\n"},
};

TEST_F(PacketDumpTest, BlocksAreListedAsHexRowsWithTheirText)
{
    for (const DumpCase& c : DUMP_CASES) {
        ASSERT_TRUE(dump.OpenNew(path.c_str()));
        EXPECT_EQ(Dumped(c.block), c.listing) << c.name;
    }
}

class RecordingPrinter : public LogHost {
  public:
    bool AskSaveFileName(const SaveFileRequest&, char*, std::size_t) override { return false; }
    void ShowMessage(const char*, const char*) override {}
    void Beep() override {}
    void PrintToGameWindow(const char* text) override { printed.emplace_back(text); }
    std::vector<std::string> printed;
};

// An open dump is announced in the Game window and takes a received block up to its first NUL;
// rows that do not fit are lost without their line ends; a closed dump writes nothing.
TEST_F(PacketDumpTest, ReceivedBlocksAnnounceFullBufferAndClosedDump)
{
    RecordingPrinter host;
    AnnouncePacketDump(dump, host);
    EXPECT_EQ(host.printed.size(), 1u);
    testing::RecordingSink sink;
    Settings settings;
    StreamDecoder decoder{sink, dump, settings};
    const std::string block("ab\n\0cd\n", 7);
    decoder.HandleSocketEvent(block.data(), block.size());
    EXPECT_EQ(sink.lines, std::vector<std::string>{"ab\n"});
    dump.Close();
    EXPECT_EQ(ReadBytes(path),
              "\r\n\r\n---- (3 bytes)\r\n61 62 0A" + std::string(42, ' ') + "ab.\r\n");

    ASSERT_TRUE(dump.OpenNew(path.c_str()));
    const std::string filler(LOG_BUFFER_SIZE - 100, 'x');
    ASSERT_TRUE(dump.Write(filler.c_str()));
    std::string row;
    for (int i = 0; i < 16; ++i)
        row += "61 ";
    row += "  " + std::string(16, 'a');
    EXPECT_EQ(Dumped(std::string(64, 'a')),
              filler + "\r\n\r\n---- (64 bytes)\r\n" + row + "\r\n" + "\r\n\r\n\r\n");

    AnnouncePacketDump(dump, host);
    EXPECT_EQ(host.printed, std::vector<std::string>{
                                "\r\n\r\n*******\r\n Packet Dump file is ACTIVE!\r\n*******\r\n"});
    DumpPacket(dump, "ignored");
    EXPECT_EQ(dump.Count(), 0u);
    EXPECT_EQ(ReadBytes(path).find("ignored"), std::string::npos);
}

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

// The problems in short: broken rows and the first one's line, uneven blocks.
std::string Told(const DumpProblems& problems)
{
    return std::to_string(problems.BrokenRows) + "@" + std::to_string(problems.FirstBrokenLine) +
           " " + std::to_string(problems.UnevenBlocks);
}

TEST(PacketDumpReader, TakesWhatCanBeReadOfABrokenDumpAndSaysWhatWasWrong)
{
    const std::string full = "61 62 63 64 65 66 67 68 69 6A 6B 6C 6D 6E 6F 70   abcdefghijklmnop";
    const std::string head = "\r\n\r\n---- (3 bytes)\r\n";
    // clang-format off
    const struct { const char* name; std::string dump; Blocks blocks; const char* told; } cases[] = {
        {"a line that is no row", head + "hello\r\n" + ROW_ABC + "\r\n", {"abc"}, "1@4 0"},
        {"a wrong text part keeps the hex", head + ROW_ABC.substr(0, 50) + "xyz\r\n", {"abc"}, "1@4 0"},
        {"rows lost to a full buffer", "\r\n\r\n---- (20 bytes)\r\n" + full + "\r\n\r\n\r\n",
         {"abcdefghijklmnop"}, "0@0 1"},
        {"two rows on one line keep the first", "\r\n\r\n---- (32 bytes)\r\n" + full + full + "\r\n",
         {"abcdefghijklmnop"}, "1@4 1"},
        {"line feeds alone", "\n\n---- (3 bytes)\n" + ROW_ABC + "\n\n\n---- (3 bytes)\n" + ROW_ABC + "\n",
         {"abc", "abc"}, "0@0 0"},
        {"an empty block is left out", "\r\n\r\n---- (0 bytes)\r\n" + head + ROW_ABC + "\r\n", {"abc"}, "0@0 0"},
        {"a header with too many digits is no header",
         "\r\n\r\n---- (99999999999999999999 bytes)\r\n" + ROW_ABC + "\r\n", {"abc"}, "1@3 0"},
    };
    // clang-format on
    for (const auto& c : cases) {
        const Read read = ReadDump(c.dump);
        EXPECT_EQ(read.blocks, c.blocks) << c.name;
        EXPECT_EQ(Told(read.problems), c.told) << c.name;
    }
}

TEST(ReplayFile, TellsTheFormatByTheFirstBytesAndCutsRawBytesIntoBlocks)
{
    TempFolder folder;
    // clang-format off
    const struct { const char* name; std::string content; ReplayFormat format; Blocks blocks; } cases[] = {
        {"empty", "", ReplayFormat::Empty, {}},
        {"dump", "\r\n\r\n---- (3 bytes)\r\n" + ROW_ABC + "\r\n", ReplayFormat::PacketDump, {"abc"}},
        {"header first", "---- (3 bytes)\r\n" + ROW_ABC + "\r\n", ReplayFormat::PacketDump, {"abc"}},
        {"text", "Welcome, Tester!", ReplayFormat::RawBytes, {"Welco", "me, T", "ester", "!"}},
        {"no header", "\r\n\r\n-- x", ReplayFormat::RawBytes, {"\r\n\r\n-", "- x"}},
    };
    // clang-format on
    for (const auto& c : cases) {
        WriteBytes(folder.File(c.name), c.content);
        ReplayFile file;
        ASSERT_TRUE(file.Open(folder.File(c.name).c_str())) << c.name;
        EXPECT_EQ(file.Format(), c.format) << c.name;
        Blocks blocks;
        char block[RECEIVE_CHUNK_MAX];
        while (const std::size_t length = file.NextBlock(block, 5))
            blocks.emplace_back(block, length);
        EXPECT_EQ(blocks, c.blocks) << c.name;
    }
    for (const std::string& unreadable : {folder.File("missing"), folder.Path()})
        EXPECT_FALSE(ReplayFile().Open(unreadable.c_str())) << unreadable;
}

TEST(ReplayFile, SpeedDividesTheWaitBetweenBlocks)
{
    // -1 for a speed refused; the slowest replay still moves.
    const std::pair<const char*, long> cases[] = {{"1", REPLAY_BLOCK_MS},
                                                  {"2", REPLAY_BLOCK_MS / 2},
                                                  {"0.25", REPLAY_BLOCK_MS * 4},
                                                  {"0", 0},
                                                  {"1e-9", REPLAY_LONGEST_WAIT_MS},
                                                  {"-1", -1},
                                                  {"fast", -1},
                                                  {"2x", -1},
                                                  {"inf", -1}};
    for (const auto& [text, wait] : cases) {
        double speed = 0;
        EXPECT_EQ(ReadReplaySpeed(text, speed) ? ReplayWaitMs(speed) : -1, wait) << text;
    }
}

} // namespace
} // namespace steward
