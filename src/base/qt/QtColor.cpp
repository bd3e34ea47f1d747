#include "base/qt/QtColor.h"

namespace steward {

QColor ToQColor(COLORREF color)
{
    return QColor(RedOf(color), GreenOf(color), BlueOf(color));
}

COLORREF FromQColor(const QColor& color)
{
    return MakeRgb(static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
                   static_cast<std::uint8_t>(color.blue()));
}

} // namespace steward
