#include "ClientHarness.h"
#include "base/FrameCommand.h"
#include "config/BinaryRecords.h"
#include "config/IniStore.h"

#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include <map>

namespace steward::test {
namespace {

class ClientWorldTest : public ClientHarness {};

TEST_F(ClientWorldTest, ConnectsShowsTheRoomAndAsksForStatusRecords)
{
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    EXPECT_FALSE(client->IsDisconnected());
    EXPECT_TRUE(desktop.asked.empty());
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));

    Type(*client, "Tester");
    ASSERT_TRUE(WaitForGameText(*client, "[Thornmere, Market Square]"));
    EXPECT_TRUE(WaitForSent("Tester\n\rSet Steward On\n\r")) << Sent().toStdString();
}

TEST_F(ClientWorldTest, TypedCommandReachesTheWorldWithLineFeedThenReturnAndIsEchoed)
{
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
    Type(*client, "Tester");
    ASSERT_TRUE(WaitForSent("Set Steward On\n\r"));
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
}

TEST_F(ClientWorldTest, MovesWhileDraggingAreSentAsDrags)
{
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
    Type(*client, "Tester");
    ASSERT_TRUE(WaitForSent("Set Steward On\n\r"));

    desktop.dragTarget = "orla";
    client->OnCommand(CMD_DRAG_SOMEONE);
    Type(*client, "n");
    EXPECT_TRUE(WaitForSent("drag orla n\n\r")) << Sent().toStdString();
    client->OnCommand(CMD_STOP_DRAGGING);
    Type(*client, "s");
    EXPECT_TRUE(WaitForSent("drag orla n\n\rs\n\r")) << Sent().toStdString();
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

    // The program's own loop, without the pauses of a test's waiting.
    QEventLoop loop;
    QTimer check;
    bool ended = false;
    QObject::connect(&check, &QTimer::timeout, [&] {
        ended = GameTail(*client, 64).find("FLOOD-END") != std::string::npos;
        if (ended)
            loop.quit();
    });
    check.start(20);
    QTimer::singleShot(60000, &loop, &QEventLoop::quit);
    loop.exec();
    ASSERT_TRUE(ended);
    EXPECT_GT(ticks, 100) << GameTail(*client, 300);
}

TEST_F(ClientWorldTest, InfoMenuAndToolCommandsSendTheirTexts)
{
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
    Type(*client, "Tester");
    ASSERT_TRUE(WaitForSent("Set Steward On\n\r"));
    client->OnCommand(CMD_INFO_GENERAL + 2);
    client->OnCommand(CMD_ROOM_SUPERBRIEF);
    client->OnCommand(CMD_EQUIP_WEAPON);
    EXPECT_TRUE(WaitForSent("inv\n\rsuperbrief\n\rready saber\n\r")) << Sent().toStdString();
    EXPECT_TRUE(WaitForGameText(*client, "superbrief"));
}

TEST_F(ClientWorldTest, DroppedConnectionIsSaidInTheGameWindow)
{
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
    world->Stop();
    ASSERT_TRUE(WaitForGameText(*client, "* Connection to the game has been dropped."));
    EXPECT_TRUE(client->IsDisconnected());
}

TEST_F(ClientWorldTest, ReconnectAsksForStatusRecordsAgain)
{
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
    Type(*client, "Tester");
    ASSERT_TRUE(WaitForSent("Set Steward On\n\r"));
    Type(*client, "quit");
    ASSERT_TRUE(WaitForGameText(*client, "* Connection to the game has been dropped."));
    ASSERT_TRUE(client->IsDisconnected());

    client->OnCommand(CMD_CONNECT);
    EXPECT_FALSE(client->IsDisconnected());
    EXPECT_TRUE(desktop.messages.empty());
    ExpectStatusRecordsAskedAgain(*client);
}

TEST_F(ClientWorldTest, PacketDumpListsTheReceivedBlocks)
{
    const std::string dump = folder.filePath("dump.txt").toStdString();
    {
        auto client = MakeClient(Address(), dump);
        ASSERT_TRUE(client->Start());
        EXPECT_TRUE(WaitForGameText(*client, "Packet Dump file is ACTIVE!"));
        ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
        client->Frame().close();
    }
    QFile file(QString::fromStdString(dump));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray listed = file.readAll();
    EXPECT_TRUE(listed.contains("---- (")) << listed.toStdString();
    EXPECT_TRUE(listed.contains("..Welcome to Th")) << listed.toStdString();
}

