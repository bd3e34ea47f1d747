#include "ClientHarness.h"

#include "base/FrameCommand.h"
#include "config/StewardOptions.h"
#include "terminal/qt/AnsiWindowWidget.h"

#include <QLineEdit>
#include <QMenu>

namespace steward::test {
namespace {

class ScrollbackWorldTest : public ClientHarness {
  protected:
    void TurnOn(StewardOption option, std::int32_t value)
    {
        const std::string ini = MakeConfigFiles(folder.path().toStdString()).MainIni;
        StewardOptions options = StewardOptions::Load(ini);
        options.Set(option, value);
        ASSERT_TRUE(options.Save(ini));
    }
};

TEST_F(ScrollbackWorldTest, FindsAWordSentTwoThousandLinesAgo)
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

TEST_F(ScrollbackWorldTest, AKeptHistoryRecallsTheLastCommandOfTheRunBefore)
{
    TurnOn(KEEP_COMMAND_HISTORY, 1);
    {
        auto client = LoggedInClient();
        ASSERT_NE(client, nullptr);
        Type(*client, "look at the fountain");
        ASSERT_TRUE(WaitForSent("look at the fountain\n\r"));
        client->Frame().close();
    }
    auto client = MakeClient(Address());
    ASSERT_TRUE(client->Start());
    auto* line = qobject_cast<QLineEdit*>(client->Frame().CommandLine());
    ASSERT_NE(line, nullptr);
    QApplication::setActiveWindow(&client->Frame());
    line->setFocus();
    QTest::keyClick(line, Qt::Key_Up);
    EXPECT_EQ(line->text(), QStringLiteral("look at the fountain"));
    QTest::keyClick(line, Qt::Key_Up);
    EXPECT_EQ(line->text(), QStringLiteral("Tester"));
}

} // namespace
} // namespace steward::test
