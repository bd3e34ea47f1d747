#include "panels/qt/PanelResources.h"

#include <QFontMetrics>

namespace steward {

namespace {

// An 8 point bold face at the 96 dots per inch the panel's pixel sizes were made for.
constexpr int BOX_FONT_PIXELS = 11;

} // namespace

QFont PanelBoxFont()
{
    QFont font;
    font.setPixelSize(BOX_FONT_PIXELS);
    font.setStretch(QFont::SemiCondensed);
    font.setBold(true);
    return font;
}

PanelResources::PanelResources()
    : font_("IDB_ALPHABET", ALPHABET_ADVANCES), boxFont_(PanelBoxFont())
{
    for (int id = FIRST_MAPPED; id <= LAST_MAPPED; ++id)
        mapped_[id - FIRST_MAPPED] = LoadMappedBitmap(id);
    boxAscent_ = QFontMetrics(boxFont_).ascent();
}

const BitmapImage* PanelResources::Mapped(int id) const
{
    if (id < FIRST_MAPPED || id > LAST_MAPPED || mapped_[id - FIRST_MAPPED].Empty())
        return nullptr;
    return &mapped_[id - FIRST_MAPPED];
}

} // namespace steward
