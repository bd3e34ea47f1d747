#include "terminal/qt/AnsiWindowWidget.h"
#include "terminal/qt/FontRecord.h"

#include <QElapsedTimer>
#include <QImage>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

// Dialogs that answer at once with what the test put in them.
class ScriptedDialogs : public AppearanceDialogs {
  public:
    bool PickColor(QWidget*, QColor& color, bool) override
    {
        color = nextColor;
        return true;
    }
    bool PickFont(QWidget*, QFont& font) override
    {
        font = nextFont;
        return true;
    }
    QColor nextColor;
    QFont nextFont;
};

// Counts the paints a widget receives.
class PaintCounter : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
    int paints = 0;
};

bool HasColor(const QImage& image, const QColor& color)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                return true;
    return false;
}

class WidgetTest : public ::testing::Test {
  protected:
    std::unique_ptr<AnsiWindowWidget> Make(const char* name = "Thought Window")
    {
        auto widget = AnsiWindowWidget::Create(name, {settings, nullptr, nullptr, &dialogs});
        widget->resize(400, 200);
        return widget;
    }
    static void AppendLines(AnsiWindow& window, int count)
    {
        for (int i = 0; i < count; ++i)
            window.AppendText(("line " + std::to_string(i) + "\n").c_str());
    }

    Settings settings;
    ScriptedDialogs dialogs;
};

TEST_F(WidgetTest, PaintsTheColouredTextOfItsBuffer)
{
    auto widget = Make();
    const QImage before = widget->grab().toImage();
    EXPECT_FALSE(HasColor(before, Qt::red));
    EXPECT_FALSE(HasColor(before, Qt::white));

    widget->Window().AppendText("\x8C"
                                "MMMM\xA0 WWWW");
    const QImage after = widget->grab().toImage();
    EXPECT_TRUE(HasColor(after, Qt::red));
    EXPECT_TRUE(HasColor(after, Qt::white));
    EXPECT_NE(before, after);
}

TEST_F(WidgetTest, TheClientAreaLeavesRoomForTheScrollBarAndFollowsResizes)
{
    auto widget = Make();
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
    const std::int32_t lineHeight = widget->Window().GetLineHeight();
    ASSERT_GT(lineHeight, 0);
    widget->resize(500, 300);
    const Rect client = widget->Window().GetClientRect();
    EXPECT_EQ(client.right, 500 - widget->ScrollBar()->width());
    EXPECT_EQ(client.bottom, 300);
    EXPECT_EQ(widget->Window().GetRows(), (300 - lineHeight / 2) / lineHeight);
    EXPECT_EQ(widget->ScrollBar()->geometry().right(), 499);
    EXPECT_EQ(widget->ScrollBar()->maximum(), LIVE_SCROLL_MAX);
    EXPECT_EQ(widget->ScrollBar()->value(), LIVE_SCROLL_MAX);
}

TEST_F(WidgetTest, WidthsAreWholePixelsOfTheFontInUse)
{
    auto widget = Make();
    const CharWidthTable& widths = widget->Window().GetCharWidth();
    // The system's fixed-pitch font gives every letter the same advance.
    EXPECT_GT(widths['m'], 0);
    EXPECT_EQ(widths['i'], widths['m']);
    EXPECT_EQ(widget->Window().GetLineHeight(), QFontMetrics(widget->CurrentFont()).height());
}

TEST_F(WidgetTest, TheScrollBarFreezesAndReturnsToTheLiveTail)
{
    auto widget = Make();
    AppendLines(widget->Window(), 150);
    QScrollBar* bar = widget->ScrollBar();

    bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    AnsiWindow& window = widget->Window();
    ASSERT_TRUE(window.IsFrozen());
    EXPECT_EQ(bar->maximum(), window.GetViewLines() - window.GetRows());
    EXPECT_EQ(bar->value(), window.GetTopLine());
    EXPECT_EQ(window.GetTopLine(), window.GetViewLines() - window.GetRows() - 1);

    bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(bar->value(), window.GetTopLine());

    bar->triggerAction(QAbstractSlider::SliderToMaximum);
    EXPECT_FALSE(window.IsFrozen());
    EXPECT_EQ(bar->maximum(), LIVE_SCROLL_MAX);
    EXPECT_EQ(bar->value(), LIVE_SCROLL_MAX);
}

TEST_F(WidgetTest, TheWheelScrollsAPageUpAndFreezes)
{
    auto widget = Make();
    AppendLines(widget->Window(), 150);
    QWheelEvent wheel(QPointF(10, 10), QPointF(10, 10), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget.get(), &wheel);
    AnsiWindow& window = widget->Window();
    ASSERT_TRUE(window.IsFrozen());
    EXPECT_EQ(window.GetTopLine(), window.GetViewLines() - 2 * window.GetRows());
}