TEST_F(ClientWorldTest, AutoLogOpensADatedLogAtAConnectedStart)
{
    {
        desktop.choice = ConnectChoice::Offline;
        auto offline = MakeClient("");
        ASSERT_TRUE(offline->Start());
        offline->OnCommand(CMD_AUTO_LOG);
        offline->Frame().close();
    }
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    EXPECT_TRUE(client->State().SessionLog.IsOpen());
    EXPECT_NE(GameText(*client).find("Log file auto-opened successfully."), std::string::npos);
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
    Type(*client, "Tester");
    ASSERT_TRUE(WaitForGameText(*client, "[Thornmere, Market Square]"));
    client->Frame().close();
    client->Finish();

    QStringList logs = QDir(folder.path()).entryList({"Thornmere Log *.Txt"});
    ASSERT_EQ(logs.size(), 2);
    logs.sort();
    QFile log(folder.filePath(logs.back()));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().contains("[Thornmere, Market Square]"));
}

TEST_F(ClientWorldTest, ExitWhileConnectedAsksAndSaysQuit)
{
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));

    desktop.leave = false;
    client->Frame().close();
    EXPECT_EQ(desktop.exitQuestions, 1);
    EXPECT_TRUE(client->Frame().isVisible());

    desktop.leave = true;
    client->Frame().close();
    EXPECT_EQ(desktop.exitQuestions, 2);
    client->Finish();
    EXPECT_TRUE(WaitForSent("quit\n\r"));
    EXPECT_TRUE(QFile::exists(folder.filePath("Default.Dat")));
}

TEST_F(ClientWorldTest, DialogChoosesTheHostAndRemembersIt)
{
    desktop.answerHost = "127.0.0.1";
    desktop.answerPort = world->port;
    auto client = MakeClient("");
    ASSERT_TRUE(client->Start());
    EXPECT_EQ(desktop.asked, std::vector<std::string>{"127.0.0.1:34283"});
    EXPECT_FALSE(client->IsDisconnected());
    const std::string ini = folder.filePath("Thornmere.Ini").toStdString();
    EXPECT_EQ(ReadInt(ini, "Connection", "Port", 0), world->port);
}

TEST_F(ClientWorldTest, OfflineOrAnEmptyHostStartsWithoutAConnection)
{
    const struct {
        ConnectChoice choice;
        const char* host;
    } cases[] = {{ConnectChoice::Offline, "127.0.0.1"}, {ConnectChoice::Connect, ""}};
    for (const auto& c : cases) {
        desktop.choice = c.choice;
        desktop.answerHost = c.host;
        desktop.answerPort = world->port;
        auto client = MakeClient("");
        ASSERT_TRUE(client->Start()) << c.host;
        EXPECT_TRUE(client->IsDisconnected());
        EXPECT_NE(client->State().Windows.GameWindow, nullptr);
        EXPECT_NE(GameText(*client).find("*** Operating in an Offline mode."), std::string::npos);
        EXPECT_STREQ(client->State().ConnectionString, "/H127.0.0.1/P34283");
        const std::string ini = folder.filePath("Thornmere.Ini").toStdString();
        EXPECT_EQ(ReadInt(ini, "Connection", "Port", 0), 0);

        client->Frame().close();
        EXPECT_EQ(desktop.exitQuestions, 0);
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ClientWorldTest, AProfileSavedAfterPlayHoldsTheGaugeColours)
{
    {
        auto client = MakeClient(Address());
        ASSERT_TRUE(client->Start());
        ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
        Type(*client, "Tester");
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return client->State().Panel.Hp.GetMax() > 0; }, WAIT_MS));
        client->Frame().close();
    }
    const struct {
        const char* key;
        std::uint32_t bar;
    } gauges[] = {{"Health", 0x5ADC5A}, {"Fatigue", 0x6E6EE6}, {"Weight", 0x82F0DC},
                  {"PSI", 0xF0A0C8},    {"Web", 0x558CE6},     {"RT", 0x5A5AFA},
                  {"Pause", 0xBE78C8}};
    const std::string dat = folder.filePath("Default.Dat").toStdString();
    for (const auto& gauge : gauges) {
        GaugeColorBytes bytes{};
        ASSERT_TRUE(ReadBinary(dat, "Colors", gauge.key, bytes.data(), bytes.size())) << gauge.key;
        const GaugeColors colors = GaugeColorsFromBytes(bytes);
        EXPECT_EQ(colors.GaugeTextColor, 0xFFFFFFu) << gauge.key;
        EXPECT_EQ(colors.BarColor, gauge.bar) << gauge.key;
        EXPECT_EQ(colors.GaugeBackColor, 0x5F5F5Fu) << gauge.key;
    }
}

