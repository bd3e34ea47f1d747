#pragma once

#include "base/Geometry.h"
#include "terminal/Palette.h"

#include <cstdint>

namespace steward {

// The drawing surface that PaintText writes to. The current colours live here, not in the
// window, so the colour stacks read them back from the surface.
class DrawingLayer {
  public:
    virtual ~DrawingLayer() = default;

    virtual void SetTextColor(COLORREF color) = 0;
    virtual COLORREF GetTextColor() const = 0;
    virtual void SetBkColor(COLORREF color) = 0;
    virtual COLORREF GetBkColor() const = 0;
    // Fills the rectangle with the background colour and draws the bytes at (x, y) in the text
    // colour, each byte one character of the font; with length 0 it only fills.
    virtual void ExtTextOutA(std::int32_t x, std::int32_t y, const Rect& rect, const char* text,
                             std::int32_t length) = 0;
    // Draws the bytes at (x, y) with the background colour behind them.
    virtual void TextOutA(std::int32_t x, std::int32_t y, const char* text,
                          std::int32_t length) = 0;
};

} // namespace steward
