#include "session/FrameLayout.h"

#include <gtest/gtest.h>

namespace steward {
namespace {

struct LayoutCase {
    std::uint8_t mode;
    Rect mdi;
    int panelTop;
};

TEST(LayoutFrame, PlacesTheMdiClientForEachDisplayMode)
{
    // A client area of 800 by 600 with a command line 20 high.
    const LayoutCase cases[] = {
        {0, RectAt(7, 62, 786, 509), 0},
        {1, RectAt(7, 4, 786, 509), 0},
        {2, RectAt(7, 4, 786, 567), HIDDEN_PANEL_TOP},
        {9, RectAt(7, 62, 786, 509), 0},
    };
    for (const LayoutCase& c : cases) {
        FrameLayout layout = LayoutFrame(800, 600, 20, c.mode);
        EXPECT_EQ(layout.MdiClient, c.mdi) << int(c.mode);
        EXPECT_EQ(layout.PanelTop, c.panelTop) << int(c.mode);
    }
}

TEST(LayoutFrame, CommandLineAndToolButtonsKeepToTheBottomInEveryMode)
{
    for (std::uint8_t mode = 0; mode < 3; ++mode) {
        FrameLayout layout = LayoutFrame(800, 600, 20, mode);
        EXPECT_EQ(layout.CommandLine, RectAt(6, 576, 680, 20));
        EXPECT_EQ(layout.ToolButtons[0], (Corner{692, 574}));
        EXPECT_EQ(layout.ToolButtons[3], (Corner{692 + 3 * 26, 574}));
    }
}

TEST(LayoutFrame, PanelGoesBelowTheMdiClientInModeOne)
{
    EXPECT_EQ(PanelTopBelow(505), 509);
}

} // namespace
} // namespace steward
