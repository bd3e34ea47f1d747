#pragma once

#include "panels/CompassState.h"
#include "panels/PanelCanvas.h"
#include "panels/PanelStates.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace steward {

// The first id that NextControlId hands out; ids only need to be unique.
constexpr int FIRST_CONTROL_ID = 2001;
int NextControlId();

// One kind of panel control: its data and how it paints. The window that shows it is the same
// thin shell for every kind.
class ControlHandler {
  public:
    virtual ~ControlHandler() = default;
    // Draws the whole control of width by height pixels and remembers what it showed.
    virtual void Paint(PanelCanvas& canvas, int width, int height) = 0;
    // Whether the picture now differs from the one painted last, so that a repaint is needed.
    virtual bool NeedsPaint() const = 0;
    // The gauge whose popup menu the control shows on a right click; none for other kinds.
    virtual Gauge* MenuGauge() { return nullptr; }
    // The control's name for a screen reader; empty for a control with nothing to tell.
    virtual const char* AccessibleName() const { return ""; }
    // What a screen reader reads as the control's value, written into out; empty for none.
    virtual void AccessibleValue(char* out, std::size_t size) const;
};

// A screen reader's value text is cut to this size.
constexpr std::size_t ACCESSIBLE_VALUE_SIZE = 128;

constexpr std::uint32_t BOX_TEXT_COLOR = 0xEFEFEF;
constexpr std::uint32_t LABEL_BOX_COLOR = 0x5F5F5F;

// A text box: BoxText on BoxColor, in the window font.
class TextBoxHandler : public ControlHandler {
  public:
    // A box whose text another part of the program sets (Silver, Gold).
    TextBoxHandler(PanelText& text, std::uint32_t boxColor) : text_(text), BoxColor(boxColor) {}
    // A box with a text of its own (labels, value boxes).
    TextBoxHandler(const char* text, std::uint32_t boxColor);

    PanelText& Text() { return text_; }
    // VB_SETCOLOR.
    void SetColor(std::uint32_t color) { BoxColor = color; }
    void Paint(PanelCanvas& canvas, int width, int height) override;
    bool NeedsPaint() const override;
    const char* AccessibleName() const override { return text_.Text(); }

  private:
    PanelText own_;
    PanelText& text_ = own_;
    std::uint32_t BoxColor;
    std::array<char, PANEL_TEXT_SIZE> painted_{};
    std::uint32_t paintedColor_ = 0;
    bool paintedOnce_ = false;
};

// A gauge: frame, bar, ticks and text; with GF_BOXES the text goes to its value box.
class GaugeHandler : public ControlHandler {
  public:
    GaugeHandler(Gauge& gauge, const BitmapFontGrid& font, PanelText* valueBox)
        : gauge_(gauge), font_(font), valueBox_(valueBox)
    {
    }
    void Paint(PanelCanvas& canvas, int width, int height) override;
    bool NeedsPaint() const override;
    Gauge* MenuGauge() override { return &gauge_; }
    const char* AccessibleName() const override { return gauge_.Label(); }
    // The value, and "of" the maximum where the gauge shows it; seconds for a time gauge.
    void AccessibleValue(char* out, std::size_t size) const override;

  private:
    struct Look {
        std::int32_t Minimum = 0;
        std::int32_t Maximum = 0;
        std::int32_t Value = 0;
        std::uint32_t Flags = 0;
        GaugeColors Colors;
        std::array<char, GAUGE_CUSTOM_TEXT_SIZE> Text{};
        bool operator==(const Look& other) const;
    };
    Look Current() const;

    Gauge& gauge_;
    const BitmapFontGrid& font_;
    PanelText* valueBox_;
    Look painted_;
    bool paintedOnce_ = false;
};

// The compass: panel 0 of its picture, and each lit zone copied from panel 1 or 2.
class CompassHandler : public ControlHandler {
  public:
    explicit CompassHandler(CompassState& compass) : compass_(compass) {}
    void Paint(PanelCanvas& canvas, int width, int height) override;
    bool NeedsPaint() const override;
    const char* AccessibleName() const override { return "Compass"; }
    void AccessibleValue(char* out, std::size_t size) const override
    {
        compass_.ExitsText(out, size);
    }

  private:
    CompassState& compass_;
    std::array<ExitState, COMPASS_ZONES> painted_{};
    bool paintedOnce_ = false;
};

// The BodyFigure: a base picture and the overlays of its state bits.
class FigureHandler : public ControlHandler {
  public:
    explicit FigureHandler(FigureState& figure) : figure_(figure) {}
    void Paint(PanelCanvas& canvas, int width, int height) override;
    bool NeedsPaint() const override;

  private:
    FigureState& figure_;
    std::uint32_t painted_ = 0;
    bool paintedOnce_ = false;
};

// A small icon: the left half of its picture when held, the right half when not.
class IconHandler : public ControlHandler {
  public:
    explicit IconHandler(IconState& icon) : icon_(icon) {}
    void Paint(PanelCanvas& canvas, int width, int height) override;
    bool NeedsPaint() const override;

  private:
    IconState& icon_;
    bool painted_ = false;
    bool paintedOnce_ = false;
};

// The face of a tool button: the left half of its picture at rest, the right half held down.
void PaintToolButton(PanelCanvas& canvas, int faceWidth, int height, bool pressed);

} // namespace steward
