#include "base/FrameCommand.h"
#include "config/BufferedLog.h"
#include "config/ConfigFiles.h"
#include "config/IniStore.h"
#include "highlights/HighlightList.h"
#include "session/qt/ChildWindowSet.h"
#include "session/qt/Client.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameMenu.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "support/RecordingDesktop.h"
#include "support/TempFolder.h"
#include "terminal/AnsiWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace steward {
namespace {

using testing::ReadBytes;

class ClientCommandsTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        desktop.choice = ConnectChoice::Offline;
        // The version notes were shown before, so the editor sees only what a test asks for.
        ASSERT_TRUE(WriteInt(Ini(), "Version Info", "Version", 0x68));
        client = MakeClient();
        ASSERT_TRUE(client->Start());
    }

    std::unique_ptr<Client> MakeClient()
    {
        ClientOptions options;
        options.Files = MakeConfigFiles(folder.path().toStdString());
        auto made = std::make_unique<Client>(std::move(options), desktop);
        made->Frame().resize(800, 600);
        return made;
    }

    std::string Ini() const { return folder.filePath("Thornmere.Ini").toStdString(); }
    std::string File(const char* name) const { return folder.filePath(name).toStdString(); }

    std::string GameText() const
    {
        std::vector<char> text(60000);
        client->State().Windows.GameWindow->GetText(text.data(),
                                                    static_cast<std::uint16_t>(text.size()));
        return text.data();
    }

    bool GameSays(const char* text) const { return GameText().find(text) != std::string::npos; }

    QString TodaysLog(int n) const
    {
        const QDate today = QDate::currentDate();
        return folder.filePath(QStringLiteral("Thornmere Log %1-%2-%3 (%4).Txt")
                                   .arg(today.month())
                                   .arg(today.day(), 2, 10, QLatin1Char('0'))
                                   .arg(today.year())
                                   .arg(n));
    }

    QTemporaryDir folder;
    test::RecordingDesktop desktop;
    std::unique_ptr<Client> client;
};

TEST_F(ClientCommandsTest, NotesAreMadeOnceAndAnEditorThatDoesNotStartIsSaid)
{
    client->OnCommand(CMD_RUN_NOTEPAD);
    const std::string notes = File("Thornmere Notes.Txt");
    EXPECT_EQ(desktop.edited, std::vector<std::string>{notes});
    EXPECT_EQ(ReadBytes(notes),
              "--------------------\nThornmere Notes:\n--------------------\n\n\n");
    testing::WriteBytes(notes, "my notes\n");
    client->OnCommand(CMD_RUN_NOTEPAD);
    EXPECT_EQ(ReadBytes(notes), "my notes\n");

    desktop.editorStarts = false;
    client->OnCommand(CMD_VERSION_NOTES);
    EXPECT_EQ(desktop.edited.back(), File("Version Notes.Txt"));
    EXPECT_EQ(desktop.messages, std::vector<std::string>{"|Unable to run the text editor!"});
}

