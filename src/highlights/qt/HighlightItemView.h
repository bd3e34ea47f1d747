#pragma once

#include "highlights/HighlightItems.h"

#include <QAbstractListModel>
#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QStyledItemDelegate>

namespace steward {

// The items of one page as a Qt list model; Reload after every change of the items.
class HighlightItemModel : public QAbstractListModel {
  public:
    explicit HighlightItemModel(const HighlightItems& items, QObject* parent = nullptr)
        : QAbstractListModel(parent), items_(items)
    {
    }
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    void Reload();

  private:
    const HighlightItems& items_;
};

// What an item is drawn with: the window's colours, the icons and the font.
struct ItemLook {
    QColor Back;
    QColor Text;
    QPixmap Chooser;
    QPixmap Sound;
    QFont Font;
    // The strings page keeps a column for the sound icon.
    bool SoundColumn = false;
    // The colours page shows its sample rows, coloured in part.
    bool Samples = false;
};

// The icon columns are this wide, and the text starts this far from the item's left edge.
constexpr int ITEM_ICON_WIDTH = 16;
constexpr int ITEM_TEXT_LEFT = 44;
constexpr int ITEM_MIN_HEIGHT = 18;

// A 16 by 16 icon from its picture and mask, transparent where the mask is white.
QPixmap MaskedIcon(const char* picture, const char* mask);

// Draws an item as the game window would show it: the match text alone in the item's colours,
// the chooser on the selected item and the speaker on an item with a sound.
class HighlightItemDelegate : public QStyledItemDelegate {
  public:
    HighlightItemDelegate(ItemLook look, QObject* parent)
        : QStyledItemDelegate(parent), look_(std::move(look))
    {
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    void DrawIcon(QPainter& painter, const QRect& cell, const QPixmap& icon) const;
    void DrawText(QPainter& painter, const QRect& area, int row, const std::string& item) const;

    ItemLook look_;
};

} // namespace steward
