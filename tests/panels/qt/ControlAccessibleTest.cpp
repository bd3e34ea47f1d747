#include "panels/StatusPanel.h"
#include "panels/qt/MultiControlWidget.h"
#include "panels/qt/StatusPanelView.h"

#include <QAccessible>
#include <gtest/gtest.h>

#include <functional>

namespace steward {
namespace {

struct ControlCase {
    const char* name;
    std::function<void(StatusPanel&)> change;
    const char* value;
    // For a gauge, its value and maximum; -1 for a control without a value interface.
    int current;
    int maximum;
};

void Set(Gauge& gauge, int value, int maximum)
{
    gauge.SetMin(0);
    gauge.SetMax(maximum);
    gauge.SetValue(value);
}

// The panel's control of that name: the gauge itself rather than its label box.
QAccessibleInterface* Find(QWidget& frame, const QString& name, bool gauge)
{
    for (MultiControl* control : frame.findChildren<MultiControl*>()) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
        if (accessible && accessible->text(QAccessible::Name) == name &&
            (accessible->valueInterface() != nullptr) == gauge)
            return accessible;
    }
    return nullptr;
}

TEST(ControlAccessibleTest, GaugesAndTheCompassTellWhatTheyShow)
{
    const ControlCase cases[] = {
        {"Hp:", [](StatusPanel& p) { Set(p.Hp, 45, 100); }, "45 of 100", 45, 100},
        {"Hp:", [](StatusPanel& p) { Set(p.Hp, 120, 100); }, "120 of 100", 120, 100},
        {"Hp:", [](StatusPanel& p) { Set(p.Hp, -5, 100); }, "-5 of 100", -5, 100},
        {"Ftg:", [](StatusPanel& p) { Set(p.Ftg, 7, 30); }, "7 of 30", 7, 30},
        {"Ftg:", [](StatusPanel& p) { p.Ftg.Fill(); }, "30 of 30", 30, 30},
        {"RT:",
         [](StatusPanel& p) {
             p.RT.SetMax(3000);
             p.RT.StartCountdown(nullptr);
         },
         "3", 3000, 3000},
        {"Compass", [](StatusPanel& p) { p.Compass.SetExits(0x00080209); },
         "north, southeast (special), up", -1, -1},
        {"Compass", [](StatusPanel& p) { p.Compass.SetExits(0x00010000); }, "no exits", -1, -1},
        {"Compass", [](StatusPanel& p) { p.Compass.SetExits(0x7FF); },
         "north, northeast, east, southeast, south, southwest, west, northwest, out, up, down", -1,
         -1},
    };
    QWidget frame;
    StatusPanel panel;
    StatusPanelView view(frame, panel, [](int) {});
    for (const ControlCase& c : cases) {
        SCOPED_TRACE(c.value);
        c.change(panel);
        QAccessibleInterface* control = Find(frame, c.name, c.current != -1);
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->text(QAccessible::Value), QString::fromLatin1(c.value));
        if (QAccessibleValueInterface* value = control->valueInterface()) {
            EXPECT_EQ(control->role(), QAccessible::ProgressBar);
            EXPECT_EQ(value->currentValue().toInt(), c.current);
            EXPECT_EQ(value->maximumValue().toInt(), c.maximum);
        }
    }
}

} // namespace
} // namespace steward
