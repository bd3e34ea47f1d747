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

// Random blocks with many NULs, colour-range and 0xFF bytes among the text; some are empty.
Blocks RandomBlocks(unsigned seed)
{
    std::mt19937 random(seed);
    const char special[] = {'\0', '\x80', '\xFF', '\x1B', '\x1F', '\r', '\n', '\x7B'};
    Blocks blocks(1 + random() % 12);
    for (std::string& block : blocks) {
        // Full blocks are common in a flood; a NUL cuts a block short, so half have none.
        const unsigned size = random() % 6;
        block.resize(size == 0 ? 0 : size < 3 ? RECEIVE_CHUNK_MAX : random() % RECEIVE_CHUNK_MAX);
        const std::size_t first = random() % 2;
        for (char& byte : block)
            byte = random() % 50 == 0 ? special[first + random() % (sizeof special - first)]
                                      : static_cast<char>(0x20 + random() % 0x60);
    }
    return blocks;
}

// A header with the count, then rows of sixteen bytes: upper-case hex pairs, the text part at
// its column, and a dot for every byte outside the space to "z".
std::string Listing(const std::string& block)
{
    std::string listing = "\r\n\r\n---- (" + std::to_string(block.size()) + " bytes)\r\n";
    for (std::size_t at = 0; at < block.size(); at += 16) {
        std::string hex;
        std::string text;
        for (const char c : block.substr(at, 16)) {
            hex += {"0123456789ABCDEF"[(c >> 4) & 15], "0123456789ABCDEF"[c & 15], ' '};
            text += c >= ' ' && c <= 'z' ? c : '.';
        }
        hex.resize(DUMP_TEXT_COLUMN, ' ');
        listing += hex + text + "\r\n";
    }
    return listing;
}

TEST(PacketDumpReader, ReadsBackTheBlocksAsTheDecoderSawThem)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        const Blocks blocks = RandomBlocks(seed);
        // A block ends at its first NUL for the dump as for the decoder; an empty one is listed
        // with its header and read as nothing.
        Blocks seen;
        std::string listing;
        for (const std::string& block : blocks) {
            const std::string head = block.substr(0, block.find('\0'));
            listing += Listing(head);
            if (!head.empty())
                seen.push_back(head);
        }
        const std::string dump = Dump(blocks);
        EXPECT_EQ(dump, listing);
        const Read read = ReadDump(dump);
        EXPECT_EQ(read.blocks, seen);
        EXPECT_EQ(read.problems.BrokenRows + read.problems.UnevenBlocks, 0u);
        EXPECT_FALSE(read.problems.CutRow);
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
        {"its first character wrong", head + ROW_ABC.substr(0, 50) + "xbc\r\n", {"abc"}, "1@4 0"},
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
        {"a header's start but its last byte", "---- x", ReplayFormat::RawBytes, {"---- ", "x"}},
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

// Text allows line ends, ESC and the bell, and one other byte in eight; never a NUL.
TEST(ReplayFile, GameTextAllowsOneOddByteInEight)
{
    const std::pair<std::string, bool> cases[] = {{"Welcome\r\n\x1B\x07\t", true},
                                                  {"abcdefg\x0E", true},
                                                  {"abcdef\x7F\x0E", false},
                                                  {std::string("abcdefg\0", 8), false}};
    for (const auto& [text, looks] : cases)
        EXPECT_EQ(LooksLikeGameText(text.data(), text.size()), looks) << text;
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
