#include "panels/BitmapFontGrid.h"

#include <cstring>

namespace steward {

const std::uint8_t ALPHABET_ADVANCES[ALPHABET_CHAR_COUNT] = {
    3, 5, 7, 8, 7, 7, 8, 4, 6, 6, 8, 7, 5, 8, 4, 8, 7, 7, 7, 7, 8, 7, 7, 8, 7, 7, 4, 4, 7, 7, 7, 7,
    8, 7, 8, 8, 8, 8, 8, 8, 7, 5, 8, 8, 8, 8, 8, 8, 8, 8, 8, 7, 7, 7, 7, 8, 7, 7, 8, 5, 8, 5, 8, 8,
    4, 7, 7, 7, 7, 7, 7, 7, 7, 5, 7, 7, 5, 8, 7, 7, 7, 7, 7, 7, 7, 7, 7, 8, 8, 7, 7, 7, 3, 7, 8, 8};

BitmapFontGrid::BitmapFontGrid(int bitmapWidth, int bitmapHeight, const std::uint8_t* advanceTable)
    : cellWidth_(bitmapWidth / ALPHABET_COLUMNS), cellHeight_(bitmapHeight / ALPHABET_ROWS),
      advanceTable_(advanceTable)
{
}

int BitmapFontGrid::CharIndex(char c)
{
    const int i = static_cast<unsigned char>(c) - ALPHABET_FIRST_CHAR;
    return i >= 0 && i < ALPHABET_CHAR_COUNT ? i : 0;
}

FontCell BitmapFontGrid::CellOf(char c) const
{
    const int i = CharIndex(c);
    const int row = i / ALPHABET_COLUMNS;
    return {(i % ALPHABET_COLUMNS) * cellWidth_, row * cellHeight_,
            (row + ALPHABET_MASK_ROWS) * cellHeight_};
}

int BitmapFontGrid::TextWidth(const char* text) const
{
    int width = 0;
    for (; *text; ++text)
        width += Advance(*text);
    return width;
}

FontPoint BitmapFontGrid::CenteredOrigin(const Rect& r, const char* text) const
{
    return {(r.right - r.left - TextWidth(text)) / 2 + r.left,
            (r.bottom - r.top - cellHeight_) / 2 + r.top};
}

FontPoint BitmapFontGrid::StackedOrigin(const Rect& r, const char* text) const
{
    const int n = static_cast<int>(std::strlen(text));
    return {(r.right - cellWidth_ - r.left) / 2 + r.left,
            (r.bottom - n * cellHeight_ - r.top) / 2 + r.top};
}

} // namespace steward
