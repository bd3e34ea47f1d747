#include "terminal/qt/AnsiWindowWidget.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

class ScrollbackWidgetTest : public ::testing::Test {
  protected:
    std::unique_ptr<AnsiWindowWidget> Make(bool liveTail)
    {
        steward.Set(SHOW_LIVE_TAIL, liveTail ? 1 : 0);
        auto widget = AnsiWindowWidget::Create(
            "Thought Window", {settings, nullptr, nullptr, nullptr, nullptr, &steward});
        widget->setParent(&frame);
        widget->setGeometry(0, 0, 400, 300);
        widget->SetCommandLine(&commandLine);
        frame.show();
        for (int i = 0; i < 200; ++i)
            widget->Window().AppendText(("line " + std::to_string(i) + "\n").c_str());
        return widget;
    }
    // The text rows as painted, from the top of the client area to the line.
    static QImage Band(AnsiWindowWidget& widget, int top, int bottom)
    {
        return widget.grab().toImage().copy(0, top, widget.GetClientRect().right, bottom - top);
    }

    Settings settings;
    StewardOptions steward;
    // The window and the command line it hands the focus to, as in the program's frame.
    QWidget frame;
    QLineEdit commandLine{&frame};
};

TEST_F(ScrollbackWidgetTest, AppendedTextPaintsBelowTheFrozenViewOnlyWithTheLiveTail)
{
    for (const bool liveTail : {true, false}) {
        SCOPED_TRACE(liveTail ? "live tail" : "standard");
        auto widget = Make(liveTail);
        AnsiWindow& window = widget->Window();
        window.ApplyScrollCommand(SB_PAGEUP, 0);
        ASSERT_TRUE(window.IsFrozen());
        const int split = liveTail ? window.SplitBarTop() : window.GetClientRect().bottom;
        const int bottom = window.GetClientRect().bottom;
        const QImage upper = Band(*widget, 0, split);
        const QImage whole = Band(*widget, 0, bottom);

        window.AppendText("the bell of the chapel rings\n");
        EXPECT_EQ(Band(*widget, 0, split), upper);
        EXPECT_EQ(Band(*widget, 0, bottom) == whole, !liveTail);
    }
}

TEST_F(ScrollbackWidgetTest, TheFindBarFindsSaysWhenNothingIsFoundAndHandsTheFocusBack)
{
    auto widget = Make(false);
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
