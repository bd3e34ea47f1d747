#pragma once

#include "panels/BitmapFontGrid.h"

#include <QImage>

#include <cstdint>

class QPainter;

namespace steward {

// Resource name of a picture: name for the named bitmaps, the number for the numbered ones.
constexpr std::size_t IMAGE_NAME_SIZE = 256;

// One bitmap from the program's resources. Pictures are true colour, so there is no palette
// to keep or drop; the dropPalette argument stays for the callers' sake.
class BitmapImage {
  public:
    BitmapImage() = default;
    BitmapImage(const char* name, bool dropPalette);

    // Replaces the picture; the same name again does nothing. True if there is a picture after.
    bool LoadBitmapImage(const char* name, bool dropPalette);
    void ClearBitmapImage();
    bool Empty() const { return image_.isNull(); }
    int Width() const { return image_.width(); }
    int Height() const { return image_.height(); }
    const QImage& Image() const { return image_; }

    // Every pixel of colour from becomes to (RGB values).
    void ReplaceColor(QRgb from, QRgb to);
    void DrawBitmap(QPainter& target, int x, int y) const;
    void DrawBitmapPart(QPainter& target, int x, int y, int width, int height, int sourceX,
                        int sourceY) const;

  private:
    char ImageName[IMAGE_NAME_SIZE] = {};
    QImage image_;
};

// A numbered picture with its marker colours replaced by the panel's greys.
BitmapImage LoadMappedBitmap(int resourceId);

// Text from a 1-bit alphabet bitmap in any colour: each glyph is laid on the target through its
// mask. A tinted copy of the alphabet is made once per colour and kept.
class BitmapFont {
  public:
    BitmapFont(const char* name, const std::uint8_t* advanceTable);

    const BitmapFontGrid& Grid() const { return grid_; }
    void DrawCell(QPainter& target, const FontCell& cell, int x, int y, std::uint32_t color);

  private:
    const QImage* Tinted(std::uint32_t color);

    BitmapImage FontImage;
    BitmapFontGrid grid_;
    struct Tint {
        std::uint32_t Color;
        QImage Image;
    };
    // The panel draws in two or three colours; a few more are kept, then the oldest is redone.
    static constexpr int TINTS = 6;
    Tint tints_[TINTS];
    int tintCount_ = 0;
};

// COLORREF, red in the low byte, as a Qt colour.
QColor ColorOf(std::uint32_t colorref);

} // namespace steward
