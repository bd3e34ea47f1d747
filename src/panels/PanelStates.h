#pragma once

#include <cstddef>
#include <cstdint>

namespace steward {

// FigureState bits that pick the BodyFigure's pictures.
constexpr std::uint32_t FIGURE_STANDING = 0x00001;
constexpr std::uint32_t FIGURE_SITTING = 0x00002;
constexpr std::uint32_t FIGURE_LYING = 0x00004;
constexpr std::uint32_t FIGURE_STARS = 0x00008;
constexpr std::uint32_t FIGURE_BLEEDING = 0x00040;
constexpr std::uint32_t FIGURE_NET = 0x00080;
constexpr std::uint32_t FIGURE_DEAD = 0x00100;
constexpr std::uint32_t FIGURE_KNEELING = 0x40000;
constexpr std::uint32_t FIGURE_CLOUD = 0x80000;

enum FigureBitmap : int {
    FIGURE_BITMAP_STAR = 117,
    FIGURE_BITMAP_KNEELING = 118,
    FIGURE_BITMAP_DROP = 119,
    FIGURE_BITMAP_GRAVE = 120,
    FIGURE_BITMAP_CLOUD = 121,
    FIGURE_BITMAP_LYING = 122,
    FIGURE_BITMAP_STANDING = 123,
    FIGURE_BITMAP_SITTING = 124,
    FIGURE_BITMAP_NET = 125,
};

// Repaint request of a panel control; painting lives in the Qt layer.
class PanelView {
  public:
    virtual ~PanelView() = default;
    virtual void Repaint() = 0;
};

// The BodyFigure: bits that choose a base picture and its overlays.
class FigureState {
  public:
    void SetView(PanelView* view) { view_ = view; }
    void SetState(std::uint32_t state);
    std::uint32_t GetState() const { return state_; }
    // The base picture for the current bits.
    FigureBitmap BaseBitmap() const;
    // Overlays in drawing order; returns how many were written (at most 4).
    std::size_t Overlays(FigureBitmap out[4]) const;

  private:
    std::uint32_t state_ = FIGURE_STANDING;
    PanelView* view_ = nullptr;
};

// A small two-state icon (weapon, shield): held or not held.
class IconState {
  public:
    void SetView(PanelView* view) { view_ = view; }
    void SetState(std::uint32_t state);
    bool Held() const { return state_ != 0; }

  private:
    std::uint32_t state_ = 0;
    PanelView* view_ = nullptr;
};

// Text of a small text box such as the "Silver:" and "Gold:" fields: up to 254 characters.
constexpr std::size_t PANEL_TEXT_SIZE = 255;

class PanelText {
  public:
    void SetView(PanelView* view) { view_ = view; }
    // WM_SETTEXT; a longer text is cut at the buffer.
    void SetText(const char* text);
    const char* Text() const { return text_; }

  private:
    char text_[PANEL_TEXT_SIZE] = {};
    PanelView* view_ = nullptr;
};

} // namespace steward
