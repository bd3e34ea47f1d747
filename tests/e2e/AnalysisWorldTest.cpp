#include "ClientHarness.h"
#include "base/ByteText.h"
#include "base/FrameCommand.h"
#include "config/ConfigFiles.h"

#include <QTcpSocket>

#include <algorithm>
#include <regex>

namespace steward::test {
namespace {

// A second player of the practice world, typing raw lines.
class OtherPlayer {
  public:
    OtherPlayer(int port, const char* name)
    {
        socket.connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(port));
        connected = socket.waitForConnected(WAIT_MS);
        Say(name);
    }

    void Say(const char* line)
    {
        socket.write(QByteArray(line) + "\r\n");
        socket.flush();
    }

    QTcpSocket socket;
    bool connected = false;
};

class AnalysisWorldTest : public ClientHarness {
  protected:
    std::string SoundFile(const char* name) const
    {
        return SoundPath(MakeConfigFiles(folder.path().toStdString())) + "/" + name;
    }

    bool SoundAsked(const std::string& path) const
    {
        const std::vector<std::string>& asked = desktop.sounds.asked;
        return std::find(asked.begin(), asked.end(), path) != asked.end();
    }
};

TEST_F(AnalysisWorldTest, AnotherPlayersSpeechArrivesWithTheSpeakerColoured)
{
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    OtherPlayer mara(world->port, "Mara");
    ASSERT_TRUE(mara.connected);
    mara.Say("say Well met, stranger.");

    AnsiWindow* game = client->State().Windows.GameWindow;
    const unsigned char says = client->State().Profile.Settings.SaysColor;
    const std::string off = ColorOffText(says);
    ASSERT_TRUE(WaitForBytes(game, "Mara says," + off + " \"Well met, stranger.\""))
        << WindowBytes(game);
    const std::string bytes = WindowBytes(game);
    const std::size_t speaker = bytes.rfind("Mara says,");
    const std::size_t lineStart = bytes.rfind('\n', speaker);
    const std::size_t on = bytes.find(ColorOnText(says), lineStart);
    EXPECT_LT(on, speaker) << bytes.substr(lineStart);
}

TEST_F(AnalysisWorldTest, ThoughtLandsInTheOpenThoughtWindowInItsCompactForm)
{
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    client->OnCommand(CMD_OPEN_THOUGHT_WINDOW);
    AnsiWindow* thoughts = client->State().Windows.ThoughtWindow;
    ASSERT_NE(thoughts, nullptr);
    OtherPlayer mara(world->port, "Mara");
    ASSERT_TRUE(mara.connected);
    mara.Say("think Who left the gate open?");
    mara.Say("contact Tester Meet me by the fountain.");

    EXPECT_TRUE(WaitForBytes(thoughts, "[Mara]: \"Who left the gate open?\""))
        << WindowBytes(thoughts);
    EXPECT_TRUE(WaitForBytes(thoughts, "[Mara (Private)]: \"Meet me by the fountain.\""))
        << WindowBytes(thoughts);
    EXPECT_EQ(GameText(*client).find("Who left the gate open?"), std::string::npos);
}

TEST_F(AnalysisWorldTest, ArrivalLandsInTheOpenArrivalWindowWithTheClock)
{
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    client->OnCommand(CMD_OPEN_ARRIVAL_WINDOW);
    AnsiWindow* arrivals = client->State().Windows.ArrivalWindow;
    ASSERT_NE(arrivals, nullptr);
    {
        OtherPlayer mara(world->port, "Mara");
        ASSERT_TRUE(mara.connected);
        ASSERT_TRUE(WaitForBytes(arrivals, "Mara arrived at "));
        mara.Say("quit");
        ASSERT_TRUE(WaitForBytes(arrivals, "Mara left at ")) << WindowBytes(arrivals);
    }
    const std::regex clock("Mara arrived at (1[0-2]|[1-9]):[0-5][0-9] [ap]m\\.\n"
                           "Mara left at (1[0-2]|[1-9]):[0-5][0-9] [ap]m\\.");
    EXPECT_TRUE(std::regex_search(WindowBytes(arrivals), clock)) << WindowBytes(arrivals);
    EXPECT_EQ(GameText(*client).find("just arrived in the world"), std::string::npos);
}

TEST_F(AnalysisWorldTest, StatusRecordsShowThePromptAndFeedTheGauges)
{
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    ASSERT_TRUE(WaitForSent("Set Steward On\n\r"));
    const StatusPanel& panel = client->State().Panel;
    Type(*client, "ready saber");
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel.WeaponIcon.Held(); }, WAIT_MS))
        << GameText(*client);
    Type(*client, "sit");
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel.BodyFigure.GetState() == 2; }, WAIT_MS))
        << GameText(*client);
    EXPECT_FALSE(panel.ShieldIcon.Held());
    const Gauge* gauges[] = {&panel.Hp, &panel.Ftg, &panel.Psi, &panel.Web, &panel.Weight};
    const std::int32_t expected[][2] = {{100, 100}, {60, 60}, {20, 20}, {5, 5}, {14, 80}};
    for (std::size_t i = 0; i < std::size(gauges); ++i) {
        EXPECT_EQ(gauges[i]->GetValue(), expected[i][0]) << gauges[i]->Label();
        EXPECT_EQ(gauges[i]->GetMax(), expected[i][1]) << gauges[i]->Label();
    }
    EXPECT_STREQ(panel.Silver.Text(), "12");
    EXPECT_STREQ(panel.Gold.Text(), "3");
    // Each answer ends in the record's prompt, and the record itself never shows.
    const std::string text = GameText(*client);
    EXPECT_NE(text.find(">sit"), std::string::npos) << text;
    EXPECT_EQ(text.find('\x1b'), std::string::npos);
}

