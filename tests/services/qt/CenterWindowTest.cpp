#include "base/qt/CenterWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <gtest/gtest.h>

namespace steward {
namespace {

// A window smaller or larger than the screen: how much less than the screen's it is wide and high.
TEST(CenterWindow, PlacesTheWindowInTheMiddleOfTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    for (const QPoint less : {QPoint(300, 201), QPoint(-100, -51)}) {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.resize(screen.width() - less.x(), screen.height() - less.y());
        window.show();
        CenterWindow(window);
        EXPECT_EQ(window.frameGeometry().topLeft() - screen.topLeft(),
                  QPoint(less.x() / 2, less.y() / 2))
            << less.x();
    }
}

} // namespace
} // namespace steward
