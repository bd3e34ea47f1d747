#include "highlights/qt/ColorGrid.h"

#include "highlights/HighlightItems.h"
#include "panels/qt/BitmapImage.h"
#include "terminal/Palette.h"

#include <QMouseEvent>
#include <QPainter>

namespace steward {

namespace {

// Cells of 20 by 20 pixels with 4 between them, in one row.
constexpr int CELL_SIZE = 20;
constexpr int CELL_GAP = 4;

} // namespace

ColorGrid::ColorGrid(QColor back, QColor text, CellClicked clicked, QWidget* parent)
    : QWidget(parent), back_(back), text_(text), clicked_(std::move(clicked))
{
    setFixedSize(sizeHint());
}

QSize ColorGrid::sizeHint() const
{
    return QSize(COLOR_CELL_COUNT * (CELL_SIZE + CELL_GAP) - CELL_GAP + 2, CELL_SIZE + 2);
}

QRect ColorGrid::CellRect(int cell) const
{
    return QRect(1 + cell * (CELL_SIZE + CELL_GAP), 1, CELL_SIZE, CELL_SIZE);
}

int ColorGrid::CellAt(QPoint point) const
{
    for (int cell = 0; cell < COLOR_CELL_COUNT; ++cell) {
        if (CellRect(cell).contains(point))
            return cell;
    }
    return -1;
}

void ColorGrid::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int cell = 0; cell < COLOR_CELL_COUNT; ++cell) {
        const QRect box = CellRect(cell);
        painter.fillRect(box, cell == 0 ? back_ : ColorOf(Palette[static_cast<std::size_t>(cell)]));
        // The sunken frame: shadow above and left, highlight below and right.
        const QRect frame = box.adjusted(-1, -1, 0, 0);
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawLine(frame.bottomLeft(), frame.topLeft());
        painter.drawLine(frame.topLeft(), frame.topRight());
        painter.setPen(palette().color(QPalette::Light));
        painter.drawLine(frame.topRight(), frame.bottomRight());
        painter.drawLine(frame.bottomRight(), frame.bottomLeft());
    }
    painter.setPen(text_);
    painter.drawText(CellRect(0), Qt::AlignCenter, QStringLiteral("Bk"));
}

void ColorGrid::mousePressEvent(QMouseEvent* event)
{
    const int cell = CellAt(event->position().toPoint());
    if (cell < 0 || (event->button() != Qt::LeftButton && event->button() != Qt::RightButton))
        return;
    clicked_(cell, event->button() == Qt::LeftButton);
}

} // namespace steward
