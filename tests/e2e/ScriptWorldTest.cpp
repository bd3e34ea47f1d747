#include "ClientHarness.h"
#include "base/FrameCommand.h"
#include "base/qt/ProgramFiles.h"
#include "support/RunLoopUntil.h"
#include "support/TempFolder.h"

#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace steward::test {
namespace {

class ScriptWorldTest : public ClientHarness {
  protected:
    // A client logged in to the world, with the example scripts in its data folder.
    std::unique_ptr<Client> LoggedIn()
    {
        InstallProgramFiles(folder.path().toStdString());
        return LoggedInClient();
    }

    // Runs the program's own loop, where a script steps, until done says so or time runs out.
    template <typename Done> static bool RunLoopUntil(Done done, int ms = WAIT_MS)
    {
        return steward::testing::RunLoopUntil(done, ms);
    }

    std::string Script(const char* name, const std::string& text)
    {
        const std::string path = folder.filePath(name).toStdString();
        steward::testing::WriteBytes(path, text);
        return path;
    }

    void Execute(Client& client, const std::string& path)
    {
        desktop.scriptFile = path;
        client.OnCommand(CMD_EXECUTE_SCRIPT);
    }

    // The busy cursor is up exactly while a script runs.
    static bool Busy() { return QApplication::overrideCursor() != nullptr; }
};

TEST_F(ScriptWorldTest, ExampleWalkVisitsEveryRoomOfItsLoopAndEndsOnItsOwn)
{
    auto client = LoggedIn();
    ASSERT_TRUE(client);
    Execute(*client, folder.filePath("Walk.Stw").toStdString());
    EXPECT_EQ(desktop.scriptFolder, folder.path().toStdString());
    ASSERT_TRUE(RunLoopUntil([&] { return !Busy(); })) << GameText(*client);
    EXPECT_TRUE(Sent().contains("e\n\re\n\rsw\n\rnw\n\r")) << Sent().toStdString();
    const std::string text = GameText(*client);
    std::size_t at = text.find("[Walk: leaving the Market Square]");
    for (const char* room : {"Harbour Road]", "The Quay]", "Herb Garden]", "Market Square]",
                             "[Walk: back in the Market Square]"}) {
        at = text.find(room, at);
        ASSERT_NE(at, std::string::npos) << room << "\n" << text;
    }
}

TEST_F(ScriptWorldTest, CommandScriptExpandsTwoParametersAndStopsWhenAsked)
{
    auto client = LoggedIn();
    ASSERT_TRUE(client);
    Type(*client, "w");
    ASSERT_TRUE(RunLoopUntil([&] { return Sent().endsWith("w\n\r"); }));
    Type(*client, "down");
    ASSERT_TRUE(WaitForGameText(*client, "Old Cellar]"));
    // The attack's round time holds the script, so it still runs when it is stopped.
    Type(*client, ".hunt rat saber");
    ASSERT_TRUE(RunLoopUntil([&] { return Sent().contains("attack rat\n\r"); }))
        << Sent().toStdString();
    EXPECT_TRUE(Sent().contains("ready saber\n\r"));
    EXPECT_TRUE(Busy());
    client->OnCommand(CMD_STOP_SCRIPT);
    EXPECT_FALSE(Busy());
    EXPECT_TRUE(WaitForGameText(*client, "[Script aborted.]"));
}

TEST_F(ScriptWorldTest, WaitForResumesOnlyOnItsTextWhileTypedCommandsGoOutAtOnce)
{
    auto client = LoggedIn();
    ASSERT_TRUE(client);
    ScriptWaitState& wait = client->State().Script;
    Execute(*client, Script("Bell.Stw", "WaitFor The bell tower says\nput look\npause 1\n"
                                        "WaitFor a text that never comes\nput never\n"));
    ASSERT_TRUE(RunLoopUntil([&] { return wait.ScriptWait == WAIT_TEXT; }));

    Type(*client, "inv");
    ASSERT_TRUE(
        RunLoopUntil([&] { return GameText(*client).find("Your purse") != std::string::npos; }));
    EXPECT_TRUE(Sent().contains("inv\n\r"));
    RunLoopUntil([] { return false; }, 300);
    EXPECT_FALSE(Sent().contains("look"));

    Type(*client, "time");
    ASSERT_TRUE(RunLoopUntil([&] { return Sent().contains("time\n\rlook\n\r"); }))
        << Sent().toStdString();
    ASSERT_TRUE(
        RunLoopUntil([&] { return std::string(wait.WaitText) == "a text that never comes"; }));
    client->OnCommand(CMD_STOP_SCRIPT);
    EXPECT_EQ(wait.ScriptWait, WAIT_NONE);
    EXPECT_TRUE(GameTail(*client, 40).find("[Script aborted.]") != std::string::npos);
    RunLoopUntil([] { return false; }, 100);
    EXPECT_FALSE(Sent().contains("never"));
}

TEST_F(ScriptWorldTest, RecordingOfFiveCommandsIsExactAndPlaysBack)
{
    auto client = LoggedIn();
    ASSERT_TRUE(client);
    desktop.recordFile = folder.filePath("Recorded.stw").toStdString();
    client->OnCommand(CMD_RECORD_SCRIPT);
    for (const std::string typed : {"look", "e", "say hi", "w", "time"}) {
        Type(*client, typed.c_str());
        ASSERT_TRUE(RunLoopUntil([&] { return Sent().endsWith((typed + "\n\r").c_str()); }));
    }
    client->OnCommand(CMD_STOP_RECORDING);
    EXPECT_TRUE(WaitForGameText(*client, "[Script file saved.]"));
    EXPECT_EQ(steward::testing::ReadBytes(desktop.recordFile),
              "put look\r\r\nmove e\r\r\nput say hi\r\r\nmove w\r\r\nput time\r\r\n");

    const qsizetype before = Sent().size();
    Execute(*client, desktop.recordFile);
    ASSERT_TRUE(RunLoopUntil([&] { return !Busy(); })) << GameText(*client);
    // The script ends as its last line is sent; the world may read it a turn later.
    RunLoopUntil([&] { return Sent().endsWith("time\r\n\r"); });
    EXPECT_EQ(Sent().mid(before), "look\r\n\re\r\n\rsay hi\r\n\rw\r\n\rtime\r\n\r");
}

TEST_F(ScriptWorldTest, EndlessJumpsLeaveTheLoopTurningAndEscapeStopsThem)
{
    auto client = LoggedIn();
    ASSERT_TRUE(client);
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
}

} // namespace
} // namespace steward::test