TEST_F(WidgetTest, AFrozenViewPaintsTheOldTextWhileNewTextArrives)
{
    auto widget = Make();
    AppendLines(widget->Window(), 150);
    widget->Window().ApplyScrollCommand(SB_PAGEUP, 0);
    const QImage frozen = widget->grab().toImage();
    widget->Window().AppendText("\x8C"
                                "MMMMMMMM\n");
    EXPECT_EQ(widget->grab().toImage(), frozen);
    widget->Window().EndScrollback();
    EXPECT_TRUE(HasColor(widget->grab().toImage(), Qt::red));
}

// A burst of text costs one later paint; unbuffered updates paint each text at once.
TEST_F(WidgetTest, BufferedUpdatesDecideWhenTextIsPainted)
{
    for (const std::uint8_t buffered : {1, 0}) {
        settings.BufferedUpdates = buffered;
        auto widget = Make();
        widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
        QTest::qWait(50);
        PaintCounter counter;
        widget->installEventFilter(&counter);
        for (int i = 0; i < 200; ++i)
            widget->Window().AppendText("a burst of text\n");
        EXPECT_EQ(counter.paints, buffered ? 0 : 200);
        QTest::qWait(100);
        EXPECT_EQ(counter.paints, buffered ? 1 : 200);
    }
}

TEST_F(WidgetTest, AppearanceCommandsUseTheGivenDialogs)
{
    auto widget = Make();
    widget->Window().AppendText("MMMM");
    dialogs.nextColor = QColor(0, 200, 0);
    widget->MenuCommand(IDM_CHANGE_FOREGROUND);
    EXPECT_EQ(widget->Window().GetTextColor(), MakeRgb(0, 200, 0));
    EXPECT_TRUE(HasColor(widget->grab().toImage(), QColor(0, 200, 0)));

    dialogs.nextColor = QColor(0, 0, 90);
    widget->MenuCommand(IDM_CHANGE_BACKGROUND);
    EXPECT_EQ(widget->Window().GetBkColor(), MakeRgb(0, 0, 90));

    const std::int32_t before = widget->Window().GetLineHeight();
    dialogs.nextFont = widget->CurrentFont();
    dialogs.nextFont.setPixelSize(2 * before + 4);
    widget->MenuCommand(IDM_CHANGE_FONT);
    EXPECT_GT(widget->Window().GetLineHeight(), before);
    EXPECT_EQ(widget->Window().GetFont().lfHeight, -(2 * before + 4));
}

TEST_F(WidgetTest, InATextAreaTheSubWindowCarriesPlacementAndTitle)
{
    QMdiArea area;
    area.resize(800, 600);
    auto widget = Make();
    AnsiWindowWidget* raw = widget.get();
    QMdiSubWindow* sub = area.addSubWindow(widget.release());
    sub->setGeometry(10, 20, 300, 200);
    sub->setWindowTitle("Thought Window");

    WindowPlacementRecord placement;
    ASSERT_TRUE(raw->GetWindowPlacement(placement));
    EXPECT_EQ(placement.rcNormalPosition.left, 10);
    EXPECT_EQ(placement.rcNormalPosition.top, 20);
    EXPECT_EQ(placement.rcNormalPosition.right, 310);
    EXPECT_EQ(placement.rcNormalPosition.bottom, 220);
    EXPECT_EQ(placement.showCmd, SW_SHOWNORMAL);

    raw->Window().SetLabel("Thoughts of Ana");
    EXPECT_TRUE(sub->windowTitle().isEmpty());

    placement.rcNormalPosition = {30, 40, 430, 340};
    raw->SetWindowPlacement(placement);
    EXPECT_EQ(sub->geometry(), QRect(30, 40, 400, 300));
}

TEST_F(WidgetTest, OnlyTheActiveSubWindowCountsAsActive)
{
    QMdiArea area;
    area.resize(800, 600);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    auto first = Make("Thought Window");
    auto second = Make("Arrival Window");
    AnsiWindowWidget* one = first.get();
    AnsiWindowWidget* two = second.get();
    QMdiSubWindow* subOne = area.addSubWindow(first.release());
    QMdiSubWindow* subTwo = area.addSubWindow(second.release());
    subOne->show();
    subTwo->show();

    area.setActiveSubWindow(subOne);
    EXPECT_TRUE(one->IsActiveChild());
    EXPECT_FALSE(two->IsActiveChild());
    area.setActiveSubWindow(subTwo);
    EXPECT_FALSE(one->IsActiveChild());
    EXPECT_TRUE(two->IsActiveChild());
}

TEST(FontRecord, ARecordSurvivesTheWayThroughAQtFont)
{
    LogFontRecord record;
    record.lfHeight = -15;
    record.lfWeight = 700;
    record.lfItalic = 1;
    std::strcpy(record.lfFaceName, "DejaVu Sans Mono");
    const LogFontRecord back = RecordFromFont(FontFromRecord(record));
    EXPECT_EQ(back.lfHeight, -15);
    EXPECT_EQ(back.lfWeight, 700);
    EXPECT_EQ(back.lfItalic, 1);
    EXPECT_STREQ(back.lfFaceName, "DejaVu Sans Mono");
}

} // namespace
} // namespace steward
