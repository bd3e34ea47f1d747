#include "panels/StatusPanel.h"
#include "panels/qt/MultiControlWidget.h"
#include "panels/qt/StatusPanelView.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

#include <map>
#include <set>
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

class PaintCounter : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted.insert(watched);
        return false;
    }
    std::set<QObject*> painted;
};

std::map<QWidget*, QImage> RenderOthers(QWidget& frame, QWidget* except)
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

TEST(GaugeMenuTest, PickedColoursRepaintTheGaugeAndLeaveTheBoxesAlone)
{
    StatusPanel panel;
    QWidget frame;
    frame.resize(800, 120);
    StatusPanelView view(frame, panel, [](int) {});
    view.Place(10, {});
    panel.Hp.SetMax(100);
    panel.Hp.SetValue(40);
    frame.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    QApplication::processEvents();
    QApplication::processEvents();

    auto* hp = qobject_cast<MultiControl*>(frame.childAt(70, 18));
    ASSERT_NE(hp, nullptr);
    ColorRecorder recorder;
    hp->SetDialogs(&recorder);
    const std::map<QWidget*, QImage> before = RenderOthers(frame, hp);
    PaintCounter counter;
    for (QWidget* child : frame.findChildren<QWidget*>())
        child->installEventFilter(&counter);

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
    EXPECT_EQ(counter.painted, (std::set<QObject*>{hp}));
    EXPECT_EQ(RenderOthers(frame, hp), before);
}

} // namespace
} // namespace steward
