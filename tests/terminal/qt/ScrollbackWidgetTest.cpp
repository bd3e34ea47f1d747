#include "terminal/qt/AnsiWindowWidget.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

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
