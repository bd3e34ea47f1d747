#include "analysis/LinePipeline.h"
#include "panels/StatusPanel.h"
#include "panels/qt/MultiControlWidget.h"
#include "panels/qt/QtGaugeTimer.h"
#include "panels/qt/StatusPanelView.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <vector>

namespace steward {
namespace {

// Hands back a fixed colour instead of opening the dialog, and remembers how it was asked.
class ColorRecorder : public AppearanceDialogs {
  public:
    bool PickColor(QWidget* owner, QColor& color, bool foregroundRule) override
    {
        owners.push_back(owner);
        rules.push_back(foregroundRule);
        color = answer;
        return true;
    }
    bool PickFont(QWidget*, QFont&) override { return false; }

    QColor answer;
    std::vector<QWidget*> owners;
    std::vector<bool> rules;
};

// A shown panel whose controls count their paints.
class PanelViewTest : public ::testing::Test, public QObject {
  protected:
    void SetUp() override
    {
        frame.resize(800, 120);
        view.Place(10, {});
        frame.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
        QApplication::processEvents();
        QApplication::processEvents();
        for (QWidget* child : frame.findChildren<QWidget*>())
            child->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints[watched];
        return false;
    }
    std::map<QWidget*, QImage> RenderAllBut(QWidget* except)
    {
        std::map<QWidget*, QImage> images;
        for (QWidget* child : frame.findChildren<QWidget*>()) {
            if (child == except)
                continue;
            QImage image(child->size(), QImage::Format_RGB32);
            child->render(&image);
            images[child] = image;
        }
        return images;
    }

    StatusPanel panel;
    QWidget frame;
    StatusPanelView view{frame, panel, [](int) {}};
    std::map<QObject*, int> paints;
};

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

// Picked colours repaint the gauge and leave the boxes alone, a record paints only what
// changed, and the controls tell a screen reader what they show.
TEST_F(PanelViewTest, PaintsWhatChangedAndTellsAScreenReader)
{
    auto* hp = qobject_cast<MultiControl*>(frame.childAt(70, 18));
    ASSERT_NE(hp, nullptr);
    ColorRecorder recorder;
    hp->SetDialogs(&recorder);
    const std::map<QWidget*, QImage> before = RenderAllBut(hp);
    paints.clear();
    recorder.answer = QColor(0x12, 0x34, 0x56);
    EXPECT_TRUE(hp->MenuCommand(GAUGE_MENU_BAR_COLOR));
    recorder.answer = QColor(0x65, 0x43, 0x21);
    EXPECT_TRUE(hp->MenuCommand(GAUGE_MENU_BACK_COLOR));
    EXPECT_FALSE(hp->MenuCommand(GAUGE_MENU_BACK_COLOR + 1));
    QTest::qWait(2 * DISPLAY_FRAME_MS); // a control paints at most once a frame

    EXPECT_EQ(panel.Hp.Colors().BarColor, 0x563412u);
    EXPECT_EQ(panel.Hp.Colors().GaugeBackColor, 0x214365u);
    EXPECT_EQ(recorder.owners, (std::vector<QWidget*>{hp, hp}));
    EXPECT_EQ(recorder.rules, (std::vector<bool>{false, false}));
    ASSERT_EQ(paints.size(), 1u);
    EXPECT_EQ(paints.begin()->first, hp);
    EXPECT_EQ(RenderAllBut(hp), before);

    // The same record twice but for the hit points.
    for (int hp : {40, 40, 35}) {
        for (Gauge* gauge : {&panel.Hp, &panel.Ftg, &panel.Weight, &panel.Psi, &panel.Web}) {
            gauge->SetMin(0);
            gauge->SetMax(100);
            gauge->SetValue(gauge == &panel.Hp ? hp : 60);
        }
        panel.Silver.SetText("12");
        panel.Gold.SetText("3");
        panel.BodyFigure.SetState(FIGURE_STANDING);
        panel.WeaponIcon.SetState(1);
        // The gauge's paint gives the value box its text, which paints on the next turn; each
        // control paints at most once a frame.
        QTest::qWait(4 * DISPLAY_FRAME_MS);
        if (hp == 40)
            paints.clear();
    }
    EXPECT_EQ(paints,
              (std::map<QObject*, int>{{frame.childAt(70, 18), 1}, {frame.childAt(128, 18), 1}}));

    const ControlCase cases[] = {
        {"Hp:", [](StatusPanel& p) { SetGaugeValues(p.Hp, 0, 100, 45); }, "45 of 100", 45, 100},
        {"RT:", [](StatusPanel& p) { p.RT.SetMax(3000), p.RT.StartCountdown(nullptr); }, "3", 3000,
         3000},
        {"Compass", [](StatusPanel& p) { p.Compass.SetExits(0x00010000); }, "no exits", -1, -1},
    };
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

constexpr int WAIT_MS = 10000;

class RecordingListener : public CountdownListener {
  public:
    void CountdownDone(Gauge& gauge) override { done.push_back(&gauge); }
    std::vector<Gauge*> done;
};

TEST(QtGaugeTimer, CountdownsRunBySecondsEachOnItsOwnTimerUntilDoneOrStopped)
{
    QtGaugeTimer timer;
    RecordingListener listener;
    Gauge shortOne("RT:", StatusPanel::TimeGaugeFlags, false, {});
    Gauge longOne("Pause:", StatusPanel::TimeGaugeFlags, false, {});
    Gauge stopped("RT:", StatusPanel::TimeGaugeFlags, false, {});
    for (Gauge* gauge : {&shortOne, &longOne, &stopped})
        gauge->SetTimer(&timer);
    shortOne.SetMax(2000);
    longOne.SetMax(3000);
    stopped.SetMax(1000);
    shortOne.StartCountdown(&listener);
    longOne.StartCountdown(&listener);
    // A restart replaces the running timer instead of adding a second one.
    longOne.StartCountdown(&listener);
    stopped.StartCountdown(&listener);
    stopped.StopCountdown(&listener);

    ASSERT_TRUE(QTest::qWaitFor([&] { return !listener.done.empty(); }, WAIT_MS));
    EXPECT_EQ(listener.done, std::vector<Gauge*>{&shortOne});
    EXPECT_EQ(shortOne.GetValue(), 0);
    EXPECT_FALSE(shortOne.IsCounting());
    EXPECT_GE(longOne.GetValue(), 1000);
    EXPECT_TRUE(longOne.IsCounting());

    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.done.size() == 2; }, WAIT_MS));
    EXPECT_EQ(listener.done.back(), &longOne);
    QTest::qWait(1200);
    EXPECT_EQ(listener.done.size(), 2u) << "a finished or stopped countdown ticks no more";
    EXPECT_EQ(stopped.GetValue(), 0);
}

} // namespace
} // namespace steward
