#include "session/qt/FrameWindow.h"

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

namespace steward {
namespace {

class FrameWindowTest : public ::testing::Test {
  protected:
    FrameWindowTest()
    {
        FrameWindow::Handlers handlers;
        handlers.Command = [](int) {};
        handlers.ReadMenuInputs = [] { return MenuInputs{}; };
        handlers.Close = [] { return false; };
        frame = std::make_unique<FrameWindow>(std::move(handlers));
        frame->resize(800, 600);
        frame->show();
        frame->activateWindow();
        active = QTest::qWaitForWindowActive(frame.get());
    }

    bool active = false;
    std::unique_ptr<FrameWindow> frame;
};

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

const FocusCase FOCUS_CASES[] = {
    {"Escape on a menu opened with the mouse",
     [](FrameWindow& frame) {
         QMenu* menu = OpenMenuWithMouse(*frame.menuBar(), 0);
         ASSERT_NE(menu, nullptr);
         QTest::keyClick(menu, Qt::Key_Escape);
     }},
    {"Escape twice on a menu",
     [](FrameWindow& frame) {
         QMenu* menu = OpenMenuWithMouse(*frame.menuBar(), 1);
         ASSERT_NE(menu, nullptr);
         QTest::keyClick(menu, Qt::Key_Escape);
         if (QWidget* focus = QApplication::focusWidget())
             QTest::keyClick(focus, Qt::Key_Escape);
     }},
    {"OK of a dialog",
     [](FrameWindow& frame) { RunDialog(frame, [](QDialog& dialog) { dialog.accept(); }); }},
    {"Escape on a dialog",
     [](FrameWindow& frame) {
         RunDialog(frame, [](QDialog& dialog) {
             QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
             if (dialog.isVisible())
                 dialog.reject();
         });
     }},
};

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
TEST_F(FrameWindowTest, TheCommandLineHasTheFocusAgainAfterAMenuOrADialogCloses)
{
    if (QGuiApplication::platformName() == QStringLiteral("offscreen")) {
        RunOnOwnDisplay();
        return;
    }
    ASSERT_TRUE(active);
    QLineEdit line;
    frame->SetCommandLine(&line);
    for (const FocusCase& c : FOCUS_CASES) {
        SCOPED_TRACE(c.Name);
        line.clear();
        frame->FocusCommandLine();
        c.CloseSomething(*frame);
        QTest::qWait(50);
        EXPECT_EQ(QApplication::focusWidget(), &line);
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClicks(focus ? focus : frame.get(), "fw");
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_EQ(line.text(), QStringLiteral("fw"));
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }
    line.setParent(nullptr);
}

} // namespace
} // namespace steward
