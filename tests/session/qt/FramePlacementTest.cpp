#include "session/qt/FramePlacement.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace steward {
namespace {

TEST(FramePlacement, StoresTheNormalGeometry)
{
    QWidget window;
    window.setGeometry(100, 120, 640, 480);
    window.show();
    FramePlacement placement(window);
    WindowPlacementRecord record;
    ASSERT_TRUE(placement.GetWindowPlacement(record));
    EXPECT_EQ(record.length, WINDOWPLACEMENT_SIZE);
    EXPECT_EQ(record.showCmd, SW_SHOWNORMAL);
    EXPECT_EQ(record.rcNormalPosition.left, 100);
    EXPECT_EQ(record.rcNormalPosition.top, 120);
    EXPECT_EQ(record.rcNormalPosition.right, 740);
    EXPECT_EQ(record.rcNormalPosition.bottom, 600);
}

TEST(FramePlacement, AppliesAStoredGeometryButNoDamagedOne)
{
    QWidget window;
    window.setGeometry(10, 10, 400, 300);
    FramePlacement placement(window);
    WindowPlacementRecord record;
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
