#include "session/qt/FramePlacement.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace steward {
namespace {

TEST(FramePlacement, StoresTheNormalGeometryAndAppliesAStoredOneButNoDamagedOne)
{
    QWidget window;
    window.setGeometry(100, 120, 640, 480);
    window.show();
    FramePlacement placement(window);
    WindowPlacementRecord record;
    ASSERT_TRUE(placement.GetWindowPlacement(record));
    EXPECT_EQ(record.length, WINDOWPLACEMENT_SIZE);
    EXPECT_EQ(record.showCmd, SW_SHOWNORMAL);
    const auto& normal = record.rcNormalPosition;
    EXPECT_EQ(QRect(QPoint(normal.left, normal.top), QPoint(normal.right, normal.bottom)),
              QRect(100, 120, 641, 481));

    window.hide();
    record.rcNormalPosition = {50, 60, 850, 660};
    placement.SetWindowPlacement(record);
    EXPECT_EQ(window.geometry(), QRect(50, 60, 800, 600));
    EXPECT_TRUE(window.isVisible());
    record.rcNormalPosition = {0, 0, 10, 10};
    placement.SetWindowPlacement(record);
    EXPECT_EQ(window.geometry(), QRect(50, 60, 800, 600));
}

} // namespace
} // namespace steward
