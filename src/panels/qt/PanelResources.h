#pragma once

#include "panels/qt/BitmapImage.h"

#include <QFont>
#include <QString>

namespace steward {

// The bold window font of the panel's text boxes, which the highlight lists share.
QFont PanelBoxFont();

// What every panel control draws with, loaded once: the gauges' alphabet, the numbered
// pictures of the BodyFigure already recoloured, and the text boxes' window font.
class PanelResources {
  public:
    PanelResources();

    BitmapFont& Font() { return font_; }
    // A numbered picture, or null when there is none with that number.
    const BitmapImage* Mapped(int id) const;
    const QFont& BoxFont() const { return boxFont_; }
    int BoxAscent() const { return boxAscent_; }

  private:
    static constexpr int FIRST_MAPPED = 117;
    static constexpr int LAST_MAPPED = 125;

    BitmapFont font_;
    BitmapImage mapped_[LAST_MAPPED - FIRST_MAPPED + 1];
    QFont boxFont_;
    int boxAscent_ = 0;
};

} // namespace steward
