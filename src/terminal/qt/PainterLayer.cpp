#include "terminal/qt/PainterLayer.h"

#include "base/qt/QtColor.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace steward {

void PainterLayer::SetFont(const QFont& font)
{
    rawFont_ = QRawFont::fromFont(font);
    const QFontMetrics metrics(font);
    ascent_ = metrics.ascent();
    height_ = metrics.height();
    std::array<QChar, 256> characters;
    for (std::size_t c = 0; c < characters.size(); ++c)
        characters[c] = QChar::fromLatin1(static_cast<char>(c));
    int count = static_cast<int>(glyphOf_.size());
    if (!rawFont_.glyphIndexesForChars(characters.data(), count, glyphOf_.data(), &count))
        glyphOf_.fill(0);
    run_.setRawFont(rawFont_);
}

void PainterLayer::MeasureWidths(CharWidthTable& widths) const
{
    std::array<QPointF, 256> advances{};
    if (rawFont_.isValid())
        rawFont_.advancesForGlyphIndexes(glyphOf_.data(), advances.data(),
                                         static_cast<int>(advances.size()));
    for (std::size_t c = 0; c < widths.size(); ++c)
        widths[c] = qRound(advances[c].x());
}

void PainterLayer::ExtTextOutA(std::int32_t x, std::int32_t y, const Rect& rect, const char* text,
                               std::int32_t length)
{
    if (!painter_)
        return;
    painter_->fillRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                       ToQColor(backColor_));
    DrawRun(x, y, text, length);
}

void PainterLayer::TextOutA(std::int32_t x, std::int32_t y, const char* text, std::int32_t length)
{
    if (!painter_ || !widths_)
        return;
    std::int32_t width = 0;
    for (std::int32_t i = 0; i < length; ++i)
        width += (*widths_)[static_cast<unsigned char>(text[i])];
    painter_->fillRect(x, y, width, height_, ToQColor(backColor_));
    DrawRun(x, y, text, length);
}

const QPen& PainterLayer::PenFor(COLORREF color)
{
    for (std::size_t i = 0; i < penCount_; ++i)
        if (penColors_[i] == color)
            return pens_[i];
    std::size_t slot = penCount_;
    if (penCount_ < PEN_CACHE_SIZE) {
        ++penCount_;
    } else {
        slot = nextPen_;
        nextPen_ = (nextPen_ + 1) % PEN_CACHE_SIZE;
    }
    pens_[slot] = QPen(ToQColor(color));
    penColors_[slot] = color;
    return pens_[slot];
}

// Places one glyph per byte at the table's widths and draws them in the text colour.
void PainterLayer::DrawRun(std::int32_t x, std::int32_t y, const char* text, std::int32_t length)
{
    const std::int32_t count = std::min<std::int32_t>(length, glyphs_.size());
    if (count <= 0 || !widths_ || !rawFont_.isValid())
        return;
    std::int32_t pen = x;
    for (std::int32_t i = 0; i < count; ++i) {
        const unsigned char byte = static_cast<unsigned char>(text[i]);
        glyphs_[i] = glyphOf_[byte];
        positions_[i] = QPointF(pen, y + ascent_);
        pen += (*widths_)[byte];
    }
    run_.setRawData(glyphs_.data(), positions_.data(), count);
    painter_->setPen(PenFor(textColor_));
    painter_->drawGlyphRun(QPointF(0, 0), run_);
}

} // namespace steward
