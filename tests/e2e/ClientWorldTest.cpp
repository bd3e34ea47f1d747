#include "config/ConfigFiles.h"
#include "config/IniStore.h"
#include "session/FrameCommand.h"
#include "session/qt/Client.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameWindow.h"
#include "terminal/AnsiWindow.h"
#include "terminal/TextBuffer.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace steward::test {
namespace {

constexpr int WAIT_MS = 10000;

// Dialogs answer as the test says; nothing opens on the desktop.
class RecordingDesktop : public Desktop {
  public:
    ConnectChoice AskConnection(QWidget*, std::string& host, int& port) override
    {
        asked.push_back(host + ":" + std::to_string(port));
        host = answerHost;
        port = answerPort;
        return choice;
    }
    bool AskExit(QWidget*) override
    {
        ++exitQuestions;
        return leave;
    }
    void ShowMessage(QWidget*, const char* text, const char* title) override
    {
        messages.push_back(std::string(title ? title : "") + "|" + text);
    }
    bool RunEditor(const std::string& path) override
    {
        edited.push_back(path);
        return true;
    }
    bool AskSaveFileName(QWidget*, const SaveFileRequest&, char*, std::size_t) override
    {
        return false;
    }
    void Beep() override {}
    bool AskString(QWidget*, const char*, char*, std::size_t) override { return false; }
    bool AskDragTarget(QWidget*, std::string& target) override
    {
        target = dragTarget;
        return true;
    }

    std::string dragTarget;
    ConnectChoice choice = ConnectChoice::Connect;
    std::string answerHost;
    int answerPort = 0;
    bool leave = true;
    int exitQuestions = 0;
    std::vector<std::string> asked;
    std::vector<std::string> messages;
    std::vector<std::string> edited;
};

// The practice world as a separate process on a free port of 127.0.0.1, recording every byte
// that its clients send.
class WorldProcess {
  public:
    explicit WorldProcess(const QString& recordFile, const QStringList& more = {})
    {
        process.start(
            QStringLiteral(WORLD_BINARY),
            QStringList{"--port", "0", "--quiet", "--listen", "127.0.0.1", "--record", recordFile} +
                more);
        if (!process.waitForStarted(WAIT_MS))
            return;
        if (QTest::qWaitFor([this] { return process.canReadLine(); }, WAIT_MS))
            port = process.readLine().trimmed().toInt();
    }
    ~WorldProcess() { Stop(); }

    void Stop()
    {
        if (process.state() == QProcess::NotRunning)
            return;
        process.kill();
        process.waitForFinished(WAIT_MS);
    }

    QProcess process;
    int port = 0;
};

class ClientWorldTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        world = std::make_unique<WorldProcess>(folder.filePath("sent.bin"));
        ASSERT_GT(world->port, 0);
    }

    std::unique_ptr<Client> MakeClient(const std::string& connection,
                                       const std::string& packetDump = {})
    {
        ClientOptions options;
        options.Files = MakeConfigFiles(folder.path().toStdString());
        options.ConnectionString = connection;
        options.PacketDumpPath = packetDump;
        return std::make_unique<Client>(std::move(options), desktop);
    }

    std::string Address() const { return "/H127.0.0.1/P" + std::to_string(world->port); }

    static std::string GameText(Client& client)
    {
        AnsiWindow* game = client.State().Windows.GameWindow;
        if (!game)
            return {};
        std::vector<char> text(60000);
        game->GetText(text.data(), static_cast<std::uint16_t>(text.size()));
        return text.data();
    }

    // The last bytes of the Game window, however much text it holds.
    static std::string GameTail(Client& client, int count)
    {
        TextBuffer& live = client.State().Windows.GameWindow->GetLiveBuffer();
        std::string tail;
        auto at = live.GetWritePos();
        for (int i = 0; i < count && at != live.GetHeadPos(); ++i) {
            at = live.Prev(at);
            tail.insert(tail.begin(), static_cast<char>(live.ByteAt(at)));
        }
        return tail;
    }

    static bool WaitForGameText(Client& client, const std::string& needle)
    {
        return QTest::qWaitFor([&] { return GameText(client).find(needle) != std::string::npos; },
                               WAIT_MS);
    }

    QByteArray Sent() const
    {
        QFile file(folder.filePath("sent.bin"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool WaitForSent(const QByteArray& needle) const
    {
        return QTest::qWaitFor([&] { return Sent().contains(needle); }, WAIT_MS);
    }

    static void Type(Client& client, const char* text)
    {
        FrameWindow& frame = client.Frame();
        QApplication::setActiveWindow(&frame);
        QWidget* line = frame.CommandLine();
        line->setFocus();
        QTest::keyClicks(line, QString::fromLatin1(text));
        QTest::keyClick(line, Qt::Key_Return);
    }

    QTemporaryDir folder;
    std::unique_ptr<WorldProcess> world;
    RecordingDesktop desktop;
};

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
    ASSERT_TRUE(QTest::qWaitFor([&] { return Sent().count("Tester\n\r") == 1; }, WAIT_MS));
    Type(*client, "Tester");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sent().count("Set Steward On\n\r") == 2; }, WAIT_MS))
        << Sent().toStdString();
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

TEST_F(ClientWorldTest, OfflineStartsWithoutAConnection)
{
    desktop.choice = ConnectChoice::Offline;
    auto client = MakeClient("");
    ASSERT_TRUE(client->Start());
    EXPECT_TRUE(client->IsDisconnected());
    EXPECT_NE(GameText(*client).find("*** Operating in an Offline mode."), std::string::npos);
    EXPECT_STREQ(client->State().ConnectionString, "/H127.0.0.1/P34283");
    const std::string ini = folder.filePath("Thornmere.Ini").toStdString();
    EXPECT_EQ(ReadInt(ini, "Connection", "Port", 0), 0);

    client->Frame().close();
    EXPECT_EQ(desktop.exitQuestions, 0);
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

TEST_F(ClientWorldTest, CancelEndsTheStartAndSavesNothing)
{
    desktop.choice = ConnectChoice::Cancel;
    auto client = MakeClient("");
    EXPECT_FALSE(client->Start());
    client.reset();
    const std::string ini = folder.filePath("Thornmere.Ini").toStdString();
    char value[64];
    ReadString(ini, "Connection", "Host", value, sizeof value, "none");
    EXPECT_STREQ(value, "none");
    ReadString(ini, "History", "LastChar", value, sizeof value, "none");
    EXPECT_STREQ(value, "none");
}

} // namespace
} // namespace steward::test
