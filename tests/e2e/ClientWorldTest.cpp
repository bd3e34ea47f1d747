#include "ClientHarness.h"
#include "base/FrameCommand.h"
#include "config/BinaryRecords.h"
#include "config/IniStore.h"
#include "support/RunLoopUntil.h"

#include <QDir>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <map>

namespace steward::test {
namespace {

using ClientWorldTest = ClientHarness;

TEST_F(ClientWorldTest, ALoggedInClientSendsWhatIsTypedOrChosenAndComesBackAfterAQuit)
{
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    EXPECT_FALSE(client->IsDisconnected());
    EXPECT_TRUE(desktop.asked.empty());
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
    Type(*client, "Tester");
    ASSERT_TRUE(WaitForGameText(*client, "[Thornmere, Market Square]"));
    EXPECT_TRUE(WaitForSent("Tester\n\rSet Steward On\n\r")) << Sent().toStdString();
    // The first status record answers the mode, and its prompt ends the text so far.
    ASSERT_TRUE(QTest::qWaitFor([&] { return client->State().Panel.Hp.GetMax() > 0; }, WAIT_MS));

    Type(*client, "look");
    EXPECT_TRUE(WaitForSent("look\n\r"));
    EXPECT_TRUE(WaitForGameText(*client, ">look")) << GameText(*client);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const std::string text = GameText(*client);
            return text.find("[Thornmere, Market Square]") !=
                   text.rfind("[Thornmere, Market Square]");
        },
        WAIT_MS));

    QWidget* line = client->Frame().CommandLine();
    QTest::keyClicks(line, "half typed");
    QTest::keyClick(line, Qt::Key_8, Qt::KeypadModifier);
    EXPECT_TRUE(WaitForSent("look\n\rn\n\r")) << Sent().toStdString();
    EXPECT_FALSE(Sent().contains("half"));
    Type(*client, "bob:hello");
    EXPECT_TRUE(WaitForSent("contact bob hello\n\r"));

    desktop.dragTarget = "orla";
    client->OnCommand(CMD_DRAG_SOMEONE);
    Type(*client, "s");
    EXPECT_TRUE(WaitForSent("drag orla s\n\r")) << Sent().toStdString();
    client->OnCommand(CMD_STOP_DRAGGING);
    Type(*client, "n");
    EXPECT_TRUE(WaitForSent("drag orla s\n\rn\n\r")) << Sent().toStdString();

    client->OnCommand(CMD_INFO_GENERAL + 2);
    client->OnCommand(CMD_ROOM_SUPERBRIEF);
    client->OnCommand(CMD_EQUIP_WEAPON);
    EXPECT_TRUE(WaitForSent("inv\n\rsuperbrief\n\rready saber\n\r")) << Sent().toStdString();
    EXPECT_TRUE(WaitForGameText(*client, "superbrief"));

    Type(*client, "quit");
    ASSERT_TRUE(WaitForGameText(*client, "* Connection to the game has been dropped."));
    ASSERT_TRUE(client->IsDisconnected());
    client->OnCommand(CMD_CONNECT);
    EXPECT_FALSE(client->IsDisconnected());
    EXPECT_TRUE(desktop.messages.empty());
    ExpectStatusRecordsAskedAgain(*client);

    desktop.leave = false;
    client->Frame().close();
    EXPECT_EQ(desktop.exitQuestions, 1);
    EXPECT_TRUE(client->Frame().isVisible());
    desktop.leave = true;
    client->Frame().close();
    EXPECT_EQ(desktop.exitQuestions, 2);
    client->Finish();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sent().count("quit\n\r") == 2; }, WAIT_MS));

    // The profile saved after play holds every gauge's colours.
    const struct {
        const char* key;
        std::uint32_t bar;
    } gauges[] = {{"Health", 0x5ADC5A}, {"Fatigue", 0x6E6EE6}, {"Weight", 0x82F0DC},
                  {"PSI", 0xF0A0C8},    {"Web", 0x558CE6},     {"RT", 0x5A5AFA},
                  {"Pause", 0xBE78C8}};
    for (const auto& gauge : gauges) {
        GaugeColorBytes bytes{};
        ASSERT_TRUE(
            ReadBinary(File("Default.Dat"), "Colors", gauge.key, bytes.data(), bytes.size()))
            << gauge.key;
        const GaugeColors colors = GaugeColorsFromBytes(bytes);
        EXPECT_EQ(colors.GaugeTextColor, 0xFFFFFFu) << gauge.key;
        EXPECT_EQ(colors.BarColor, gauge.bar) << gauge.key;
        EXPECT_EQ(colors.GaugeBackColor, 0x5F5F5Fu) << gauge.key;
    }
}

