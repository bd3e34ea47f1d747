#pragma once

#include <QColor>
#include <QWidget>

#include <functional>

namespace steward {

// The sixteen colour cells under a highlight list: cell i stands for Palette entry i, and cell
// 0, drawn in the window's back colour with "Bk", for no background. A click outside the cells
// does nothing.
class ColorGrid : public QWidget {
  public:
    // cell, and true for the left button, false for the right one.
    using CellClicked = std::function<void(int cell, bool left)>;

    ColorGrid(QColor back, QColor text, CellClicked clicked, QWidget* parent = nullptr);
    // The cell under a point, or -1 between and outside the cells.
    int CellAt(QPoint point) const;
    QRect CellRect(int cell) const;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QColor back_;
    QColor text_;
    CellClicked clicked_;
};

} // namespace steward
