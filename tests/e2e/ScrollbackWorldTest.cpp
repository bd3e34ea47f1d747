#include "ClientHarness.h"

#include "base/FrameCommand.h"
#include "terminal/qt/AnsiWindowWidget.h"

#include <QLineEdit>
#include <QMenu>

namespace steward::test {
namespace {

using ScrollbackWorldTest = ClientHarness;

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

} // namespace
} // namespace steward::test
