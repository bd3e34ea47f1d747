#include "session/qt/FrameWindow.h"
#include "base/FrameCommand.h"
#include "session/qt/FrameMenu.h"
#include "session/qt/MdiClient.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace steward {
namespace {

class FrameWindowTest : public ::testing::Test {
  protected:
    FrameWindowTest()
    {
        FrameWindow::Handlers handlers;
        handlers.Command = [this](int command) { commands.push_back(command); };
        handlers.ReadMenuInputs = [this] { return inputs; };
        handlers.Close = [this] { return allowClose; };
        frame = std::make_unique<FrameWindow>(std::move(handlers));
        frame->resize(800, 600);
        frame->show();
        frame->activateWindow();
        active = QTest::qWaitForWindowActive(frame.get());
    }

    std::vector<int> commands;
    MenuInputs inputs;
    bool allowClose = false;
    bool active = false;
    std::unique_ptr<FrameWindow> frame;
};

TEST_F(FrameWindowTest, TitleAndMenusInTheirOrder)
{
    EXPECT_EQ(frame->windowTitle(), QStringLiteral("Thornmere Steward"));
    QStringList titles;
    for (QAction* action : frame->menuBar()->actions())
        titles << action->text();
    EXPECT_EQ(titles, (QStringList{"File", "Edit", "Configuration", "Info", "Dragging", "Scripts",
                                   "Window", "Internet", "Help"}));
}

TEST_F(FrameWindowTest, MenuItemsTriggerTheirCommandNumbers)
{
    frame->Menu().Action(CMD_INFO_GENERAL)->trigger();
    frame->Menu().Action(CMD_AUTO_ARRANGE)->trigger();
    frame->Menu().Action(CMD_ROOM_SUPERBRIEF)->trigger();
    EXPECT_EQ(commands,
              (std::vector<int>{CMD_INFO_GENERAL, CMD_AUTO_ARRANGE, CMD_ROOM_SUPERBRIEF}));
}

TEST_F(FrameWindowTest, ItemsFollowTheLiveStateWhenRefreshed)
{
    inputs.Disconnected = false;
    inputs.DisplayMode = 2;
    frame->Menu().Refresh();
    EXPECT_FALSE(frame->Menu().Action(CMD_CONNECT)->isEnabled());
    EXPECT_TRUE(frame->Menu().Action(CMD_RESET_STEWARD_MODE)->isEnabled());
    EXPECT_TRUE(frame->Menu().Action(CMD_FULL_SCREEN)->isChecked());
    EXPECT_FALSE(frame->Menu().Action(CMD_GRAPHICS_AT_TOP)->isChecked());
    EXPECT_FALSE(frame->Menu().Action(CMD_ABOUT)->isEnabled());
}

TEST_F(FrameWindowTest, CloseAsksTheProgram)
{
    frame->close();
    EXPECT_TRUE(frame->isVisible());
    allowClose = true;
    frame->close();
    EXPECT_FALSE(frame->isVisible());
}

TEST_F(FrameWindowTest, LayoutFollowsTheDisplayMode)
{
    QLineEdit line;
    frame->SetCommandLine(&line);
    const QSize surface = frame->Surface().size();
    const int h = line.sizeHint().height();
    for (std::uint8_t mode = 0; mode < 3; ++mode) {
        frame->SetDisplayMode(mode);
        const FrameLayout expected = LayoutFrame(surface.width(), surface.height(), h, mode);
        const QRect mdi = frame->Mdi().geometry();
        EXPECT_EQ(mdi, QRect(expected.MdiClient.X, expected.MdiClient.Y, expected.MdiClient.Width,
                             expected.MdiClient.Height))
            << int(mode);
        EXPECT_EQ(line.geometry().y(), surface.height() - h - 4);
    }
    line.setParent(nullptr);
}

} // namespace
} // namespace steward
