#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace steward {

// A colour as the profile stores it: red in the low byte, then green, then blue.
using COLORREF = std::uint32_t;

constexpr COLORREF MakeRgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return static_cast<COLORREF>(red) | (static_cast<COLORREF>(green) << 8) |
           (static_cast<COLORREF>(blue) << 16);
}

constexpr std::uint8_t RedOf(COLORREF color)
{
    return static_cast<std::uint8_t>(color);
}
constexpr std::uint8_t GreenOf(COLORREF color)
{
    return static_cast<std::uint8_t>(color >> 8);
}
constexpr std::uint8_t BlueOf(COLORREF color)
{
    return static_cast<std::uint8_t>(color >> 16);
}

constexpr std::size_t PALETTE_SIZE = 16;

// The colours that a foreground code 0x80 + i and a background code 0x90 + i select.
constexpr std::array<COLORREF, PALETTE_SIZE> Palette = {
    MakeRgb(255, 255, 255), MakeRgb(0, 0, 0),     MakeRgb(0, 0, 128),   MakeRgb(0, 128, 0),
    MakeRgb(0, 128, 128),   MakeRgb(128, 0, 0),   MakeRgb(128, 0, 128), MakeRgb(128, 128, 0),
    MakeRgb(192, 192, 192), MakeRgb(0, 0, 255),   MakeRgb(0, 255, 0),   MakeRgb(0, 255, 255),
    MakeRgb(255, 0, 0),     MakeRgb(255, 0, 255), MakeRgb(255, 255, 0), MakeRgb(255, 255, 255),
};

} // namespace steward
