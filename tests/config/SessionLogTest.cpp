#include "config/SessionLog.h"

#include "config/LogHost.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

using testing::ReadBytes;
using testing::TempFolder;

class RecordingLogHost : public LogHost {
  public:
    bool AskSaveFileName(const SaveFileRequest& request, char* path, std::size_t capacity) override
    {
        asked.push_back(request);
        if (answer.empty())
            return false;
        answer.copy(path, capacity - 1);
        path[std::min(answer.size(), capacity - 1)] = '\0';
        return true;
    }
    void ShowMessage(const char* text, const char* title) override
    {
        messages.push_back(std::string(title) + ": " + text);
    }
    void Beep() override { ++beeps; }
    void PrintToGameWindow(const char* text) override { printed.emplace_back(text); }

    std::string answer;
    std::vector<SaveFileRequest> asked;
    std::vector<std::string> messages;
    std::vector<std::string> printed;
    int beeps = 0;
};

class SessionLogTest : public ::testing::Test {
  protected:
    TempFolder folder;
    RecordingLogHost host;
    BufferedLog log;
};

TEST_F(SessionLogTest, DialogAsksForACaptureFileInTheProgramFolder)
{
    host.answer = folder.File("Thornmere Capture.txt");
    EXPECT_TRUE(OpenWithDialog(log, "/data", host));
    ASSERT_EQ(host.asked.size(), 1u);
    const SaveFileRequest& request = host.asked[0];
    EXPECT_STREQ(request.Folder, "/data");
    EXPECT_STREQ(request.FileName, "Thornmere Capture");
    EXPECT_STREQ(request.DefaultExtension, "txt");
    EXPECT_STREQ(request.FilterName, "Text file");
    EXPECT_STREQ(request.FilterPattern, "*.txt");
    EXPECT_STREQ(request.Title, "Open Session Logfile");
    EXPECT_TRUE(log.IsOpen());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(SessionLogTest, CancelLeavesTheOpenLogAlone)
{
    const std::string path = folder.File("open.txt");
    ASSERT_TRUE(log.OpenNew(path.c_str()));
    log.Write("still here");
    EXPECT_FALSE(OpenWithDialog(log, "/data", host));
    EXPECT_TRUE(log.IsOpen());
    log.Close();
    EXPECT_EQ(ReadBytes(path), "still here");
}

TEST_F(SessionLogTest, FileThatCannotBeCreatedIsReportedInAMessageBox)
{
    host.answer = folder.File("missing folder/capture.txt");
    EXPECT_FALSE(OpenWithDialog(log, "/data", host));
    EXPECT_FALSE(log.IsOpen());
    EXPECT_EQ(host.messages, std::vector<std::string>{"File Error: Unable to create log file!"});
}

TEST_F(SessionLogTest, MainLoopFlushWritesAFullLogQuietly)
{
    const std::string path = folder.File("full.txt");
    ASSERT_TRUE(log.OpenNew(path.c_str()));
    log.Write(std::string(LOG_FLUSH_THRESHOLD + 1, 'x').c_str());
    EXPECT_TRUE(FlushLogIfFull(log, host));
    EXPECT_TRUE(log.IsOpen());
    EXPECT_EQ(ReadBytes(path).size(), LOG_FLUSH_THRESHOLD + 1);
    EXPECT_EQ(host.beeps, 0);
    EXPECT_TRUE(host.printed.empty());
}

TEST_F(SessionLogTest, FailedMainLoopFlushClosesBeepsTwiceAndSaysSo)
{
    ASSERT_TRUE(log.OpenNew("/dev/full"));
    log.Write(std::string(LOG_FLUSH_THRESHOLD + 1, 'x').c_str());
    EXPECT_FALSE(FlushLogIfFull(log, host));
    EXPECT_FALSE(log.IsOpen());
    EXPECT_EQ(host.beeps, 2);
    EXPECT_EQ(host.printed,
              std::vector<std::string>{"\r\n\r\n*** Error writing to disk..disk full?\r\n\r\n"});
}

TEST_F(SessionLogTest, MainLoopFlushOfAClosedOrSmallLogDoesNothing)
{
    EXPECT_TRUE(FlushLogIfFull(log, host));
    ASSERT_TRUE(log.OpenNew("/dev/full"));
    log.Write("small");
    EXPECT_TRUE(FlushLogIfFull(log, host));
    EXPECT_TRUE(log.IsOpen());
    EXPECT_EQ(host.beeps, 0);
}

} // namespace
} // namespace steward
