#include "session/qt/FrameWindow.h"
#include "base/FrameCommand.h"
#include "session/qt/FrameMenu.h"
#include "session/qt/MdiClient.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <functional>
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
        const Rect& place = expected.MdiClient;
        EXPECT_EQ(mdi, QRect(place.left, place.top, place.Width(), place.Height())) << int(mode);
        EXPECT_EQ(line.geometry().y(), surface.height() - h - 4);
    }
    line.setParent(nullptr);
}

// A modal dialog with a field of its own, OK and Cancel, closed by the given hand.
void RunDialog(FrameWindow& frame, const std::function<void(QDialog&)>& close)
{
    QDialog dialog(&frame);
    auto* field = new QLineEdit(&dialog);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(field);
    layout->addWidget(buttons);
    QTimer::singleShot(0, &dialog, [&] {
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        field->setFocus();
        close(dialog);
    });
    dialog.exec();
}

QMenu* OpenMenuWithMouse(QMenuBar& bar, int index)
{
    QAction* menu = bar.actions().at(index);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu).center());
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

struct FocusCase {
    const char* Name;
    std::function<void(FrameWindow&)> CloseSomething;
};

void PrintTo(const FocusCase& focusCase, std::ostream* out)
{
    *out << focusCase.Name;
}

class FocusReturnTest : public FrameWindowTest, public ::testing::WithParamInterface<FocusCase> {};

// The offscreen platform gives no window the activation back when a dialog closes, so the
// case runs again in a child of this program on an X server of its own.
void RunOnOwnDisplay()
{
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(
        QStringLiteral("xvfb-run"),
        {QStringLiteral("-a"), QCoreApplication::applicationFilePath(),
         QStringLiteral("--gtest_filter=%1.%2").arg(test->test_suite_name(), test->name())});
    ASSERT_TRUE(child.waitForFinished(60000));
    EXPECT_EQ(child.exitCode(), 0) << child.readAll().constData();
}

// Whatever closed, the next typed letters land in the command line and open no menu.
TEST_P(FocusReturnTest, TheCommandLineHasTheFocusAgain)
{
    if (QGuiApplication::platformName() == QStringLiteral("offscreen")) {
        RunOnOwnDisplay();
        return;
    }
    ASSERT_TRUE(active);
    QLineEdit line;
    frame->SetCommandLine(&line);
    frame->FocusCommandLine();
    GetParam().CloseSomething(*frame);
    QTest::qWait(50);
    EXPECT_EQ(QApplication::focusWidget(), &line);
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClicks(focus ? focus : frame.get(), "fw");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(line.text(), QStringLiteral("fw"));
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    line.setParent(nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    AfterEachKindOfWindow, FocusReturnTest,
    ::testing::Values(FocusCase{"EscapeOnAMenuOpenedWithTheMouse",
                                [](FrameWindow& frame) {
                                    QMenu* menu = OpenMenuWithMouse(*frame.menuBar(), 0);
                                    ASSERT_NE(menu, nullptr);
                                    QTest::keyClick(menu, Qt::Key_Escape);
                                }},
                      FocusCase{"EscapeTwiceOnAMenu",
                                [](FrameWindow& frame) {
                                    QMenu* menu = OpenMenuWithMouse(*frame.menuBar(), 1);
                                    ASSERT_NE(menu, nullptr);
                                    QTest::keyClick(menu, Qt::Key_Escape);
                                    if (QWidget* focus = QApplication::focusWidget())
                                        QTest::keyClick(focus, Qt::Key_Escape);
                                }},
                      FocusCase{"OkOfADialog",
                                [](FrameWindow& frame) {
                                    RunDialog(frame, [](QDialog& dialog) { dialog.accept(); });
                                }},
                      FocusCase{"EscapeOnADialog",
                                [](FrameWindow& frame) {
                                    RunDialog(frame, [](QDialog& dialog) {
                                        QTest::keyClick(QApplication::focusWidget(),
                                                        Qt::Key_Escape);
                                        if (dialog.isVisible())
                                            dialog.reject();
                                    });
                                }}),
    [](const ::testing::TestParamInfo<FocusCase>& info) { return std::string(info.param.Name); });

} // namespace
} // namespace steward
