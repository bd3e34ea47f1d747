#include "base/qt/CenterWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <gtest/gtest.h>

namespace steward {
namespace {

struct CenterCase {
    const char* name;
    int widthLess; // than the screen's; negative for a window larger than the screen
    int heightLess;
};

class CenterWindowSizes : public ::testing::TestWithParam<CenterCase> {};

TEST_P(CenterWindowSizes, PlacesTheWindowInTheMiddleOfTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.resize(screen.width() - GetParam().widthLess, screen.height() - GetParam().heightLess);
    window.show();
    CenterWindow(window);
    EXPECT_EQ(window.frameGeometry().topLeft() - screen.topLeft(),
              QPoint(GetParam().widthLess / 2, GetParam().heightLess / 2));
}

INSTANTIATE_TEST_SUITE_P(Sizes, CenterWindowSizes,
                         ::testing::Values(CenterCase{"Smaller", 300, 201},
                                           CenterCase{"LargerThanScreen", -100, -51}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace steward
