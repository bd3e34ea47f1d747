#pragma once

#include "panels/BitmapFontGrid.h"
#include "panels/Gauge.h"

#include <cstdint>

namespace steward {

// The drawing surface of one panel control, in the control's own pixels. Colours are COLORREF
// values, red in the low byte. The control's picture is the bitmap it owns (compass, icon,
// button); mapped bitmaps are the numbered pictures recoloured to the panel's greys.
class PanelCanvas {
  public:
    virtual ~PanelCanvas() = default;

    virtual void FillColor(const Rect& rect, std::uint32_t color) = 0;
    // A one-pixel line from the first point up to, not including, the second.
    virtual void DrawLine(int x0, int y0, int x1, int y1, std::uint32_t color) = 0;
    // One character of the bitmap font with its mask, in color, with a transparent background.
    virtual void DrawCell(const FontCell& cell, int x, int y, std::uint32_t color) = 0;
    // Text in the window font of the text boxes.
    virtual void DrawBoxText(int x, int y, const char* text, std::uint32_t color) = 0;
    virtual void DrawPicture(int x, int y, int width, int height, int sourceX, int sourceY) = 0;
    virtual void DrawMappedBitmap(int id, int x, int y) = 0;
};

// Bitmap-font text: each character's cell at the running advance; the space draws nothing.
void DrawText(PanelCanvas& canvas, const BitmapFontGrid& font, int x, int y, const char* text,
              std::uint32_t color);
void DrawTextCentered(PanelCanvas& canvas, const BitmapFontGrid& font, const Rect& r,
                      const char* text, std::uint32_t color);
void DrawTextStacked(PanelCanvas& canvas, const BitmapFontGrid& font, const Rect& r,
                     const char* text, std::uint32_t color);
// First pen up the left side and along the top, second pen down the right and along the bottom.
void DrawBevel(PanelCanvas& canvas, const Rect& r, std::uint32_t first, std::uint32_t second);

} // namespace steward
