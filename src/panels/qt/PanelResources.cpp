#include "panels/qt/PanelResources.h"

#include <QFontMetrics>

namespace steward {

namespace {

// An 8 point bold face at the 96 dots per inch the panel's pixel sizes were made for.
constexpr int BOX_FONT_PIXELS = 11;

} // namespace

PanelResources::PanelResources() : font_("IDB_ALPHABET", ALPHABET_ADVANCES)
{
    for (int id = FIRST_MAPPED; id <= LAST_MAPPED; ++id)
        mapped_[id - FIRST_MAPPED] = LoadMappedBitmap(id);
    boxFont_.setPixelSize(BOX_FONT_PIXELS);
    boxFont_.setStretch(QFont::SemiCondensed);
    boxFont_.setBold(true);
    boxAscent_ = QFontMetrics(boxFont_).ascent();
}

const BitmapImage* PanelResources::Mapped(int id) const
{
    if (id < FIRST_MAPPED || id > LAST_MAPPED || mapped_[id - FIRST_MAPPED].Empty())
        return nullptr;
    return &mapped_[id - FIRST_MAPPED];
}

} // namespace steward
