#pragma once

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

} // namespace steward
