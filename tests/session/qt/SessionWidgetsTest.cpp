#include "session/qt/ConnectDialog.h"
#include "session/qt/Desktop.h"
#include "session/qt/FramePlacement.h"
#include "session/qt/QtKeyboardHost.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace steward {
namespace {

TEST(ConnectDialog, ShowsTheStoredAddressAndEachButtonEndsWithItsChoice)
{
    const struct {
        const char* button;
        ConnectChoice choice;
    } cases[] = {{"Connect", ConnectChoice::Connect},
                 {"Run in OFFLINE Mode", ConnectChoice::Offline},
                 {"Cancel", ConnectChoice::Cancel}};
    for (const auto& c : cases) {
        ConnectDialog dialog("game.example", 4000);
        EXPECT_EQ(dialog.HostField()->text(), QStringLiteral("game.example"));
        EXPECT_EQ(dialog.PortField()->text(), QStringLiteral("4000"));
        EXPECT_EQ(dialog.HostField()->maxLength(), HOST_FIELD_LIMIT);
        EXPECT_EQ(dialog.PortField()->maxLength(), PORT_FIELD_LIMIT);
        dialog.PortField()->setText(QStringLiteral("23abc"));
        EXPECT_EQ(dialog.Port(), 23);
        QPushButton* button = nullptr;
        for (QPushButton* each : dialog.findChildren<QPushButton*>())
            button = each->text() == QLatin1String(c.button) ? each : button;
        ASSERT_NE(button, nullptr) << c.button;
        button->click();
        EXPECT_EQ(dialog.Choice(), c.choice) << c.button;
    }
}

TEST(QtDesktop, AskStringFieldTakesNoMoreThanTheAnswerHolds)
{
    QtDesktop desktop;
    char answer[33] = {};
    int typed = 0;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* field = dialog->findChild<QLineEdit*>();
        ASSERT_NE(field, nullptr);
        QTest::keyClicks(field, QString(40, 'a'));
        typed = static_cast<int>(field->text().size());
        dialog->accept();
    });
    ASSERT_TRUE(desktop.AskString(nullptr, "Answer", answer, sizeof answer));
    EXPECT_EQ(typed, 32);
    EXPECT_EQ(std::string(answer), std::string(32, 'a'));
}

TEST(FramePlacement, StoresTheNormalGeometryAndAppliesAStoredOneButNoDamagedOne)
{
    QWidget window;
    window.setGeometry(100, 120, 640, 480);
    window.show();
    FramePlacement placement(window);
    WindowPlacementRecord record;
    ASSERT_TRUE(placement.GetWindowPlacement(record));
    EXPECT_EQ(record.length, WINDOWPLACEMENT_SIZE);
    EXPECT_EQ(record.showCmd, SW_SHOWNORMAL);
    const auto& normal = record.rcNormalPosition;
    EXPECT_EQ(QRect(QPoint(normal.left, normal.top), QPoint(normal.right, normal.bottom)),
              QRect(100, 120, 641, 481));

    window.hide();
    record.rcNormalPosition = {50, 60, 850, 660};
    placement.SetWindowPlacement(record);
    EXPECT_EQ(window.geometry(), QRect(50, 60, 800, 600));
    EXPECT_TRUE(window.isVisible());
    record.rcNormalPosition = {0, 0, 10, 10};
    placement.SetWindowPlacement(record);
    EXPECT_EQ(window.geometry(), QRect(50, 60, 800, 600));
}

// A count below one waits one second and ends by itself, long before the guard would end it.
TEST(PumpFor, ACountBelowOneWaitsOneSecond)
{
    for (int count : {0, INT_MIN}) {
        bool guardEnded = false;
        QTimer guard;
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, [&] {
            guardEnded = true;
            QCoreApplication::exit(1);
        });
        guard.start(8000);
        QElapsedTimer elapsed;
        elapsed.start();
        PumpFor(count);
        EXPECT_FALSE(guardEnded) << count;
        EXPECT_GE(elapsed.elapsed(), 900) << count;
    }
}

} // namespace
} // namespace steward
