#include "config/BufferedLog.h"
#include "config/LogHost.h"
#include "config/SessionLog.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <vector>

namespace steward {
namespace {

using testing::ReadBytes;
using Strings = std::vector<std::string>;

class RecordingLogHost : public LogHost {
  public:
    bool AskSaveFileName(const SaveFileRequest& request, char* path, std::size_t capacity) override
    {
        asked.push_back(request);
        std::snprintf(path, capacity, "%s", answer.c_str());
        return !answer.empty();
    }
    void ShowMessage(const char* text, const char* title) override
    {
        messages.push_back(std::string(title) + ": " + text);
    }
    void Beep() override { ++beeps; }
    void PrintToGameWindow(const char* text) override { printed.emplace_back(text); }

    std::string answer;
    std::vector<SaveFileRequest> asked;
    Strings messages, printed;
    int beeps = 0;
};

class BufferedLogTest : public ::testing::Test {
  protected:
    testing::TempFolder folder;
    std::string path = folder.File("Session.txt");
    BufferedLog log;
    RecordingLogHost host;
};

TEST_F(BufferedLogTest, ColorCodesAreLeftOutAndFilesReplacedOrAppended)
{
    const struct {
        std::string text, stored;
    } rows[] = {{"\x8A"
                 "Bob says,\xA0 hi",
                 "Bob says, hi"},
                {"\x91\x8A"
                 "x\xA1\xA0",
                 "x"},
                {"\x07\x7F\xA4\xFF\x1B\r\n", "\x07\x7F\xA4\xFF\x1B\r\n"},
                {"\x80\xA3", ""}};
    for (const auto& row : rows) {
        ASSERT_TRUE(log.OpenNew(path.c_str()));
        EXPECT_TRUE(log.Write(row.text.c_str()));
        EXPECT_TRUE(log.Close());
        EXPECT_EQ(ReadBytes(path), row.stored) << row.text;
    }
    testing::WriteBytes(path, "old\n");
    ASSERT_TRUE(log.OpenAppend(path.c_str()));
    log.Write("more\n");
    const std::string other = folder.File("Other.txt");
    ASSERT_TRUE(log.OpenNew(other.c_str())) << "closes the old file with its text";
    log.Write("second");
    {
        BufferedLog scoped;
        ASSERT_TRUE(scoped.OpenNew(path.c_str()));
        scoped.Write("kept\r\n");
    }
    EXPECT_EQ(ReadBytes(path), "kept\r\n") << "the destructor writes what waits";
    log.Close();
    EXPECT_EQ(ReadBytes(other), "second");
    ASSERT_TRUE(log.OpenAppend(path.c_str()));
    log.Write("more\n");
    log.Close();
    EXPECT_EQ(ReadBytes(path), "kept\r\nmore\n");
}

TEST_F(BufferedLogTest, TextThatWouldReachTheBufferSizeIsRefusedWhole)
{
    ASSERT_TRUE(log.OpenNew(path.c_str()));
    ASSERT_TRUE(log.Write(std::string(LOG_FLUSH_THRESHOLD, 'a').c_str()));
    EXPECT_TRUE(log.FlushIfFull());
    EXPECT_EQ(ReadBytes(path).size(), 0u) << "not above the threshold";
    ASSERT_TRUE(log.Write(std::string(2990, 'a').c_str()));
    ASSERT_EQ(log.Count(), 27990u);
    EXPECT_FALSE(log.Write("0123456789"));
    EXPECT_EQ(log.Count(), 27990u);
    // Colour codes count for the test though they are not stored.
    EXPECT_FALSE(log.Write("\x8A\x8A\x8A\x8A\x8A"
                           "56789"));
    EXPECT_TRUE(log.Write("012345678"));
    EXPECT_EQ(log.Count(), 27999u);
    EXPECT_TRUE(FlushLogIfFull(log, host));
    EXPECT_EQ(log.Count(), 0u);
    EXPECT_EQ(ReadBytes(path).size(), 27999u);
    EXPECT_TRUE(log.IsOpen());
    EXPECT_EQ(host.beeps, 0);
    EXPECT_TRUE(host.printed.empty());
}

TEST_F(BufferedLogTest, FailuresKeepTheBytesOrCloseTheLogAndSaySo)
{
    EXPECT_TRUE(FlushLogIfFull(log, host));
    EXPECT_FALSE(log.OpenNew(folder.File("no such folder/log.txt").c_str()));
    EXPECT_FALSE(log.IsOpen());
    EXPECT_TRUE(log.Write("ignored")) << "a closed log takes every text and writes nothing";
    EXPECT_TRUE(log.Flush());
    EXPECT_TRUE(log.FlushIfFull());
    EXPECT_EQ(log.Count(), 0u);
    EXPECT_FALSE(log.Close());
    ASSERT_TRUE(log.OpenNew("/dev/full"));
    ASSERT_TRUE(log.Write("lost on a full disk"));
    EXPECT_TRUE(FlushLogIfFull(log, host)) << "small";
    EXPECT_FALSE(log.Flush());
    EXPECT_TRUE(log.IsOpen());
    EXPECT_EQ(log.Count(), 19u);
    EXPECT_TRUE(log.Close());
    EXPECT_EQ(log.Count(), 0u);
    ASSERT_TRUE(log.OpenNew("/dev/full"));
    log.Write(std::string(LOG_FLUSH_THRESHOLD + 1, 'x').c_str());
    EXPECT_FALSE(FlushLogIfFull(log, host));
    EXPECT_FALSE(log.IsOpen());
    EXPECT_EQ(host.beeps, 2);
    EXPECT_EQ(host.printed, Strings{"\r\n\r\n*** Error writing to disk..disk full?\r\n\r\n"});
}

TEST_F(BufferedLogTest, TheDialogAsksForACaptureFileAndCancelLeavesTheLogAlone)
{
    ASSERT_TRUE(log.OpenNew(path.c_str()));
    log.Write("still here");
    EXPECT_FALSE(OpenWithDialog(log, "/data", host));
    EXPECT_TRUE(log.IsOpen());
    host.answer = folder.File("missing folder/capture.txt");
    EXPECT_FALSE(OpenWithDialog(log, "/data", host));
    EXPECT_FALSE(log.IsOpen());
    EXPECT_EQ(ReadBytes(path), "still here");
    EXPECT_EQ(host.messages, Strings{"File Error: Unable to create log file!"});
    host.answer = folder.File("Thornmere Capture.txt");
    EXPECT_TRUE(OpenWithDialog(log, "/data", host));
    EXPECT_TRUE(log.IsOpen());
    EXPECT_EQ(host.messages.size(), 1u);
    const SaveFileRequest& request = host.asked.at(2);
    EXPECT_STREQ(request.Folder, "/data");
    EXPECT_STREQ(request.FileName, "Thornmere Capture");
    EXPECT_STREQ(request.DefaultExtension, "txt");
    EXPECT_STREQ(request.FilterName, "Text file");
    EXPECT_STREQ(request.FilterPattern, "*.txt");
    EXPECT_STREQ(request.Title, "Open Session Logfile");
}

} // namespace
} // namespace steward