TEST_F(ClientWorldTest, PauseRestsAndAnyKeyWakes)
{
    desktop.choice = ConnectChoice::Offline;
    auto client = MakeClient("");
    ASSERT_TRUE(client->Start());
    FrameWindow& frame = client->Frame();
    QApplication::setActiveWindow(&frame);
    frame.CommandLine()->setFocus();
    QTest::keyClick(frame.CommandLine(), Qt::Key_Pause);
    EXPECT_TRUE(client->State().Rest.RestMode);
    EXPECT_FALSE(client->State().Rest.RestSilent);
    EXPECT_NE(GameText(*client).find("Entering rest mode...press any key to resume."),
              std::string::npos);
    QTest::keyClick(frame.CommandLine(), Qt::Key_A);
    EXPECT_FALSE(client->State().Rest.RestMode);
    EXPECT_NE(GameText(*client).find("Leaving rest mode."), std::string::npos);

    QTest::keyClick(frame.CommandLine(), Qt::Key_Pause, Qt::ShiftModifier);
    EXPECT_TRUE(client->State().Rest.RestSilent);
}

TEST_F(ClientWorldTest, VersionNotesOpenOnceInTheEditor)
{
    desktop.choice = ConnectChoice::Offline;
    {
        auto client = MakeClient("");
        ASSERT_TRUE(client->Start());
        ASSERT_TRUE(QTest::qWaitFor([&] { return !desktop.edited.empty(); }, WAIT_MS));
        client->Frame().close();
    }
    EXPECT_EQ(desktop.edited,
              std::vector<std::string>{folder.filePath("Version Notes.Txt").toStdString()});
    auto again = MakeClient("");
    ASSERT_TRUE(again->Start());
    QTest::qWait(50);
    EXPECT_EQ(desktop.edited.size(), 1u);
}

TEST_F(ClientWorldTest, ClosedPortEndsTheStartWithItsMessage)
{
    const int port = world->port;
    world->Stop();
    auto client = MakeClient("/H127.0.0.1/P" + std::to_string(port));
    EXPECT_FALSE(client->Start());
    EXPECT_EQ(desktop.messages,
              std::vector<std::string>{"Fatal Error|Unable to connect to the server!"});
}

// Every file of the folder with its bytes.
std::map<QString, QByteArray> FolderBytes(const QString& path)
{
    std::map<QString, QByteArray> files;
    for (const QString& name : QDir(path).entryList(QDir::Files)) {
        QFile file(QDir(path).filePath(name));
        if (file.open(QIODevice::ReadOnly))
            files[name] = file.readAll();
    }
    return files;
}

TEST_F(ClientWorldTest, CancelEndsTheStartAndLeavesEveryFileAsItWas)
{
    {
        desktop.choice = ConnectChoice::Offline;
        auto earlier = MakeClient("");
        ASSERT_TRUE(earlier->Start());
        earlier->Frame().close();
    }
    // A state that a window would write back differently.
    ASSERT_TRUE(WriteString(folder.filePath("Default.Dat").toStdString(), "Game Window",
                            "StateInfo", "11"));
    const auto before = FolderBytes(folder.path());
    desktop.choice = ConnectChoice::Cancel;
    auto client = MakeClient("");
    EXPECT_FALSE(client->Start());
    client.reset();
    EXPECT_EQ(FolderBytes(folder.path()), before);
}

} // namespace
} // namespace steward::test
