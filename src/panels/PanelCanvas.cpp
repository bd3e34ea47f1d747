#include "panels/PanelCanvas.h"

namespace steward {

void DrawText(PanelCanvas& canvas, const BitmapFontGrid& font, int x, int y, const char* text,
              std::uint32_t color)
{
    for (; *text; ++text) {
        if (BitmapFontGrid::CharIndex(*text) != 0)
            canvas.DrawCell(font.CellOf(*text), x, y, color);
        x += font.Advance(*text);
    }
}

void DrawTextCentered(PanelCanvas& canvas, const BitmapFontGrid& font, const Rect& r,
                      const char* text, std::uint32_t color)
{
    const FontPoint at = font.CenteredOrigin(r, text);
    DrawText(canvas, font, at.X, at.Y, text, color);
}

void DrawTextStacked(PanelCanvas& canvas, const BitmapFontGrid& font, const Rect& r,
                     const char* text, std::uint32_t color)
{
    FontPoint at = font.StackedOrigin(r, text);
    for (; *text; ++text, at.Y += font.CellHeight())
        if (BitmapFontGrid::CharIndex(*text) != 0)
            canvas.DrawCell(font.CellOf(*text), at.X, at.Y, color);
}

void DrawBevel(PanelCanvas& canvas, const Rect& r, std::uint32_t first, std::uint32_t second)
{
    canvas.DrawLine(r.left, r.bottom - 1, r.left, r.top, first);
    canvas.DrawLine(r.left, r.top, r.right - 1, r.top, first);
    canvas.DrawLine(r.right - 1, r.top, r.right - 1, r.bottom - 1, second);
    canvas.DrawLine(r.right - 1, r.bottom - 1, r.left - 1, r.bottom - 1, second);
}

} // namespace steward
