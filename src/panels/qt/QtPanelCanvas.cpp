#include "panels/qt/QtPanelCanvas.h"

#include "panels/qt/PanelResources.h"

#include <QPainter>

namespace steward {

namespace {

int StepTowards(int from, int to)
{
    return from < to ? 1 : from > to ? -1 : 0;
}

} // namespace

void QtPanelCanvas::FillColor(const Rect& rect, std::uint32_t color)
{
    if (rect.right > rect.left && rect.bottom > rect.top)
        painter_.fillRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                          ColorOf(color));
}

void QtPanelCanvas::DrawLine(int x0, int y0, int x1, int y1, std::uint32_t color)
{
    if (x0 == x1 && y0 == y1)
        return;
    painter_.setPen(ColorOf(color));
    painter_.drawLine(x0, y0, x1 - StepTowards(x0, x1), y1 - StepTowards(y0, y1));
}

void QtPanelCanvas::DrawCell(const FontCell& cell, int x, int y, std::uint32_t color)
{
    resources_.Font().DrawCell(painter_, cell, x, y, color);
}

void QtPanelCanvas::DrawBoxText(int x, int y, const char* text, std::uint32_t color)
{
    scratch_.resize(0);
    for (; *text; ++text)
        scratch_.append(QLatin1Char(*text));
    painter_.setFont(resources_.BoxFont());
    painter_.setPen(ColorOf(color));
    painter_.drawText(x, y + resources_.BoxAscent(), scratch_);
}

void QtPanelCanvas::DrawPicture(int x, int y, int width, int height, int sourceX, int sourceY)
{
    if (picture_)
        picture_->DrawBitmapPart(painter_, x, y, width, height, sourceX, sourceY);
}

void QtPanelCanvas::DrawMappedBitmap(int id, int x, int y)
{
    if (const BitmapImage* picture = resources_.Mapped(id))
        picture->DrawBitmap(painter_, x, y);
}

} // namespace steward
