#include "scripts/ScriptRecorder.h"
#include "ScriptDoubles.h"
#include "support/FileSizeLimit.h"

#include <gtest/gtest.h>

namespace steward::testing {
namespace {

TEST(ScriptRecorderTest, WritesMovesPutsAndCommentsInTheFilesForm)
{
    TempFolder folder;
    RecordingScriptHost host;
    Tokenizer words;
    ScriptRecorder recorder;
    recorder.RecordCommand("look", words, host);
    const std::string path = folder.File("Walk.stw");
    ASSERT_TRUE(recorder.StartRecording(path.c_str()));
    for (const char* sent : {"n", "NE now", "north", "go gate", "Enter door", "# left the bank",
                             "drag bob n", "look", "  up"})
        recorder.RecordCommand(sent, words, host);
    EXPECT_TRUE(recorder.StopRecording(host));
    recorder.RecordCommand("after", words, host);

    EXPECT_EQ(ReadBytes(path), "move n\r\r\nmove NE now\r\r\nput north\r\r\nmove go gate\r\r\n"
                               "move Enter door\r\r\n# left the bank\r\r\nput drag bob n\r\r\n"
                               "put look\r\r\nmove   up\r\r\n");
    EXPECT_TRUE(host.events.empty());
}

TEST(ScriptRecorderTest, AFailedWriteEndsTheRecordingWithAMessageAndKeepsTheOldScript)
{
    TempFolder folder;
    const std::string path = folder.File("Walk.stw");
    WriteBytes(path, "move n\r\r\n");
    ScriptRecorder recorder;
    RecordingScriptHost host;
    Tokenizer words;
    ASSERT_TRUE(recorder.StartRecording(path.c_str()));
    {
        FileSizeLimit full(4);
        recorder.RecordCommand("look", words, host);
    }
    EXPECT_FALSE(recorder.Recording());
    const std::vector<std::string> expected = {
        "beep", "beep", "print:\\r\\n\\r\\n*** Error writing to disk..disk full?\\r\\n\\r\\n",
        "beep", "beep"};
    EXPECT_EQ(host.events, expected);
    EXPECT_EQ(ReadBytes(path), "move n\r\r\n");
    EXPECT_FALSE(recorder.StartRecording("/nonexistent-folder/x.stw"));
}

} // namespace
} // namespace steward::testing
