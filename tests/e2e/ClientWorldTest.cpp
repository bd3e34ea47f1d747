#include "ClientHarness.h"
#include "base/FrameCommand.h"
#include "commands/qt/MacroSheet.h"
#include "config/BinaryRecords.h"
#include "config/IniStore.h"
#include "highlights/qt/ColorGrid.h"
#include "highlights/qt/HighlightSheet.h"
#include "session/ReconnectPlan.h"
#include "support/RunLoopUntil.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <map>

namespace steward::test {
namespace {

// Long enough for the first try to have come, had one been due.
constexpr int PAST_FIRST_TRY_MS = RECONNECT_FIRST_WAIT_S * 1000 + 700;

class ClientWorldTest : public ClientHarness {
  protected:
    // The world ends and starts again on its port, as a server does after a restart.
    void RestartWorld()
    {
        const int port = world->port;
        world->Stop();
        world = std::make_unique<WorldProcess>(folder.filePath("sent.bin"),
                                               QStringList{"--port", QString::number(port)});
        // Told a port, the world greets with a sentence instead of the number.
        world->port = port;
    }
};

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
    // The world records the closing "quit" in the folder in its own time.
    ASSERT_TRUE(WaitForSent("quit\n\r"));

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

// Only a drop by the world with the option on is tried again: not with the option off, not after
// the player's quit, not after a failed connect by hand.
TEST_F(ClientWorldTest, AClientDroppedByTheWorldComesBackOnlyWithTheOptionOn)
{
    enum class Drop { WorldRestarts, PlayerQuits, WorldGoneThenConnectByHand };
    const struct {
        const char* name;
        bool option;
        Drop drop;
    } cases[] = {
        {"option on", true, Drop::WorldRestarts},
        {"option off", false, Drop::WorldRestarts},
        {"the player's quit", true, Drop::PlayerQuits},
        {"a failed connect by hand", true, Drop::WorldGoneThenConnectByHand},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        world = std::make_unique<WorldProcess>(folder.filePath("sent.bin"));
        auto client = LoggedInClient();
        ASSERT_NE(client, nullptr);
        client->State().Steward.Set(RECONNECT_ON_DROP, c.option);
        if (c.drop == Drop::PlayerQuits)
            Type(*client, "quit");
        else if (c.drop == Drop::WorldRestarts)
            RestartWorld();
        else
            world->Stop();
        ASSERT_TRUE(WaitForGameText(*client, "* Connection to the game has been dropped."));
        if (c.option && c.drop == Drop::WorldRestarts) {
            EXPECT_TRUE(WaitForGameText(*client, "*** Reconnecting in 2 seconds (try 1 of 10)..."));
            ASSERT_TRUE(WaitForGameText(*client, "*** Reconnected to the game."));
            EXPECT_FALSE(client->IsDisconnected());
            EXPECT_TRUE(desktop.messages.empty());
            ExpectStatusRecordsAskedAgain(*client);
            client->Frame().close();
            continue;
        }
        if (c.drop == Drop::WorldGoneThenConnectByHand) {
            ASSERT_TRUE(WaitForGameText(*client, "*** Reconnecting in 2 seconds"));
            client->OnCommand(CMD_CONNECT);
            EXPECT_EQ(desktop.messages,
                      std::vector<std::string>{"Fatal Error|Unable to connect to the server!"});
        }
        QTest::qWait(PAST_FIRST_TRY_MS);
        EXPECT_TRUE(client->IsDisconnected());
        EXPECT_EQ(GameText(*client).find("server! (try"), std::string::npos);
        EXPECT_EQ(GameText(*client).find("Reconnected"), std::string::npos);
        client->Frame().close();
        desktop.messages.clear();
    }
}

// Runs the command's modal sheet, edited and closed with OK from inside its own loop.
bool EditInSheet(Client& client, int command, const std::function<void(QDialog&)>& edit)
{
    bool edited = false;
    QTimer::singleShot(0, [&] {
        if (auto* sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            edit(*sheet);
            sheet->accept();
            edited = true;
        }
    });
    client.OnCommand(command);
    return edited;
}

TEST_F(ClientWorldTest, EditsInTheHighlightAndMacroSheetsWorkInTheGameAndSurviveARestart)
{
    // The first round looks again, the second sees the room of its login.
    const auto salmonIsRed = [&](Client& client, int round) {
        if (round == 1)
            Type(client, "look");
        const std::string red = std::string(ColorOnText(12)) + "salmon" + ColorOffText(12);
        return WaitForBytes(client.State().Windows.GameWindow, red);
    };
    const auto ctrlJSays = [&](Client& client, int round) {
        QApplication::setActiveWindow(&client.Frame());
        client.Frame().CommandLine()->setFocus();
        QTest::keyClick(client.Frame().CommandLine(), Qt::Key_J, Qt::ControlModifier);
        return QTest::qWaitFor([&] { return Sent().count("say sheet macro\n\r") == round; },
                               WAIT_MS);
    };
    {
        auto client = LoggedInClient();
        ASSERT_TRUE(client);
        ASSERT_TRUE(EditInSheet(*client, CMD_HIGHLIGHT_STRINGS, [&](QDialog& dialog) {
            auto& sheet = static_cast<HighlightSheet&>(dialog);
            sheet.Tabs()->setCurrentIndex(1);
            HighlightPage& page = *sheet.Page(1);
            desktop.answers = {"salmon"};
            page.Button(PageButton::New)->click();
            QTest::mouseClick(page.Grid(), Qt::LeftButton, {}, page.Grid()->CellRect(12).center());
        }));
        ASSERT_TRUE(EditInSheet(*client, CMD_MACRO_KEYS, [](QDialog& dialog) {
            auto& sheet = static_cast<MacroSheet&>(dialog);
            sheet.Tabs()->setCurrentIndex(1);
            static_cast<LetterPage*>(sheet.Page(1))->Edit('J' - 'A')->setText("say sheet macro\\r");
        }));
        EXPECT_TRUE(salmonIsRed(*client, 1)) << GameText(*client);
        EXPECT_TRUE(ctrlJSays(*client, 1));
        client->Frame().close();
    }
    auto again = LoggedInClient();
    ASSERT_TRUE(again);
    EXPECT_TRUE(salmonIsRed(*again, 2)) << GameText(*again);
    EXPECT_TRUE(ctrlJSays(*again, 2));
}

} // namespace
} // namespace steward::test
