#include "config/BufferedLog.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

using testing::ReadBytes;
using testing::TempFolder;
using testing::WriteBytes;

class BufferedLogTest : public ::testing::Test {
  protected:
    TempFolder folder;
    std::string path = folder.File("Session.txt");
    BufferedLog log;
};

TEST_F(BufferedLogTest, ColorCodesAreLeftOutAndEveryOtherByteStays)
{
    struct Case {
        std::string text;
        std::string stored;
    };
    const Case cases[] = {
        {"\x8A"
         "Bob says,\xA0 hi",
         "Bob says, hi"},
        {"\x91\x8A"
         "x\xA1\xA0",
         "x"},
        {"\x07\x7F\xA4\xFF\x1B\r\n", "\x07\x7F\xA4\xFF\x1B\r\n"},
        {"\x80\xA3", ""},
    };
    for (const Case& c : cases) {
        ASSERT_TRUE(log.OpenNew(path.c_str()));
        EXPECT_TRUE(log.Write(c.text.c_str()));
        EXPECT_TRUE(log.Close());
        EXPECT_EQ(ReadBytes(path), c.stored) << c.text;
    }
}

TEST_F(BufferedLogTest, TextThatWouldReachTheBufferSizeIsRefusedWhole)
{
    ASSERT_TRUE(log.OpenNew(path.c_str()));
    ASSERT_TRUE(log.Write(std::string(27990, 'a').c_str()));
    ASSERT_EQ(log.Count(), 27990u);

    EXPECT_FALSE(log.Write("0123456789"));
    EXPECT_EQ(log.Count(), 27990u);
    // Colour codes count for the test though they are not stored.
    EXPECT_FALSE(log.Write("\x8A\x8A\x8A\x8A\x8A"
                           "56789"));
    EXPECT_TRUE(log.Write("012345678"));
    EXPECT_EQ(log.Count(), 27999u);

    log.Close();
    EXPECT_EQ(ReadBytes(path).size(), 27999u);
}

TEST_F(BufferedLogTest, FlushIfFullWritesOnlyAboveTheThreshold)
{
    ASSERT_TRUE(log.OpenNew(path.c_str()));
    ASSERT_TRUE(log.Write(std::string(LOG_FLUSH_THRESHOLD, 'a').c_str()));
    EXPECT_TRUE(log.FlushIfFull());
    EXPECT_EQ(log.Count(), 25000u);
    EXPECT_EQ(ReadBytes(path).size(), 0u);

    ASSERT_TRUE(log.Write("b"));
    EXPECT_TRUE(log.FlushIfFull());
    EXPECT_EQ(log.Count(), 0u);
    EXPECT_EQ(ReadBytes(path), std::string(25000, 'a') + "b");
}

TEST_F(BufferedLogTest, OpenNewReplacesAndOpenAppendAppends)
{
    WriteBytes(path, "old\n");
    ASSERT_TRUE(log.OpenAppend(path.c_str()));
    log.Write("more\n");
    log.Close();
    EXPECT_EQ(ReadBytes(path), "old\nmore\n");

    ASSERT_TRUE(log.OpenNew(path.c_str()));
    log.Write("fresh\n");
    log.Close();
    EXPECT_EQ(ReadBytes(path), "fresh\n");
}

TEST_F(BufferedLogTest, OpeningAgainClosesTheOldFileWithItsText)
{
    const std::string other = folder.File("Other.txt");
    ASSERT_TRUE(log.OpenNew(path.c_str()));
    log.Write("first");
    ASSERT_TRUE(log.OpenNew(other.c_str()));
    log.Write("second");
    log.Close();
    EXPECT_EQ(ReadBytes(path), "first");
    EXPECT_EQ(ReadBytes(other), "second");
}

TEST_F(BufferedLogTest, DestructorWritesWhatWaits)
{
    {
        BufferedLog scoped;
        ASSERT_TRUE(scoped.OpenNew(path.c_str()));
        scoped.Write("kept\r\n");
    }
    EXPECT_EQ(ReadBytes(path), "kept\r\n");
}

// A closed log takes every text and writes nothing.
TEST_F(BufferedLogTest, FileThatCannotBeCreatedLeavesTheLogClosed)
{
    const std::string missing = folder.File("no such folder/log.txt");
    EXPECT_FALSE(log.OpenNew(missing.c_str()));
    EXPECT_FALSE(log.IsOpen());
    EXPECT_TRUE(log.Write("ignored"));
    EXPECT_TRUE(log.Flush());
    EXPECT_TRUE(log.FlushIfFull());
    EXPECT_EQ(log.Count(), 0u);
    EXPECT_FALSE(log.Close());
}

TEST_F(BufferedLogTest, FailedWriteKeepsTheBytesInTheBuffer)
{
    ASSERT_TRUE(log.OpenNew("/dev/full"));
    ASSERT_TRUE(log.Write("lost on a full disk"));
    EXPECT_FALSE(log.Flush());
    EXPECT_TRUE(log.IsOpen());
    EXPECT_EQ(log.Count(), 19u);
    EXPECT_TRUE(log.Close());
    EXPECT_EQ(log.Count(), 0u);
}

} // namespace
} // namespace steward
