#include "session/FrameLayout.h"

#include <gtest/gtest.h>

namespace steward {
namespace {

// A client area of 800 by 600 with a command line 20 high: the MDI client and the panel follow
// the display mode, the command line and tool buttons keep to the bottom in every mode.
TEST(LayoutFrame, PlacesTheMdiClientAndPanelForEachDisplayMode)
{
    const struct {
        std::uint8_t mode;
        Rect mdi;
        int panelTop;
    } cases[] = {
        {0, RectAt(7, 62, 786, 509), 0},
        {1, RectAt(7, 4, 786, 509), 0},
        {2, RectAt(7, 4, 786, 567), HIDDEN_PANEL_TOP},
        {9, RectAt(7, 62, 786, 509), 0},
    };
    for (const auto& c : cases) {
        const FrameLayout layout = LayoutFrame(800, 600, 20, c.mode);
        EXPECT_EQ(layout.MdiClient, c.mdi) << int(c.mode);
        EXPECT_EQ(layout.PanelTop, c.panelTop) << int(c.mode);
        EXPECT_EQ(layout.CommandLine, RectAt(6, 576, 680, 20));
        EXPECT_EQ(layout.ToolButtons[0], (Corner{692, 574}));
        EXPECT_EQ(layout.ToolButtons[3], (Corner{692 + 3 * 26, 574}));
    }
    EXPECT_EQ(PanelTopBelow(505), 509);
}

} // namespace
} // namespace steward
