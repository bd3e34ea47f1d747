#include "base/qt/AppearanceDialogs.h"

#include <QColorDialog>
#include <QFontDialog>

namespace steward {

bool QtAppearanceDialogs::PickColor(QWidget* owner, QColor& color, bool)
{
    // Every dialog starts with white custom colours; nothing is kept between calls.
    for (int i = 0; i < QColorDialog::customCount(); ++i)
        QColorDialog::setCustomColor(i, Qt::white);
    const QColor chosen = QColorDialog::getColor(color, owner);
    if (!chosen.isValid())
        return false;
    color = chosen;
    return true;
}

bool QtAppearanceDialogs::PickFont(QWidget* owner, QFont& font)
{
    bool confirmed = false;
    QFont chosen = QFontDialog::getFont(&confirmed, font, owner);
    if (!confirmed)
        return false;
    if (chosen.pointSize() > FONT_DIALOG_MAX_POINTS)
        chosen.setPointSize(FONT_DIALOG_MAX_POINTS);
    font = chosen;
    return true;
}

} // namespace steward
