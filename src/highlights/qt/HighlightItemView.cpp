#include "highlights/qt/HighlightItemView.h"

#include <algorithm>

#include "panels/qt/BitmapImage.h"
#include "terminal/Palette.h"

#include <QFontMetrics>
#include <QPainter>

namespace steward {

namespace {

QColor PaletteColor(int index)
{
    return ColorOf(Palette[static_cast<std::size_t>(index & 0x0F)]);
}

} // namespace

int HighlightItemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items_.Count());
}

QVariant HighlightItemModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid() ||
        static_cast<std::size_t>(index.row()) >= items_.Count())
        return {};
    return QString::fromLatin1(items_.Item(static_cast<std::size_t>(index.row())).c_str());
}

void HighlightItemModel::Reload()
{
    beginResetModel();
    endResetModel();
}

QPixmap MaskedIcon(const char* picture, const char* mask)
{
    const BitmapImage image(picture, true);
    const BitmapImage cut(mask, true);
    if (image.Empty() || cut.Empty())
        return {};
    QImage icon = image.Image().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < icon.height() && y < cut.Height(); ++y) {
        for (int x = 0; x < icon.width() && x < cut.Width(); ++x) {
            if (qGray(cut.Image().pixel(x, y)) > 127)
                icon.setPixel(x, y, qRgba(0, 0, 0, 0));
        }
    }
    return QPixmap::fromImage(icon);
}

void HighlightItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    const QRect item = option.rect;
    painter->save();
    painter->fillRect(item, look_.Back);
    const QRect chooser(item.left(), item.top(), ITEM_ICON_WIDTH, item.height());
    if (option.state & QStyle::State_Selected)
        DrawIcon(*painter, chooser, look_.Chooser);
    const std::string text = index.data().toString().toLatin1().toStdString();
    if (look_.SoundColumn && !ParseItem(text).Sound.empty())
        DrawIcon(*painter, chooser.translated(ITEM_ICON_WIDTH, 0), look_.Sound);
    DrawText(*painter, item.adjusted(ITEM_TEXT_LEFT, 0, 0, 0), index.row(), text);
    const bool focused = option.state & QStyle::State_HasFocus;
    painter->setPen(focused ? look_.Text : look_.Back);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(item.adjusted(0, 0, -1, -1));
    painter->restore();
}

void HighlightItemDelegate::DrawIcon(QPainter& painter, const QRect& cell,
                                     const QPixmap& icon) const
{
    painter.drawPixmap(cell.left(), cell.top() + (cell.height() - icon.height()) / 2, icon);
}

void HighlightItemDelegate::DrawText(QPainter& painter, const QRect& area, int row,
                                     const std::string& item) const
{
    const HighlightItem parsed = ParseItem(item);
    const int back = parsed.Color >> 4;
    const QColor itemBack = back != 0 ? PaletteColor(back) : look_.Back;
    QString colored = QString::fromLatin1(parsed.Match.c_str());
    QString plain;
    if (look_.Samples) {
        colored = QString::fromLatin1(PackedText(item).c_str());
        const std::size_t part =
            SAMPLE_ROWS[static_cast<std::size_t>(row) % SAMPLE_ROW_COUNT].ColoredBytes;
        if (part != WHOLE_LINE) {
            plain = colored.mid(static_cast<int>(part));
            colored.truncate(static_cast<int>(part));
        }
    }
    painter.setFont(look_.Font);
    const QFontMetrics metrics(look_.Font);
    const int y = area.top() + (area.height() - metrics.height()) / 2 + metrics.ascent();
    const QRect coloredBox(area.left(), area.top(), metrics.horizontalAdvance(colored),
                           area.height());
    painter.fillRect(coloredBox, itemBack);
    painter.setPen(PaletteColor(parsed.Color));
    painter.drawText(area.left(), y, colored);
    painter.setPen(look_.Text);
    painter.drawText(coloredBox.right() + 1, y, plain);
}

QSize HighlightItemDelegate::sizeHint(const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    const int height = std::max(QFontMetrics(look_.Font).height(), ITEM_MIN_HEIGHT);
    return QSize(QStyledItemDelegate::sizeHint(option, index).width() + ITEM_TEXT_LEFT, height);
}

} // namespace steward
