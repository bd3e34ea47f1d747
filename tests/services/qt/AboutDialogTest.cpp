#include "services/qt/AboutDialog.h"
#include "services/qt/CenterWindow.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <gtest/gtest.h>

namespace steward {
namespace {

struct CenterCase {
    const char* name;
    int widthLess;
    int heightLess;
};

class CenterWindowSizes : public ::testing::TestWithParam<CenterCase> {};

// Sizes given as less than the screen's; a negative amount makes the window larger than it.
TEST_P(CenterWindowSizes, PlacesTheWindowInTheMiddleOfTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QWidget window;
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.resize(screen.width() - GetParam().widthLess, screen.height() - GetParam().heightLess);
    window.show();
    CenterWindow(window);
    EXPECT_EQ(window.frameGeometry().x() - screen.x(), GetParam().widthLess / 2);
    EXPECT_EQ(window.frameGeometry().y() - screen.y(), GetParam().heightLess / 2);
}

INSTANTIATE_TEST_SUITE_P(Sizes, CenterWindowSizes,
                         ::testing::Values(CenterCase{"Smaller", 300, 201},
                                           CenterCase{"LargerThanScreen", -100, -51}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(AboutDialog, NamesTheProgramItsVersionAndEndsWithItsButton)
{
    AboutDialog dialog(nullptr);
    QStringList texts;
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        texts << label->text();
    EXPECT_TRUE(texts.contains(QStringLiteral("Thornmere Steward")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Version 1.04")));
    const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 1);
    dialog.open();
    buttons.front()->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

} // namespace
} // namespace steward
