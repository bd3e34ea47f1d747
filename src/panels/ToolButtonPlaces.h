#pragma once

#include "base/Geometry.h"

#include <array>

namespace steward {

constexpr int TOOL_BUTTON_COUNT = 4;
constexpr int TOOL_BUTTON_STEP = 26;

// The top left corner of each tool button, in creation order.
using ToolButtonPlaces = std::array<Corner, TOOL_BUTTON_COUNT>;

// The tool buttons in a row at 26 pixel steps from x.
constexpr ToolButtonPlaces PlaceToolButtons(int x, int y)
{
    ToolButtonPlaces places{};
    for (int i = 0; i < TOOL_BUTTON_COUNT; ++i)
        places[i] = {x + i * TOOL_BUTTON_STEP, y};
    return places;
}

} // namespace steward