// The first run opens the version notes, plays the start music, turns auto-log on and squelches
// sounds; the second opens a dated log at its start, stays silent and recalls the typed history.
TEST_F(ClientWorldTest, ASecondStartFollowsWhatTheFirstLeft)
{
    TurnOn(KEEP_COMMAND_HISTORY, 1);
    const std::string music =
        SoundPath(MakeConfigFiles(folder.path().toStdString())) + "/T_STARTMUSIC.WAV";
    {
        auto client = LoggedInClient();
        ASSERT_TRUE(client);
        const auto& asked = desktop.sounds.asked;
        EXPECT_NE(std::find(asked.begin(), asked.end(), music), asked.end());
        EXPECT_EQ(desktop.edited, std::vector<std::string>{File("Version Notes.Txt")});
        client->OnCommand(CMD_AUTO_LOG);
        client->State().Profile.Settings.SquelchSounds = 1;
        Type(*client, "look at the fountain");
        ASSERT_TRUE(WaitForSent("look at the fountain\n\r"));
        client->Frame().close();
    }
    desktop.sounds.asked.clear();
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    EXPECT_TRUE(client->State().SessionLog.IsOpen());
    EXPECT_NE(GameText(*client).find("Log file auto-opened successfully."), std::string::npos);
    EXPECT_TRUE(desktop.sounds.asked.empty());
    QTest::qWait(50);
    EXPECT_EQ(desktop.edited.size(), 1u);

    auto* line = qobject_cast<QLineEdit*>(client->Frame().CommandLine());
    QApplication::setActiveWindow(&client->Frame());
    line->setFocus();
    QTest::keyClick(line, Qt::Key_Up);
    EXPECT_EQ(line->text(), QStringLiteral("look at the fountain"));
    QTest::keyClick(line, Qt::Key_Up);
    EXPECT_EQ(line->text(), QStringLiteral("Tester"));
    line->clear();

    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
    Type(*client, "Tester");
    ASSERT_TRUE(WaitForGameText(*client, "[Thornmere, Market Square]"));
    client->Frame().close();
    client->Finish();
    QStringList logs = QDir(folder.path()).entryList({"Thornmere Log *.Txt"});
    ASSERT_EQ(logs.size(), 2);
    logs.sort();
    EXPECT_TRUE(ReadAll(folder.filePath(logs.back())).contains("[Thornmere, Market Square]"));
}

// Every file of the folder with its bytes.
std::map<QString, QByteArray> FolderBytes(const QString& path)
{
    std::map<QString, QByteArray> files;
    for (const QString& name : QDir(path).entryList(QDir::Files))
        files[name] = ReadAll(QDir(path).filePath(name));
    return files;
}

TEST_F(ClientWorldTest, TheStartDialogConnectsStartsOfflineCancelsOrTellsAClosedPort)
{
    const std::string ini = File("Thornmere.Ini");
    const struct {
        ConnectChoice choice;
        const char* host;
    } offline[] = {{ConnectChoice::Offline, "127.0.0.1"}, {ConnectChoice::Connect, ""}};
    for (const auto& c : offline) {
        desktop.choice = c.choice;
        desktop.answerHost = c.host;
        desktop.answerPort = world->port;
        auto client = MakeClient("");
        ASSERT_TRUE(client->Start()) << c.host;
        EXPECT_TRUE(client->IsDisconnected());
        EXPECT_NE(GameText(*client).find("*** Operating in an Offline mode."), std::string::npos);
        EXPECT_STREQ(client->State().ConnectionString, "/H127.0.0.1/P34283");
        EXPECT_EQ(ReadInt(ini, "Connection", "Port", 0), 0);

        FrameWindow& frame = client->Frame();
        QApplication::setActiveWindow(&frame);
        frame.CommandLine()->setFocus();
        QTest::keyClick(frame.CommandLine(), Qt::Key_Pause, Qt::ShiftModifier);
        EXPECT_TRUE(client->State().Rest.RestSilent);
        QTest::keyClick(frame.CommandLine(), Qt::Key_A);
        EXPECT_FALSE(client->State().Rest.RestMode);
        EXPECT_NE(GameText(*client).find("Leaving rest mode."), std::string::npos);
        QTest::keyClick(frame.CommandLine(), Qt::Key_Pause);
        EXPECT_TRUE(client->State().Rest.RestMode);
        EXPECT_FALSE(client->State().Rest.RestSilent);
        EXPECT_NE(GameText(*client).find("Entering rest mode...press any key to resume."),
                  std::string::npos);
        client->Frame().close();
        EXPECT_EQ(desktop.exitQuestions, 0);
    }
    EXPECT_TRUE(desktop.messages.empty());

    desktop.choice = ConnectChoice::Connect;
    desktop.answerHost = "127.0.0.1";
    desktop.asked.clear();
    {
        auto client = MakeClient("");
        ASSERT_TRUE(client->Start());
        EXPECT_EQ(desktop.asked, std::vector<std::string>{"127.0.0.1:34283"});
        EXPECT_FALSE(client->IsDisconnected());
        EXPECT_EQ(ReadInt(ini, "Connection", "Port", 0), world->port);
        client->Frame().close();
    }

    // A state that a window would write back differently.
    ASSERT_TRUE(WriteString(File("Default.Dat"), "Game Window", "StateInfo", "11"));
    const auto before = FolderBytes(folder.path());
    desktop.choice = ConnectChoice::Cancel;
    EXPECT_FALSE(MakeClient("")->Start());
    EXPECT_EQ(FolderBytes(folder.path()), before);

    desktop.choice = ConnectChoice::Connect;
    world->Stop();
    EXPECT_FALSE(MakeClient(Address())->Start());
    EXPECT_EQ(desktop.messages,
              std::vector<std::string>{"Fatal Error|Unable to connect to the server!"});
}

TEST_F(ClientWorldTest, LoopTurnsBetweenTheBlocksOfAFlood)
{
    world = std::make_unique<WorldProcess>(folder.filePath("sent.bin"),
                                           QStringList{"--flood", "3000000"});
    ASSERT_GT(world->port, 0);
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    int ticks = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] { ++ticks; });
    ticker.start(0);
    ASSERT_TRUE(steward::testing::RunLoopUntil(
        [&] { return GameTail(*client, 64).find("FLOOD-END") != std::string::npos; }, 60000));
    EXPECT_GT(ticks, 100) << GameTail(*client, 300);
}

} // namespace
} // namespace steward::test
