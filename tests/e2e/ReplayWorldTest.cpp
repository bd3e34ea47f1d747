#include "ClientHarness.h"
#include "base/FrameCommand.h"
#include "support/RunLoopUntil.h"
#include "terminal/qt/AnsiWindowWidget.h"

#include <QLineEdit>
#include <QMenu>
#include <QTcpSocket>

#include <fstream>
#include <random>
#include <utility>

namespace steward::test {
namespace {

// The window keeps line feeds and drops carriage returns.
constexpr char END_TEXT[] = "\n\n*** End of the replay:";
// A gigabyte, never loaded whole.
constexpr qint64 HUGE_FILE = qint64(1) << 30;
constexpr int HUGE_WAIT_MS = 120000;

class ReplayWorldTest : public ClientHarness {
  protected:
    std::unique_ptr<Client> ReplayClient(const QString& path)
    {
        ClientOptions options;
        options.Files = MakeConfigFiles(folder.path().toStdString());
        options.ReplayPath = path.toStdString();
        options.ReplaySpeed = 0;
        return std::make_unique<Client>(std::move(options), desktop);
    }

    static std::vector<std::int32_t> Gauges(Client& client)
    {
        std::vector<std::int32_t> values;
        StatusPanel& panel = client.State().Panel;
        for (const Gauge* gauge : {&panel.Hp, &panel.Ftg, &panel.Weight, &panel.Psi, &panel.Web})
            values.insert(values.end(), {gauge->GetValue(), gauge->GetMax()});
        return values;
    }
};

// Peak resident memory of this process, in kilobytes.
long PeakMemoryKb()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    long kb = 0;
    while (status >> word)
        if (word == "VmHWM:" && status >> kb)
            break;
    return kb;
}

TEST_F(ReplayWorldTest, AReplayedDumpLeavesTheGameWindowAndTheGaugesAsTheLiveRunDidAndSendsNothing)
{
    const QString dump = folder.filePath("session.dump");
    std::string live;
    std::vector<std::int32_t> liveGauges;
    {
        auto client = MakeClient(Address(), dump.toStdString());
        ASSERT_TRUE(client->Start());
        // A recording holds what the game sent, not what was typed: no echo to compare.
        client->State().Profile.Settings.LocalEcho = 0;
        AnsiWindow* game = client->State().Windows.GameWindow;
        const std::size_t start = WindowBytes(game).size();
        ASSERT_TRUE(WaitForGameText(*client, "By what name are you known?"));
        EXPECT_NE(GameText(*client).find("Packet Dump file is ACTIVE!"), std::string::npos);
        Type(*client, "Tester");
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return client->State().Panel.Hp.GetMax() > 0; }, WAIT_MS));

        // Someone else comes, talks, thinks, goes and comes back while Tester only watches.
        QTcpSocket visitor;
        visitor.connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(world->port));
        ASSERT_TRUE(visitor.waitForConnected(WAIT_MS));
        visitor.write("Visitor\nsay Good morning.\nthink Anyone awake?\nn\ns\nsay Farewell.\n");
        ASSERT_TRUE(WaitForGameText(*client, "Farewell."));
        // Whatever was received before the drop is in the dump, and nothing after it.
        world->Stop();
        ASSERT_TRUE(WaitForGameText(*client, "* Connection to the game has been dropped."));
        const std::string bytes = WindowBytes(game);
        live = bytes.substr(start, bytes.rfind(DROPPED_TEXT) - start);
        liveGauges = Gauges(*client);
        client->Frame().close();
    }
    ASSERT_NE(live.find("Visitor just came in."), std::string::npos) << live;

    world = std::make_unique<WorldProcess>(folder.filePath("sent.bin"));
    const QByteArray sentBefore = Sent();
    auto replay = ReplayClient(dump);
    ASSERT_TRUE(replay->Start());
    AnsiWindow* game = replay->State().Windows.GameWindow;
    const std::size_t start = WindowBytes(game).size();
    replay->OnCommand(CMD_CONNECT);
    ASSERT_TRUE(steward::testing::RunLoopUntil(
        [&] { return WindowBytes(game).find(END_TEXT) != std::string::npos; }, WAIT_MS));
    const std::string bytes = WindowBytes(game);
    EXPECT_EQ(bytes.substr(start, bytes.rfind(END_TEXT) - start), live);
    EXPECT_EQ(Gauges(*replay), liveGauges);
    EXPECT_TRUE(replay->IsDisconnected());
    EXPECT_EQ(Sent(), sentBefore);
}

