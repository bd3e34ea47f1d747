#pragma once

#include "terminal/DrawingLayer.h"
#include "terminal/TextBuffer.h"

#include <QColor>
#include <QFont>
#include <QGlyphRun>
#include <QPen>
#include <QPointF>
#include <QRawFont>

#include <array>

class QPainter;

namespace steward {

// The DrawingLayer on a QPainter. Every byte is one glyph of the font, placed at the whole
// pixel widths of the window's CharWidth table, so that runs never drift from the geometry
// the core computed. The glyph table and run arrays are made once per font, so a paint
// allocates nothing here.
class PainterLayer : public DrawingLayer {
  public:
    // Glyphs of the font for the 256 byte values, read as Latin-1.
    void SetFont(const QFont& font);
    // Whole-pixel advances of the 256 glyphs.
    void MeasureWidths(CharWidthTable& widths) const;
    int Height() const { return height_; }
    // Not owned; the window's table, which outlives every paint.
    void SetCharWidths(const CharWidthTable* widths) { widths_ = widths; }

    // Drawing goes to the painter until End.
    void Begin(QPainter* painter) { painter_ = painter; }
    void End() { painter_ = nullptr; }

    void SetTextColor(COLORREF color) override { textColor_ = color; }
    COLORREF GetTextColor() const override { return textColor_; }
    void SetBkColor(COLORREF color) override { backColor_ = color; }
    COLORREF GetBkColor() const override { return backColor_; }
    void ExtTextOutA(std::int32_t x, std::int32_t y, const Rect& rect, const char* text,
                     std::int32_t length) override;
    void TextOutA(std::int32_t x, std::int32_t y, const char* text, std::int32_t length) override;

  private:
    // Text colours are few (the window's two and the palette), so their pens are made once.
    static constexpr std::size_t PEN_CACHE_SIZE = 32;

    const QPen& PenFor(COLORREF color);
    void DrawRun(std::int32_t x, std::int32_t y, const char* text, std::int32_t length);

    QPainter* painter_ = nullptr;
    const CharWidthTable* widths_ = nullptr;
    COLORREF textColor_ = 0;
    COLORREF backColor_ = 0;
    QRawFont rawFont_;
    qreal ascent_ = 0;
    int height_ = 0;
    QGlyphRun run_;
    std::array<quint32, 256> glyphOf_{};
    std::array<quint32, READ_LINE_BUFFER_SIZE> glyphs_{};
    std::array<QPointF, READ_LINE_BUFFER_SIZE> positions_{};
    std::array<QPen, PEN_CACHE_SIZE> pens_;
    std::array<COLORREF, PEN_CACHE_SIZE> penColors_{};
    std::size_t penCount_ = 0;
    std::size_t nextPen_ = 0;
};

} // namespace steward
