#pragma once

#include "base/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <functional>

namespace steward {

constexpr std::uint32_t GF_SHOWMIN = 0x001;
constexpr std::uint32_t GF_SHOWMAX = 0x002;
constexpr std::uint32_t GF_SHOWVALUE = 0x004;
constexpr std::uint32_t GF_HIDEATMIN = 0x008;
constexpr std::uint32_t GF_NOLABELPAINT = 0x010;
constexpr std::uint32_t GF_NOTICKS = 0x020;
constexpr std::uint32_t GF_SECONDS = 0x040;
constexpr std::uint32_t GF_CUSTOMTEXT = 0x080;
constexpr std::uint32_t GF_BOXES = 0x100;
constexpr std::uint32_t GF_NOVALUEBOX = 0x200;
constexpr std::uint32_t GF_NOTEXT = 0x400;

constexpr std::size_t GAUGE_CUSTOM_TEXT_SIZE = 128;
constexpr std::size_t GAUGE_LABEL_SIZE = 64;
// Enough for three signed 32-bit numbers with their two slashes.
constexpr std::size_t GAUGE_TEXT_SIZE = 40;
constexpr int GAUGE_TICK_MS = 1000;

// The commands of a gauge's popup menu.
constexpr int GAUGE_MENU_BAR_COLOR = 2324;
constexpr int GAUGE_MENU_BACK_COLOR = 2340;

// Asks the user for a colour: true and color changed when the user confirms.
using GaugeColorPicker = std::function<bool(std::uint32_t& color)>;

class Gauge;

// The one-second timer that drives a countdown; the Qt layer calls Gauge::Tick on each beat.
class GaugeTimer {
  public:
    virtual ~GaugeTimer() = default;
    virtual void StartTimer(Gauge& gauge, int periodMs) = 0;
    virtual void StopTimer(Gauge& gauge) = 0;
};

// Hears GM_COUNTDOWNDONE: a countdown reached the minimum.
class CountdownListener {
  public:
    virtual ~CountdownListener() = default;
    virtual void CountdownDone(Gauge& gauge) = 0;
};

// Repaint requests of a gauge; the painting itself lives in the Qt layer.
class GaugeView {
  public:
    virtual ~GaugeView() = default;
    virtual void Repaint(bool erase) = 0;
};

// Three colours in the order of the profile's Colors record.
struct GaugeColors {
    std::uint32_t GaugeTextColor = 0;
    std::uint32_t BarColor = 0;
    std::uint32_t GaugeBackColor = 0;
};
static_assert(sizeof(GaugeColors) == 12, "the profile stores the gauge colours as 12 bytes");

// State and arithmetic of one bar control: value between minimum and maximum, optional text,
// and a countdown in milliseconds.
class Gauge {
  public:
    Gauge(const char* label, std::uint32_t flags, bool horizontal, GaugeColors colors);

    void SetView(GaugeView* view) { view_ = view; }
    void SetTimer(GaugeTimer* timer) { timer_ = timer; }

    std::int32_t GetValue() const { return Value; }
    std::int32_t GetMax() const { return Maximum; }
    std::int32_t GetMin() const { return Minimum; }
    std::uint32_t GetFlags() const { return GaugeFlags; }
    const char* Label() const { return GaugeLabel; }
    const char* Text() const { return CustomText; }
    bool IsHorizontal() const { return Horizontal; }
    bool IsCounting() const { return counting_; }
    const GaugeColors& Colors() const { return colors_; }

    void SetValue(std::int32_t value);
    void SetMin(std::int32_t minimum);
    void SetMax(std::int32_t maximum);
    void SetFlags(std::uint32_t flags);
    void Fill();
    void SetColors(const GaugeColors& colors);
    // A popup menu command: picks BarColor or GaugeBackColor (the boxes keep theirs), then
    // repaints with erasing. False, and nothing asked, for any other id.
    bool MenuCommand(int command, const GaugeColorPicker& pick);
    // The gauge's own text, kept (cut to the buffer) and shown with GF_CUSTOMTEXT.
    void SetText(const char* text);

    // GM_STARTCOUNTDOWN: runs from Maximum down to Minimum in steps of 1000 ms.
    void StartCountdown(CountdownListener* notify);
    // GM_STOPCOUNTDOWN: ends a running countdown without telling anyone.
    void StopCountdown(CountdownListener* notify);
    // One second of the countdown has passed.
    void Tick();

    // The text PaintGauge shows, empty when none; returns out.
    const char* BuildText(char* out, std::size_t size) const;
    // The filled part of the client rectangle; empty (left == right or top == bottom) for no bar.
    Rect BarRect(const Rect& client) const;
    // Whether tick marks are drawn, and where: the three quarter positions along the long side.
    bool HasTicks() const;
    void TickPositions(const Rect& client, int positions[3]) const;

  private:
    void Repaint(bool erase);

    std::int32_t Minimum = 0;
    std::int32_t Maximum = 0;
    std::int32_t Value = 0;
    std::uint32_t GaugeFlags = 0;
    bool Horizontal = true;
    char CustomText[GAUGE_CUSTOM_TEXT_SIZE] = {};
    char GaugeLabel[GAUGE_LABEL_SIZE] = {};
    GaugeColors colors_;
    bool counting_ = false;
    CountdownListener* NotifyWindow = nullptr;
    GaugeTimer* timer_ = nullptr;
    GaugeView* view_ = nullptr;
};

} // namespace steward
