#include "ClientHarness.h"
#include "base/ByteText.h"
#include "base/FrameCommand.h"
#include "config/ConfigFiles.h"
#include "panels/qt/MultiControlWidget.h"

#include <QImage>
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
    bool SoundAsked(const char* name) const
    {
        const std::string path =
            SoundPath(MakeConfigFiles(folder.path().toStdString())) + "/" + name;
        const std::vector<std::string>& asked = desktop.sounds.asked;
        return std::find(asked.begin(), asked.end(), path) != asked.end();
    }

    // The panel's control at a point of the frame, with graphics at the top.
    static MultiControl* ControlAt(Client& client, int x, int y)
    {
        return qobject_cast<MultiControl*>(client.Frame().Surface().childAt(x, y));
    }
    static std::string BoxText(MultiControl* box)
    {
        auto* handler = box ? dynamic_cast<TextBoxHandler*>(&box->Handler()) : nullptr;
        return handler ? handler->Text().Text() : "";
    }
    // Pixels of the gauge's text colour: the stacked seconds of a countdown.
    static int TextPixels(MultiControl* gauge)
    {
        QImage image(gauge->size(), QImage::Format_RGB32);
        gauge->render(&image);
        int count = 0;
        for (int y = 1; y < image.height() - 1; ++y)
            for (int x = 1; x < image.width() - 1; ++x)
                count += image.pixel(x, y) == qRgb(255, 255, 255);
        return count;
    }
};

// Highlights, speech, thoughts and arrivals reach their windows; status records feed the gauges,
// and the round time of a fight counts down.
TEST_F(AnalysisWorldTest, WhatTheWorldSendsReachesTheWindowsAndTheGauges)
{
    WriteFile("Default.Highlights", "012 \"{Chime}salmon\"\n");
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    AnsiWindow* game = client->State().Windows.GameWindow;
    EXPECT_TRUE(
        WaitForBytes(game, std::string("leaping ") + ColorOnText(12) + "salmon" + ColorOffText(12)))
        << GameText(*client);
    EXPECT_TRUE(SoundAsked("Chime.WAV"));
    EXPECT_TRUE(SoundAsked("Chime.wav"));

    client->OnCommand(CMD_OPEN_THOUGHT_WINDOW);
    client->OnCommand(CMD_OPEN_ARRIVAL_WINDOW);
    AnsiWindow* thoughts = client->State().Windows.ThoughtWindow;
    AnsiWindow* arrivals = client->State().Windows.ArrivalWindow;
    ASSERT_TRUE(thoughts && arrivals);
    {
        OtherPlayer mara(world->port, "Mara");
        ASSERT_TRUE(mara.connected);
        ASSERT_TRUE(WaitForBytes(arrivals, "Mara arrived at "));
        mara.Say("say Well met, stranger.");
        mara.Say("think Who left the gate open?");
        mara.Say("contact Tester Meet me by the fountain.");
        const unsigned char says = client->State().Profile.Settings.SaysColor;
        ASSERT_TRUE(WaitForBytes(game, std::string("Mara says,") + ColorOffText(says) +
                                           " \"Well met, stranger.\""))
            << WindowBytes(game);
        const std::string bytes = WindowBytes(game);
        const std::size_t speaker = bytes.rfind("Mara says,");
        const std::size_t lineStart = bytes.rfind('\n', speaker);
        EXPECT_LT(bytes.find(ColorOnText(says), lineStart), speaker) << bytes.substr(lineStart);
        EXPECT_TRUE(WaitForBytes(thoughts, "[Mara]: \"Who left the gate open?\""))
            << WindowBytes(thoughts);
        EXPECT_TRUE(WaitForBytes(thoughts, "[Mara (Private)]: \"Meet me by the fountain.\""))
            << WindowBytes(thoughts);
        mara.Say("quit");
        ASSERT_TRUE(WaitForBytes(arrivals, "Mara left at ")) << WindowBytes(arrivals);
    }
    const std::regex clock("Mara arrived at (1[0-2]|[1-9]):[0-5][0-9] [ap]m\\.\n"
                           "Mara left at (1[0-2]|[1-9]):[0-5][0-9] [ap]m\\.");
    EXPECT_TRUE(std::regex_search(WindowBytes(arrivals), clock)) << WindowBytes(arrivals);
    EXPECT_EQ(GameText(*client).find("Who left the gate open?"), std::string::npos);
    EXPECT_EQ(GameText(*client).find("just arrived in the world"), std::string::npos);

    StatusPanel& panel = client->State().Panel;
    // The "Hp:" gauge stands at (64, 4), 60 wide; its value box 4 pixels to the right.
    MultiControl* hpValue = ControlAt(*client, 130, 8);
    MultiControl* rtGauge = ControlAt(*client, 655, 30);
    ASSERT_TRUE(hpValue && rtGauge);
    ASSERT_TRUE(QTest::qWaitFor([&] { return BoxText(hpValue) == "100/100"; }, WAIT_MS))
        << BoxText(hpValue);
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
    EXPECT_NE(GameText(*client).find(">sit"), std::string::npos) << GameText(*client);
    EXPECT_EQ(GameText(*client).find('\x1b'), std::string::npos);

    for (const char* step : {"stand", "west", "down", "attack"}) {
        Type(*client, step);
        ASSERT_TRUE(WaitForSent(QByteArray(step) + "\n\r")) << step;
    }
    Gauge& rt = panel.RT;
    rt.SetColors({0xFFFFFF, 0x5A5AFA, 0x5F5F5F});
    ASSERT_TRUE(QTest::qWaitFor([&] { return rt.IsCounting(); }, WAIT_MS)) << GameText(*client);
    EXPECT_EQ(rt.GetMax(), 3000);
    EXPECT_GT(TextPixels(rtGauge), 0);
    // The rat bites back, so the box shows fewer hit points.
    EXPECT_TRUE(QTest::qWaitFor([&] { return BoxText(hpValue) != "100/100"; }, WAIT_MS));
    EXPECT_EQ(BoxText(hpValue).substr(BoxText(hpValue).find('/')), "/100");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !rt.IsCounting(); }, WAIT_MS));
    EXPECT_EQ(rt.GetValue(), 0);
    EXPECT_EQ(TextPixels(rtGauge), 0);
}

} // namespace
} // namespace steward::test
