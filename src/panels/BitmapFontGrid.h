#pragma once

#include "panels/Gauge.h"

#include <cstdint>

namespace steward {

// An alphabet bitmap holds 32 columns and 6 rows of cells: rows 0 to 2 the glyphs of the
// characters 32 to 127, rows 3 to 5 their masks in the same order.
constexpr int ALPHABET_COLUMNS = 32;
constexpr int ALPHABET_ROWS = 6;
constexpr int ALPHABET_MASK_ROWS = 3;
constexpr int ALPHABET_FIRST_CHAR = 32;
constexpr int ALPHABET_CHAR_COUNT = 96;

// The advance of each character of IDB_ALPHABET, for the characters 32 to 127.
extern const std::uint8_t ALPHABET_ADVANCES[ALPHABET_CHAR_COUNT];

// Where one character's glyph and mask lie in the alphabet bitmap.
struct FontCell {
    int SourceX = 0;
    int GlyphY = 0;
    int MaskY = 0;
};

struct FontPoint {
    int X = 0;
    int Y = 0;
};

// The cell and advance arithmetic of a BitmapFont; the Qt layer only blits the cells.
class BitmapFontGrid {
  public:
    BitmapFontGrid(int bitmapWidth, int bitmapHeight, const std::uint8_t* advanceTable);

    // Characters outside 32 to 127, the bytes above 127 among them, count as the space.
    static int CharIndex(char c);
    FontCell CellOf(char c) const;
    int Advance(char c) const { return advanceTable_[CharIndex(c)]; }
    int TextWidth(const char* text) const;
    int CellWidth() const { return cellWidth_; }
    int CellHeight() const { return cellHeight_; }

    // DrawTextCentered: where the text starts so that it is centred in r.
    FontPoint CenteredOrigin(const Rect& r, const char* text) const;
    // DrawTextStacked: the first character's cell; each next one lies CellHeight lower.
    FontPoint StackedOrigin(const Rect& r, const char* text) const;

  private:
    int cellWidth_;
    int cellHeight_;
    const std::uint8_t* advanceTable_;
};

// IDB_ALPHABET is 256 by 66, cells of 8 by 11.
constexpr int ALPHABET_WIDTH = 256;
constexpr int ALPHABET_HEIGHT = 66;

} // namespace steward
