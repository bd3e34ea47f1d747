#include "terminal/qt/AnsiWindowWidget.h"
#include "terminal/qt/FontRecord.h"

#include <QImage>
#include <QLineEdit>
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

class PaintCounter : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
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

    Settings settings;
    ScriptedDialogs dialogs;
};

TEST_F(WidgetTest, PaintsScrollsAndChangesItsLookThroughTheGivenDialogs)
{
    auto widget = Make();
    AnsiWindow& window = widget->Window();
    const QImage before = widget->grab().toImage();
    EXPECT_FALSE(HasColor(before, Qt::red));
    EXPECT_FALSE(HasColor(before, Qt::white));
    window.AppendText("\x8C"
                      "MMMM\xA0 WWWW\n");
    const QImage after = widget->grab().toImage();
    EXPECT_TRUE(HasColor(after, Qt::red));
    EXPECT_TRUE(HasColor(after, Qt::white));

    // The system's fixed-pitch font gives every letter the same whole-pixel advance.
    EXPECT_GT(window.GetCharWidth()['m'], 0);
    EXPECT_EQ(window.GetCharWidth()['i'], window.GetCharWidth()['m']);
    const std::int32_t lineHeight = window.GetLineHeight();
    EXPECT_EQ(lineHeight, QFontMetrics(widget->CurrentFont()).height());

    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
    widget->resize(500, 300);
    QScrollBar* bar = widget->ScrollBar();
    EXPECT_EQ(window.GetClientRect().right, 500 - bar->width());
    EXPECT_EQ(window.GetClientRect().bottom, 300);
    EXPECT_EQ(window.GetRows(), (300 - lineHeight / 2) / lineHeight);
    EXPECT_EQ(bar->geometry().right(), 499);
    EXPECT_EQ(bar->maximum(), LIVE_SCROLL_MAX);
    EXPECT_EQ(bar->value(), LIVE_SCROLL_MAX);

    // The scroll bar and the wheel freeze, and the bar's end returns to the live tail.
    for (int i = 0; i < 150; ++i)
        window.AppendText(("line " + std::to_string(i) + "\n").c_str());
    bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    ASSERT_TRUE(window.IsFrozen());
    EXPECT_EQ(bar->maximum(), window.GetViewLines() - window.GetRows());
    EXPECT_EQ(bar->value(), window.GetTopLine());
    bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(bar->value(), window.GetTopLine());
    bar->triggerAction(QAbstractSlider::SliderToMaximum);
    EXPECT_FALSE(window.IsFrozen());
    QWheelEvent wheel(QPointF(10, 10), QPointF(10, 10), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget.get(), &wheel);
    ASSERT_TRUE(window.IsFrozen());
    EXPECT_EQ(window.GetTopLine(), window.GetViewLines() - 2 * window.GetRows());
    bar->triggerAction(QAbstractSlider::SliderToMaximum);

    dialogs.nextColor = QColor(0, 200, 0);
    widget->MenuCommand(IDM_CHANGE_FOREGROUND);
    EXPECT_TRUE(HasColor(widget->grab().toImage(), QColor(0, 200, 0)));
    dialogs.nextColor = QColor(0, 0, 90);
    widget->MenuCommand(IDM_CHANGE_BACKGROUND);
    EXPECT_EQ(window.GetBkColor(), MakeRgb(0, 0, 90));
    dialogs.nextFont = widget->CurrentFont();
    dialogs.nextFont.setPixelSize(2 * lineHeight + 4);
    widget->MenuCommand(IDM_CHANGE_FONT);
    EXPECT_GT(window.GetLineHeight(), lineHeight);
    EXPECT_EQ(window.GetFont().lfHeight, -(2 * lineHeight + 4));

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
        // The next burst after a paint gets its own.
        widget->Window().AppendText("more\n");
        QTest::qWait(100);
        EXPECT_EQ(counter.paints, buffered ? 2 : 201);
    }
}

TEST_F(WidgetTest, InATextAreaTheSubWindowCarriesPlacementTitleAndActivity)
{
    QMdiArea area;
    area.resize(800, 600);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    AnsiWindowWidget* one = Make().release();
    AnsiWindowWidget* two = Make("Arrival Window").release();
    QMdiSubWindow* subOne = area.addSubWindow(one);
    QMdiSubWindow* subTwo = area.addSubWindow(two);
    subOne->show();
    subTwo->show();
    subOne->setGeometry(10, 20, 300, 200);
    subOne->setWindowTitle("Thought Window");

    WindowPlacementRecord placement;
    ASSERT_TRUE(one->GetWindowPlacement(placement));
    EXPECT_EQ(placement.rcNormalPosition.left, 10);
    EXPECT_EQ(placement.rcNormalPosition.top, 20);
    EXPECT_EQ(placement.rcNormalPosition.right, 310);
    EXPECT_EQ(placement.rcNormalPosition.bottom, 220);
    EXPECT_EQ(placement.showCmd, SW_SHOWNORMAL);
    placement.rcNormalPosition = {30, 40, 430, 340};
    one->SetWindowPlacement(placement);
    EXPECT_EQ(subOne->geometry(), QRect(30, 40, 400, 300));
    one->Window().SetLabel("Thoughts of Ana");
    EXPECT_TRUE(subOne->windowTitle().isEmpty());

    area.setActiveSubWindow(subOne);
    EXPECT_TRUE(one->IsActiveChild());
    EXPECT_FALSE(two->IsActiveChild());
}

TEST(ScrollbackWidgetTest, TheFindBarFindsSaysWhenNothingIsFoundAndHandsTheFocusBack)
{
    // The window and the command line it hands the focus to, as in the program's frame.
    QWidget frame;
    QLineEdit commandLine{&frame};
    Settings settings;
    auto widget = AnsiWindowWidget::Create("Thought Window", {settings});
    widget->setParent(&frame);
    widget->setGeometry(0, 0, 400, 300);
    widget->SetCommandLine(&commandLine);
    frame.show();
    for (int i = 0; i < 200; ++i)
        widget->Window().AppendText(("line " + std::to_string(i) + "\n").c_str());
    QApplication::setActiveWindow(&frame);
    widget->OpenFindBar();
    FindBar* finder = widget->Finder();
    ASSERT_NE(finder, nullptr);
    EXPECT_TRUE(finder->Field()->hasFocus());
    EXPECT_LT(widget->GetClientRect().bottom, widget->height());

    QTest::keyClicks(finder->Field(), "LINE 17");
    QTest::keyClick(finder->Field(), Qt::Key_Return);
    EXPECT_TRUE(widget->Window().IsFrozen());
    EXPECT_EQ(widget->Window().GetViewBuffer().SelectionText(), "line 17");
    EXPECT_TRUE(finder->Result().isEmpty());

    finder->Field()->setText(QStringLiteral("griffin"));
    QTest::keyClick(finder->Field(), Qt::Key_Return);
    EXPECT_EQ(finder->Result(), QStringLiteral("Not found"));
    EXPECT_EQ(widget->Window().GetViewBuffer().SelectionText(), "line 17");

    QTest::keyClick(finder->Field(), Qt::Key_Escape);
    EXPECT_FALSE(finder->isVisible());
    EXPECT_TRUE(commandLine.hasFocus());
    EXPECT_EQ(widget->GetClientRect().bottom, widget->height());
}

} // namespace
} // namespace steward