// Auto-log opens a log only when none is open, the loop writes out a full one on its turn, and
// dated logs count up within a day.
TEST_F(ClientCommandsTest, LogsOpenFlushAndCountUp)
{
    client->OnCommand(CMD_AUTO_LOG);
    EXPECT_TRUE(client->State().Profile.Settings.AutoLog);
    EXPECT_TRUE(client->State().SessionLog.IsOpen());
    EXPECT_TRUE(GameSays("Log file auto-opened successfully."));
    EXPECT_TRUE(QFile::exists(TodaysLog(1)));
    client->OnCommand(CMD_AUTO_LOG);
    EXPECT_FALSE(client->State().Profile.Settings.AutoLog);
    EXPECT_TRUE(client->State().SessionLog.IsOpen());
    client->OnCommand(CMD_AUTO_LOG);
    EXPECT_FALSE(QFile::exists(TodaysLog(2)));

    BufferedLog& log = client->State().SessionLog;
    const std::string line(999, 'x');
    while (log.Count() <= LOG_FLUSH_THRESHOLD)
        ASSERT_TRUE(log.Write(line.c_str()));
    QCoreApplication::processEvents();
    EXPECT_GT(log.Count(), LOG_FLUSH_THRESHOLD);
    QEventLoop loop;
    QTimer::singleShot(20, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_EQ(log.Count(), 0u);

    client->OnCommand(CMD_CLOSE_LOG);
    EXPECT_FALSE(client->State().SessionLog.IsOpen());
    client->OnCommand(CMD_OPEN_DATED_LOG);
    EXPECT_TRUE(client->State().SessionLog.IsOpen());
    client->OnCommand(CMD_CLOSE_LOG);
    EXPECT_TRUE(QFile::exists(TodaysLog(2)));
}

TEST_F(ClientCommandsTest, WindowMenuOpensArrangesAndCascadesWindows)
{
    ChildWindowSet& windows = client->Windows();
    EXPECT_FALSE(windows.Exists(ARRIVAL_ROW));
    client->OnCommand(CMD_OPEN_ARRIVAL_WINDOW);
    ASSERT_NE(client->State().Windows.ArrivalWindow, nullptr);
    const Rect area = windows.ClientArea();
    EXPECT_EQ(windows.Child(ARRIVAL_ROW)->geometry(),
              QRect(area.Width() / 2, 0, area.Width() / 2, area.Height() / 4));

    client->OnCommand(CMD_CASCADE);
    MdiClient& mdi = client->Frame().Mdi();
    std::set<int> corners;
    for (QMdiSubWindow* sub : mdi.subWindowList()) {
        EXPECT_GE(sub->width(), mdi.ClientArea().Width() / 2);
        EXPECT_GE(sub->height(), mdi.ClientArea().Height() / 2);
        corners.insert(sub->y());
    }
    EXPECT_EQ(corners.size(), 3u);

    windows.Child(THOUGHT_ROW)->close();
    EXPECT_EQ(client->State().Windows.ThoughtWindow, nullptr);
    EXPECT_EQ(windows.Child(ARRIVAL_ROW)->geometry(), QRect(0, 0, area.Width(), area.Height() / 4));
}

TEST_F(ClientCommandsTest, TextWindowsCloseAndReopenAgainAndAgainInEveryLayout)
{
    const struct {
        WindowRow row;
        int reopen;
    } windows[] = {{GAME_ROW, CMD_OPEN_GAME_WINDOW}, {THOUGHT_ROW, CMD_OPEN_THOUGHT_WINDOW}};
    ChildWindowSet& set = client->Windows();
    client->Frame().show();
    for (int mode : {CMD_GRAPHICS_AT_BOTTOM, CMD_GRAPHICS_AT_TOP, CMD_FULL_SCREEN}) {
        client->OnCommand(mode);
        // The text area starts below the panel only with the graphics at the top.
        EXPECT_EQ(client->Frame().Mdi().geometry().top(), mode == CMD_GRAPHICS_AT_TOP ? 62 : 4);
        for (bool autoArrange : {true, false}) {
            if ((client->State().Profile.Settings.AutoArrange != 0) != autoArrange)
                client->OnCommand(CMD_AUTO_ARRANGE);
            for (const auto& window : windows) {
                for (int i = 0; i < 20; ++i) {
                    ASSERT_NE(set.Child(window.row), nullptr);
                    // What the close button of the title bar or of the menu bar does.
                    set.Child(window.row)->close();
                    ASSERT_EQ(set.Child(window.row), nullptr)
                        << mode << " " << autoArrange << " " << i;
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                    client->OnCommand(window.reopen);
                }
            }
        }
    }
}

// The windows are saved into the profile named at save time, never the one they opened with,
// and come back after a restart.
TEST_F(ClientCommandsTest, WindowsGoToTheNamedProfileAndComeBackAfterARestart)
{
    client->OnCommand(CMD_OPEN_ARRIVAL_WINDOW);
    client->Windows().Activate(ARRIVAL_ROW);
    ASSERT_TRUE(client->Windows().Save(File("Default.Dat")));
    const std::string before = ReadBytes(File("Default.Dat"));
    ASSERT_TRUE(client->Windows().Save(File("Rook.Dat")));
    const std::string saved = ReadBytes(File("Rook.Dat"));
    for (const char* key : {"StateInfo=", "Position=", "Open Windows="})
        EXPECT_NE(saved.find(key), std::string::npos) << key << saved;
    EXPECT_EQ(ReadBytes(File("Default.Dat")), before);

    client->Frame().close();
    client.reset();
    char letters[32];
    ReadString(File("Default.Dat"), "Windows", "Open Windows", letters, sizeof letters, "");
    EXPECT_STREQ(letters, "gtA");
    client = MakeClient();
    ASSERT_TRUE(client->Start());
    EXPECT_NE(client->State().Windows.ArrivalWindow, nullptr);
    EXPECT_NE(client->State().Windows.ThoughtWindow, nullptr);
}

// The offline menu, the Internet items, silent rest and the drag dialog.
TEST_F(ClientCommandsTest, MenuCommandsOffline)
{
    FrameMenu& menu = client->Frame().Menu();
    menu.Refresh();
    EXPECT_FALSE(menu.Action(CMD_RESET_STEWARD_MODE)->isEnabled());
    EXPECT_FALSE(menu.Action(CMD_OPEN_GAME_WINDOW)->isEnabled());
    EXPECT_TRUE(menu.Action(CMD_OPEN_ARRIVAL_WINDOW)->isEnabled());
    EXPECT_TRUE(menu.Action(CMD_AUTO_ARRANGE)->isChecked());
    menu.Action(CMD_HOME_PAGE)->trigger();
    menu.Action(CMD_MESSAGE_BOARD)->trigger();
    ASSERT_EQ(desktop.browser.opened.size(), 2u);
    EXPECT_NE(desktop.browser.opened[0], desktop.browser.opened[1]);
    for (const std::string& address : desktop.browser.opened)
        EXPECT_EQ(address.rfind("https://", 0), 0u) << address;

    client->OnCommand(CMD_REST_MODE_SILENT);
    EXPECT_TRUE(client->State().Rest.RestMode);
    EXPECT_TRUE(client->State().Rest.RestSilent);
    EXPECT_TRUE(GameSays("Entering rest mode...press any key to resume."));

    desktop.dragTarget = std::string(100, 'b');
    client->OnCommand(CMD_DRAG_SOMEONE);
    EXPECT_EQ(desktop.shownTarget, "");
    client->OnCommand(CMD_DRAG_SOMEONE);
    EXPECT_EQ(desktop.shownTarget, std::string(63, 'b'));
    desktop.dragOk = false;
    client->OnCommand(CMD_DRAG_SOMEONE);
    client->OnCommand(CMD_DRAG_SOMEONE);
    EXPECT_EQ(desktop.shownTarget, "");
    desktop.dragOk = true;
    desktop.dragTarget = "bob";
    client->OnCommand(CMD_DRAG_SOMEONE);
    client->OnCommand(CMD_STOP_DRAGGING);
    client->OnCommand(CMD_DRAG_SOMEONE);
    EXPECT_EQ(desktop.shownTarget, "");
}

// Cut, paste and clear on the command line; copies from the active window's selection to the
// clipboard, the command line and the highlight lists, which also take the clipboard's lines.
TEST_F(ClientCommandsTest, EditAndCopyCommands)
{
    FrameWindow& frame = client->Frame();
    auto* line = qobject_cast<QLineEdit*>(frame.CommandLine());
    ASSERT_NE(line, nullptr);
    line->setText(QStringLiteral("look north"));
    line->setSelection(0, 4);
    client->OnCommand(CMD_CUT);
    EXPECT_EQ(line->text(), QStringLiteral(" north"));
    line->setCursorPosition(line->text().size());
    client->OnCommand(CMD_PASTE);
    EXPECT_EQ(line->text(), QStringLiteral(" northlook"));
    line->setSelection(0, 6);
    client->OnCommand(CMD_CLEAR);
    EXPECT_EQ(line->text(), QStringLiteral("look"));
    line->clear();

    frame.show();
    QApplication::setActiveWindow(&frame);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
    frame.Mdi().setActiveSubWindow(client->Windows().Child(GAME_ROW));
    AnsiWindow& game = *client->State().Windows.GameWindow;
    game.AppendText("a silver coin\n");
    TextBuffer& buffer = game.GetLiveBuffer();
    const auto selectLine = [&] {
        buffer.SelectLine(buffer.Prev(buffer.Prev(buffer.GetWritePos())));
    };
    selectLine();
    QGuiApplication::clipboard()->clear();
    line->setFocus();
    QTest::keyClick(line, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("a silver coin"));
    EXPECT_TRUE(game.HasSelection());
    QGuiApplication::clipboard()->clear();
    client->OnCommand(CMD_COPY);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("a silver coin"));
    client->OnCommand(CMD_COPY_TO_COMMAND_LINE);
    EXPECT_EQ(line->text(), QStringLiteral("a silver coin"));
    EXPECT_FALSE(game.HasSelection());
    selectLine();
    QGuiApplication::clipboard()->clear();
    client->OnCommand(CMD_COPY_TO_STRING_HIGHLIGHTS);
    EXPECT_FALSE(game.HasSelection());

    FrameMenu& menu = frame.Menu();
    menu.Refresh();
    EXPECT_TRUE(menu.Action(CMD_COPY_TO_STRING_HIGHLIGHTS)->isEnabled());
    EXPECT_TRUE(menu.Action(CMD_COPY_TO_NAME_HIGHLIGHTS)->isEnabled());
    QGuiApplication::clipboard()->setText(QStringLiteral("Mara\r\n\r\nOrla\n"));
    client->OnCommand(CMD_COPY_TO_NAME_HIGHLIGHTS);
    QGuiApplication::clipboard()->setText(QStringLiteral("silver coin"));
    client->OnCommand(CMD_COPY_TO_STRING_HIGHLIGHTS);
    frame.close();

    HighlightList names;
    names.Load(File("Default.Names").c_str());
    EXPECT_STREQ(names.Text(0), "Mara");
    EXPECT_STREQ(names.Text(1), "Orla");
    EXPECT_STREQ(names.Text(2), "");
    EXPECT_EQ(names.Color(1), HIGHLIGHT_DEFAULT_COLOR);
    HighlightList strings;
    strings.Load(File("Default.Highlights").c_str());
    EXPECT_STREQ(strings.Text(0), "a silver coin");
    EXPECT_STREQ(strings.Text(1), "silver coin");
    EXPECT_STREQ(strings.Text(2), "");
}

} // namespace
} // namespace steward
