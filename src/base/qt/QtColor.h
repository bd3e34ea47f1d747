#pragma once

#include "base/ColorRef.h"

#include <QColor>

namespace steward {

// A COLORREF as Qt's colour, and back.
QColor ToQColor(COLORREF color);
COLORREF FromQColor(const QColor& color);

} // namespace steward
