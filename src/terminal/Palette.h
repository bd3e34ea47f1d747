#pragma once

#include "base/ColorRef.h"

#include <array>
#include <cstddef>

namespace steward {

constexpr std::size_t PALETTE_SIZE = 16;

// The colours that a foreground code 0x80 + i and a background code 0x90 + i select.
constexpr std::array<COLORREF, PALETTE_SIZE> Palette = {
    MakeRgb(255, 255, 255), MakeRgb(0, 0, 0),     MakeRgb(0, 0, 128),   MakeRgb(0, 128, 0),
    MakeRgb(0, 128, 128),   MakeRgb(128, 0, 0),   MakeRgb(128, 0, 128), MakeRgb(128, 128, 0),
    MakeRgb(192, 192, 192), MakeRgb(0, 0, 255),   MakeRgb(0, 255, 0),   MakeRgb(0, 255, 255),
    MakeRgb(255, 0, 0),     MakeRgb(255, 0, 255), MakeRgb(255, 255, 0), MakeRgb(255, 255, 255),
};

} // namespace steward