TEST_F(AnalysisWorldTest, RoundTimeOfAnAttackCountsDownOnTheGauge)
{
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    for (const char* step : {"west", "down", "attack"}) {
        Type(*client, step);
        ASSERT_TRUE(WaitForSent(QByteArray(step) + "\n\r")) << step;
    }
    const Gauge& rt = client->State().Panel.RT;
    ASSERT_TRUE(QTest::qWaitFor([&] { return rt.IsCounting(); }, WAIT_MS)) << GameText(*client);
    EXPECT_EQ(rt.GetMax(), 3000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !rt.IsCounting(); }, WAIT_MS));
    EXPECT_EQ(rt.GetValue(), 0);
}

TEST_F(AnalysisWorldTest, HighlightOfTheProfileColoursARoomWordAndPlaysItsSound)
{
    QFile list(folder.filePath("Default.Highlights"));
    ASSERT_TRUE(list.open(QIODevice::WriteOnly));
    list.write("012 \"{Chime}salmon\"\n");
    list.close();
    auto client = LoggedInClient();
    ASSERT_TRUE(client);

    const std::string on = ColorOnText(12);
    const std::string off = ColorOffText(12);
    EXPECT_TRUE(WaitForBytes(client->State().Windows.GameWindow, "leaping " + on + "salmon" + off))
        << GameText(*client);
    EXPECT_TRUE(SoundAsked(SoundFile("Chime.WAV")));
    EXPECT_TRUE(SoundAsked(SoundFile("Chime.wav")));
}

TEST_F(AnalysisWorldTest, StartMusicPlaysUnlessSoundsAreSquelched)
{
    desktop.choice = ConnectChoice::Offline;
    {
        auto client = MakeClient("");
        ASSERT_TRUE(client->Start());
        EXPECT_TRUE(SoundAsked(SoundFile("T_STARTMUSIC.WAV")));
        client->State().Profile.Settings.SquelchSounds = 1;
        client->Frame().close();
    }
    desktop.sounds.asked.clear();
    auto again = MakeClient("");
    ASSERT_TRUE(again->Start());
    EXPECT_TRUE(desktop.sounds.asked.empty());
}

} // namespace
} // namespace steward::test
