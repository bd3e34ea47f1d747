#include "connection/PacketDump.h"

#include "config/LogHost.h"
#include "connection/DecoderFixture.h"
#include "connection/StreamDecoder.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
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

struct Case {
    const char* name;
    std::string block;
    std::string listing;
};

const Case CASES[] = {
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
    for (const Case& c : CASES) {
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

} // namespace
} // namespace steward
