#include "analysis/LinePipeline.h"
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

// The panel's control of that name: the gauge itself rather than its label box.
QAccessibleInterface* Find(QWidget& frame, const char* name, bool gauge)
{
    for (MultiControl* control : frame.findChildren<MultiControl*>()) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
        if (accessible->text(QAccessible::Name) == QLatin1String(name) &&
            (accessible->valueInterface() != nullptr) == gauge)
            return accessible;
    }
    return nullptr;
}

TEST(ControlAccessibleTest, GaugesAndTheCompassTellWhatTheyShow)
{
    const ControlCase cases[] = {
        {"Hp:", [](StatusPanel& p) { SetGaugeValues(p.Hp, 0, 100, 45); }, "45 of 100", 45, 100},
        {"Hp:", [](StatusPanel& p) { SetGaugeValues(p.Hp, 0, 100, -5); }, "-5 of 100", -5, 100},
        {"RT:", [](StatusPanel& p) { p.RT.SetMax(3000), p.RT.StartCountdown(nullptr); }, "3", 3000,
         3000},
        {"Compass", [](StatusPanel& p) { p.Compass.SetExits(0x00080209); },
         "north, southeast (special), up", -1, -1},
        {"Compass", [](StatusPanel& p) { p.Compass.SetExits(0x00010000); }, "no exits", -1, -1},
    };
    QWidget frame;
    StatusPanel panel;
    StatusPanelView view(frame, panel, [](int) {});
    for (const ControlCase& c : cases) {
        SCOPED_TRACE(c.value);
        c.change(panel);
        QAccessibleInterface* control = Find(frame, c.name, c.current != -1);
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->text(QAccessible::Value), QLatin1String(c.value));
        if (QAccessibleValueInterface* value = control->valueInterface()) {
            EXPECT_EQ(value->currentValue().toInt(), c.current);
            EXPECT_EQ(value->maximumValue().toInt(), c.maximum);
        }
    }
}

} // namespace
} // namespace steward
