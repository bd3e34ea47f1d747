#pragma once

#include <QColor>
#include <QFont>

class QWidget;

namespace steward {

// The colour and font dialogs of a text window's Appearance menu; tests give their own, so
// that no modal dialog opens.
class AppearanceDialogs {
  public:
    virtual ~AppearanceDialogs() = default;
    // True and color changed when the user confirms.
    virtual bool PickColor(QWidget* owner, QColor& color, bool foregroundRule) = 0;
    // True and font changed when the user confirms.
    virtual bool PickFont(QWidget* owner, QFont& font) = 0;
};

// Qt's own colour and font dialogs.
class QtAppearanceDialogs : public AppearanceDialogs {
  public:
    bool PickColor(QWidget* owner, QColor& color, bool foregroundRule) override;
    bool PickFont(QWidget* owner, QFont& font) override;
};

// The largest font size the font dialog hands back, in points.
constexpr int FONT_DIALOG_MAX_POINTS = 32;

} // namespace steward
