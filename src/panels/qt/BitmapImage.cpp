#include "panels/qt/BitmapImage.h"

#include "base/qt/ProgramResources.h"

#include <QPainter>

#include <cstdio>
#include <cstring>

namespace steward {

namespace {

QString ResourcePath(const char* name)
{
    return QStringLiteral(":/bitmaps/") + QLatin1String(name) + QStringLiteral(".bmp");
}

// Marker colours of the numbered pictures (RGB) and what they become.
struct ColorMap {
    QRgb From;
    QRgb To;
};
constexpr ColorMap MARKERS[] = {
    {0xFF00FFFF, 0xFF5F5F5F}, {0xFFFF00FF, 0xFFC0C0C0}, {0xFF800080, 0xFFC0C0C0}};

} // namespace

QColor ColorOf(std::uint32_t colorref)
{
    return QColor(colorref & 0xFF, (colorref >> 8) & 0xFF, (colorref >> 16) & 0xFF);
}

BitmapImage::BitmapImage(const char* name, bool dropPalette)
{
    if (name)
        LoadBitmapImage(name, dropPalette);
}

bool BitmapImage::LoadBitmapImage(const char* name, bool)
{
    if (!name)
        return !Empty();
    if (ImageName[0] && std::strcmp(name, ImageName) == 0)
        return true;
    ClearBitmapImage();
    LoadProgramResources();
    QImage loaded(ResourcePath(name));
    if (loaded.isNull())
        return false;
    image_ = loaded.convertToFormat(QImage::Format_RGB32);
    std::snprintf(ImageName, sizeof ImageName, "%s", name);
    return true;
}

void BitmapImage::ClearBitmapImage()
{
    image_ = QImage();
    ImageName[0] = '\0';
}

void BitmapImage::ReplaceColor(QRgb from, QRgb to)
{
    for (int y = 0; y < image_.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image_.scanLine(y));
        for (int x = 0; x < image_.width(); ++x)
            if (line[x] == from)
                line[x] = to;
    }
}

void BitmapImage::DrawBitmap(QPainter& target, int x, int y) const
{
    if (!Empty())
        target.drawImage(x, y, image_);
}

void BitmapImage::DrawBitmapPart(QPainter& target, int x, int y, int width, int height, int sourceX,
                                 int sourceY) const
{
    if (!Empty())
        target.drawImage(x, y, image_, sourceX, sourceY, width, height);
}

BitmapImage LoadMappedBitmap(int resourceId)
{
    char name[16];
    std::snprintf(name, sizeof name, "%d", resourceId);
    BitmapImage picture(name, true);
    if (picture.Empty())
        return picture;
    for (const ColorMap& marker : MARKERS)
        picture.ReplaceColor(marker.From, marker.To);
    return picture;
}

BitmapFont::BitmapFont(const char* name, const std::uint8_t* advanceTable)
    : FontImage(name, true), grid_(FontImage.Empty() ? 0 : FontImage.Width(),
                                   FontImage.Empty() ? 0 : FontImage.Height(), advanceTable)
{
}

const QImage* BitmapFont::Tinted(std::uint32_t color)
{
    for (int i = 0; i < tintCount_; ++i)
        if (tints_[i].Color == color)
            return &tints_[i].Image;
    const int slot = tintCount_ < TINTS ? tintCount_++ : 0;
    // Glyph pixels take the colour, the rest of a letter's mask turns black, and what the mask
    // keeps stays transparent.
    const QImage& source = FontImage.Image();
    const int half = grid_.CellHeight() * ALPHABET_MASK_ROWS;
    QImage tinted(source.width(), half, QImage::Format_ARGB32_Premultiplied);
    const QRgb ink = ColorOf(color).rgb();
    for (int y = 0; y < half; ++y) {
        const auto* glyph = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        const auto* mask = reinterpret_cast<const QRgb*>(source.constScanLine(y + half));
        auto* out = reinterpret_cast<QRgb*>(tinted.scanLine(y));
        for (int x = 0; x < source.width(); ++x) {
            const bool kept = qGray(mask[x]) > 127;
            const bool letter = qGray(glyph[x]) > 127;
            out[x] = kept ? 0 : letter ? ink : 0xFF000000;
        }
    }
    tints_[slot] = {color, std::move(tinted)};
    return &tints_[slot].Image;
}

void BitmapFont::DrawCell(QPainter& target, const FontCell& cell, int x, int y, std::uint32_t color)
{
    if (FontImage.Empty())
        return;
    target.drawImage(x, y, *Tinted(color), cell.SourceX, cell.GlyphY, grid_.CellWidth(),
                     grid_.CellHeight());
}

} // namespace steward
