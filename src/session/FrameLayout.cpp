#include "session/FrameLayout.h"

#include "config/Settings.h"

namespace steward {

std::array<Corner, TOOL_BUTTON_COUNT> PlaceToolButtons(int x, int y)
{
    std::array<Corner, TOOL_BUTTON_COUNT> places{};
    for (int i = 0; i < TOOL_BUTTON_COUNT; ++i)
        places[i] = {x + i * TOOL_BUTTON_STEP, y};
    return places;
}

FrameLayout LayoutFrame(int w, int b, int h, std::uint8_t displayMode)
{
    FrameLayout layout;
    layout.CommandLine = {6, b - h - 4, w - 120, h};
    layout.ToolButtons = PlaceToolButtons(w - 108, b - 26);
    switch (displayMode) {
    case DISPLAY_GRAPHICS_BOTTOM:
        layout.MdiClient = {7, 4, w - 14, b - h - 71};
        break;
    case DISPLAY_FULL_SCREEN:
        layout.MdiClient = {7, 4, w - 14, b - h - 13};
        layout.PanelTop = HIDDEN_PANEL_TOP;
        break;
    default:
        layout.MdiClient = {7, 62, w - 14, b - h - 71};
        break;
    }
    return layout;
}

int PanelTopBelow(int mdiInnerHeight)
{
    return mdiInnerHeight + 4;
}

} // namespace steward
