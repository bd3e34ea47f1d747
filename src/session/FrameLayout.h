#pragma once

#include "base/Geometry.h"
#include "panels/ToolButtonPlaces.h"

#include <cstdint>

namespace steward {

// The panel lies this far out of sight in full-screen mode, still alive and still updated.
constexpr int HIDDEN_PANEL_TOP = -5000;

// Where everything of the frame lies for one display mode.
struct FrameLayout {
    Rect CommandLine;
    Rect MdiClient;
    // The panel's vertical origin; with graphics at the bottom it depends on the inner height of
    // the MdiClient, see PanelTopBelow.
    int PanelTop = 0;
    ToolButtonPlaces ToolButtons{};
};

// The frame's client width and height and the height of the CommandLine decide the layout.
// With graphics at the bottom PanelTop is left 0: the caller adds the MdiClient's inner height with
// PanelTopBelow.
FrameLayout LayoutFrame(int width, int height, int commandLineHeight, std::uint8_t displayMode);

// Mode 1 puts the panel below the MdiClient, whose inner height is known after it was moved.
int PanelTopBelow(int mdiInnerHeight);

} // namespace steward