TEST_F(ReplayWorldTest, BadReplayFilesAreToldInTheGameWindowInBoundedMemory)
{
    const std::string row = "61 62 63" + std::string(42, ' ') + "abc";
    std::mt19937 random(7);
    QByteArray garbage(4096, '\0');
    for (char& byte : garbage)
        byte = static_cast<char>(random());
    const struct {
        const char* name;
        QByteArray content;
        // Bytes of nothing behind the content: a sparse file.
        qint64 size;
        const char* told;
    } cases[] = {
        {"empty", "", 0, "is empty: there is nothing to play."},
        {"garbage", garbage, 0,
         "does not look like text from the game: it is played all the same."},
        {"cut in a row", QByteArray::fromStdString("\r\n\r\n---- (3 bytes)\r\n" + row.substr(0, 7)),
         0, "The packet dump ends inside a row"},
        {"a gigabyte on one line", "\r\n\r\n---- (3 bytes)\r\n", HUGE_FILE,
         "Broken rows in the packet dump: 1, the first on line 4;"},
        {"a gigabyte of NULs", "", HUGE_FILE,
         "End of the replay: 524288 blocks, 1073741824 bytes."},
    };
    const long memoryBefore = PeakMemoryKb();
    for (const auto& c : cases) {
        const QString path = folder.filePath(QString::fromLatin1(c.name));
        {
            QFile file(path);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << c.name;
            file.write(c.content);
            ASSERT_TRUE(c.size == 0 || file.resize(c.size)) << c.name;
        }
        auto client = ReplayClient(path);
        ASSERT_TRUE(client->Start()) << c.name;
        // Raw bytes come in blocks of this size: the largest makes the fewest turns.
        client->State().Profile.Settings.ReceiveChunkSize = RECEIVE_CHUNK_MAX;
        EXPECT_TRUE(steward::testing::RunLoopUntil(
            [&] { return GameText(*client).find(c.told) != std::string::npos; }, HUGE_WAIT_MS))
            << c.name << ": " << GameText(*client);
        client->Frame().close();
        QFile::remove(path);
    }
    // Far below a gigabyte, whatever the clients' windows (and a sanitizer's quarantine) took.
    EXPECT_LT(PeakMemoryKb() - memoryBefore, HUGE_FILE / 1024 / 2);

    auto missing = ReplayClient(folder.filePath("missing"));
    ASSERT_TRUE(missing->Start());
    EXPECT_TRUE(WaitForGameText(*missing, "/missing cannot be read."));
}

TEST_F(ReplayWorldTest, FindsAWordSentTwoThousandLinesAgo)
{
    TurnOn(GAME_SCROLLBACK_KB, 1024);
    QFile tale(folder.filePath("tale.txt"));
    ASSERT_TRUE(tale.open(QIODevice::WriteOnly));
    tale.write("The zanzibar spice merchant waves from his stall.\r\n");
    for (int i = 0; i < 2000; ++i)
        tale.write(QByteArray("The town crier tells line ") + QByteArray::number(i) +
                   " of his long tale.\r\n");
    tale.write("END OF TALE\r\n");
    tale.close();
    WorldProcess teller(folder.filePath("told.bin"), {"--replay", tale.fileName()});
    ASSERT_GT(teller.port, 0);

    auto client = MakeClient("/H127.0.0.1/P" + std::to_string(teller.port));
    ASSERT_TRUE(client->Start());
    AnsiWindow* game = client->State().Windows.GameWindow;
    ASSERT_TRUE(WaitForBytes(game, "END OF TALE"));

    client->OnCommand(CMD_FIND);
    AnsiWindowWidget* view = nullptr;
    for (AnsiWindowWidget* each : client->Frame().findChildren<AnsiWindowWidget*>())
        view = &each->Window() == game ? each : view;
    ASSERT_NE(view, nullptr);
    ASSERT_NE(view->Finder(), nullptr);
    // A menu closing hands the focus back to the command line, but not away from the find bar.
    QMenu menu;
    menu.popup(QPoint(10, 10));
    menu.hide();
    QTest::qWait(50);
    ASSERT_EQ(QApplication::focusWidget(), view->Finder()->Field());
    QTest::keyClicks(QApplication::focusWidget(), "ZANZIBAR");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);

    ASSERT_TRUE(game->IsFrozen());
    EXPECT_EQ(game->GetViewBuffer().SelectionText(), "zanzibar");
    EXPECT_GT(game->GetViewLines() - game->GetTopLine(), 2000);
    QTest::keyClick(view->Finder()->Field(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), client->Frame().CommandLine());
}

} // namespace
} // namespace steward::test
