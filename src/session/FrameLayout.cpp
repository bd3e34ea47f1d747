#include "session/FrameLayout.h"

#include "config/Settings.h"

namespace steward {

FrameLayout LayoutFrame(int w, int b, int h, std::uint8_t displayMode)
{
    FrameLayout layout;
    layout.CommandLine = RectAt(6, b - h - 4, w - 120, h);
    layout.ToolButtons = PlaceToolButtons(w - 108, b - 26);
    switch (displayMode) {
    case DISPLAY_GRAPHICS_BOTTOM:
        layout.MdiClient = RectAt(7, 4, w - 14, b - h - 71);
        break;
    case DISPLAY_FULL_SCREEN:
        layout.MdiClient = RectAt(7, 4, w - 14, b - h - 13);
        layout.PanelTop = HIDDEN_PANEL_TOP;
        break;
    default:
        layout.MdiClient = RectAt(7, 62, w - 14, b - h - 71);
        break;
    }
    return layout;
}

int PanelTopBelow(int mdiInnerHeight)
{
    return mdiInnerHeight + 4;
}

} // namespace steward
