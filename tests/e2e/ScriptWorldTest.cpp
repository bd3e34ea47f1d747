#include "ClientHarness.h"
#include "base/FrameCommand.h"
#include "base/qt/ProgramFiles.h"
#include "support/RunLoopUntil.h"
#include "support/TempFolder.h"

#include <QTimer>

namespace steward::test {
namespace {

class ScriptWorldTest : public ClientHarness {
  protected:
    std::string Script(const char* name, const std::string& text)
    {
        steward::testing::WriteBytes(File(name), text);
        return File(name);
    }
    void Execute(Client& client, const std::string& path)
    {
        desktop.scriptFile = path;
        client.OnCommand(CMD_EXECUTE_SCRIPT);
    }
    // The busy cursor is up exactly while a script runs.
    static bool Busy() { return QApplication::overrideCursor() != nullptr; }
};

using steward::testing::RunLoopUntil;

// One client, with the example scripts in its data folder, runs the program's own loop, where a
// script steps: the example walk, a WaitFor, a recording played back, endless jumps stopped by
// Escape, and a command script with two parameters stopped from the menu.
TEST_F(ScriptWorldTest, ScriptsStepInTheLoopWaitRecordPlayBackAndStop)
{
    InstallProgramFiles(folder.path().toStdString());
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    Execute(*client, File("Walk.Stw"));
    EXPECT_EQ(desktop.scriptFolder, folder.path().toStdString());
    ASSERT_TRUE(RunLoopUntil([&] { return !Busy(); }, WAIT_MS)) << GameText(*client);
    EXPECT_TRUE(Sent().contains("e\n\re\n\rsw\n\rnw\n\r")) << Sent().toStdString();
    const std::string text = GameText(*client);
    std::size_t at = text.find("[Walk: leaving the Market Square]");
    for (const char* room : {"Harbour Road]", "The Quay]", "Herb Garden]", "Market Square]",
                             "[Walk: back in the Market Square]"}) {
        at = text.find(room, at);
        ASSERT_NE(at, std::string::npos) << room << "\n" << text;
    }

    // WaitFor resumes only on its text, while typed commands go out at once.
    ScriptWaitState& wait = client->State().Script;
    qsizetype before = Sent().size();
    Execute(*client, Script("Bell.Stw", "WaitFor The bell tower says\nput look\npause 1\n"
                                        "WaitFor a text that never comes\nput never\n"));
    ASSERT_TRUE(RunLoopUntil([&] { return wait.ScriptWait == WAIT_TEXT; }, WAIT_MS));
    Type(*client, "inv");
    ASSERT_TRUE(RunLoopUntil(
        [&] { return GameText(*client).find("Your purse") != std::string::npos; }, WAIT_MS));
    EXPECT_TRUE(Sent().mid(before).contains("inv\n\r"));
    RunLoopUntil([] { return false; }, 300);
    EXPECT_FALSE(Sent().mid(before).contains("look"));
    Type(*client, "time");
    ASSERT_TRUE(RunLoopUntil([&] { return Sent().contains("time\n\rlook\n\r"); }, WAIT_MS))
        << Sent().toStdString();
    ASSERT_TRUE(RunLoopUntil(
        [&] { return std::string(wait.WaitText) == "a text that never comes"; }, WAIT_MS));
    client->OnCommand(CMD_STOP_SCRIPT);
    EXPECT_EQ(wait.ScriptWait, WAIT_NONE);
    EXPECT_TRUE(GameTail(*client, 40).find("[Script aborted.]") != std::string::npos);
    RunLoopUntil([] { return false; }, 100);
    EXPECT_FALSE(Sent().contains("never"));

    desktop.recordFile = File("Recorded.stw");
    client->OnCommand(CMD_RECORD_SCRIPT);
    for (const std::string typed : {"look", "e", "say hi", "w", "time"}) {
        Type(*client, typed.c_str());
        ASSERT_TRUE(
            RunLoopUntil([&] { return Sent().endsWith((typed + "\n\r").c_str()); }, WAIT_MS));
    }
    client->OnCommand(CMD_STOP_RECORDING);
    EXPECT_TRUE(WaitForGameText(*client, "[Script file saved.]"));
    EXPECT_EQ(steward::testing::ReadBytes(desktop.recordFile),
              "put look\r\r\nmove e\r\r\nput say hi\r\r\nmove w\r\r\nput time\r\r\n");
    before = Sent().size();
    Execute(*client, desktop.recordFile);
    ASSERT_TRUE(RunLoopUntil([&] { return !Busy(); }, WAIT_MS)) << GameText(*client);
    // The script ends as its last line is sent; the world may read it a turn later.
    RunLoopUntil([&] { return Sent().endsWith("time\r\n\r"); }, WAIT_MS);
    EXPECT_EQ(Sent().mid(before), "look\r\n\re\r\n\rsay hi\r\n\rw\r\n\rtime\r\n\r");

    int ticks = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] { ++ticks; });
    ticker.start(0);
    Execute(*client, Script("Endless.Stw", "top:\ngoto top\n"));
    RunLoopUntil([] { return false; }, 500);
    EXPECT_GT(ticks, 50);
    EXPECT_TRUE(Busy());
    QTest::keyClick(client->Frame().CommandLine(), Qt::Key_Escape);
    EXPECT_FALSE(Busy());
    EXPECT_TRUE(GameTail(*client, 40).find("[Script aborted.]") != std::string::npos);
    ticker.stop();

    Type(*client, "w");
    ASSERT_TRUE(RunLoopUntil([&] { return Sent().endsWith("w\n\r"); }, WAIT_MS));
    Type(*client, "down");
    ASSERT_TRUE(WaitForGameText(*client, "Old Cellar]"));
    // The attack's round time holds the script, so it still runs when it is stopped.
    before = Sent().size();
    Type(*client, ".hunt rat saber");
    ASSERT_TRUE(RunLoopUntil([&] { return Sent().contains("attack rat\n\r"); }, WAIT_MS))
        << Sent().toStdString();
    EXPECT_TRUE(Sent().mid(before).contains("ready saber\n\r"));
    EXPECT_TRUE(Busy());
    client->OnCommand(CMD_STOP_SCRIPT);
    EXPECT_FALSE(Busy());
    EXPECT_TRUE(GameTail(*client, 40).find("[Script aborted.]") != std::string::npos);
}

} // namespace
} // namespace steward::test
