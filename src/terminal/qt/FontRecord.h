#pragma once

#include "config/BinaryRecords.h"

#include <QFont>

namespace steward {

// A stored font record as a Qt font, and back; sizes are pixel heights as the record keeps
// them, a negative lfHeight being the character height.
QFont FontFromRecord(const LogFontRecord& record);
LogFontRecord RecordFromFont(const QFont& font);
// The system's fixed-pitch font, which a window has while its profile names none.
QFont SystemFixedFont();

} // namespace steward
