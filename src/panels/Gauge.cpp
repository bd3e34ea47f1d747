#include "panels/Gauge.h"

#include "base/ByteText.h"

#include <cstdio>

namespace steward {

Gauge::Gauge(const char* label, std::uint32_t flags, bool horizontal, GaugeColors colors)
    : GaugeFlags(flags), Horizontal(horizontal), colors_(colors)
{
    CopyCut(GaugeLabel, sizeof GaugeLabel, label);
}

void Gauge::Repaint(bool erase)
{
    if (view_)
        view_->Repaint(erase);
}

void Gauge::SetValue(std::int32_t value)
{
    Value = value;
    Repaint(false);
}

void Gauge::SetMin(std::int32_t minimum)
{
    Minimum = minimum;
    Repaint(false);
}

void Gauge::SetMax(std::int32_t maximum)
{
    Maximum = maximum;
    Repaint(false);
}

void Gauge::SetFlags(std::uint32_t flags)
{
    GaugeFlags = flags;
    Repaint(false);
}

void Gauge::Fill()
{
    Value = Maximum;
    Repaint(false);
}

void Gauge::SetColors(const GaugeColors& colors)
{
    colors_ = colors;
    Repaint(true);
}

bool Gauge::MenuCommand(int command, const GaugeColorPicker& pick)
{
    std::uint32_t* color = command == GAUGE_MENU_BAR_COLOR    ? &colors_.BarColor
                           : command == GAUGE_MENU_BACK_COLOR ? &colors_.GaugeBackColor
                                                              : nullptr;
    if (!color)
        return false;
    pick(*color);
    Repaint(true);
    return true;
}

void Gauge::SetText(const char* text)
{
    CopyCut(CustomText, sizeof CustomText, text);
    Repaint(false);
}

void Gauge::StartCountdown(CountdownListener* notify)
{
    if (counting_ && timer_)
        timer_->StopTimer(*this);
    GaugeFlags |= GF_SECONDS;
    NotifyWindow = notify;
    Value = Maximum;
    counting_ = true;
    if (timer_)
        timer_->StartTimer(*this, GAUGE_TICK_MS);
    Repaint(false);
}

void Gauge::StopCountdown(CountdownListener* notify)
{
    if (!counting_)
        return;
    if (timer_)
        timer_->StopTimer(*this);
    counting_ = false;
    NotifyWindow = notify;
    Value = Minimum;
    Repaint(false);
}

void Gauge::Tick()
{
    Value -= GAUGE_TICK_MS;
    if (Value <= Minimum) {
        Value = Minimum;
        if (counting_ && timer_)
            timer_->StopTimer(*this);
        counting_ = false;
        if (NotifyWindow)
            NotifyWindow->CountdownDone(*this);
    }
    Repaint(false);
}

const char* Gauge::BuildText(char* out, std::size_t size) const
{
    if (size == 0)
        return out;
    out[0] = '\0';
    if (GaugeFlags & GF_CUSTOMTEXT) {
        CopyCut(out, size, CustomText);
    } else if (Value > Minimum || !(GaugeFlags & GF_HIDEATMIN)) {
        const long divisor = (GaugeFlags & GF_SECONDS) ? 1000 : 1;
        const std::uint32_t parts[3] = {GF_SHOWVALUE, GF_SHOWMIN, GF_SHOWMAX};
        const long numbers[3] = {Value / divisor, Minimum / divisor, Maximum / divisor};
        std::size_t used = 0;
        for (int i = 0; i < 3; ++i) {
            if (!(GaugeFlags & parts[i]) || used >= size)
                continue;
            int n = std::snprintf(out + used, size - used, used ? "/%ld" : "%ld", numbers[i]);
            if (n > 0)
                used += static_cast<std::size_t>(n);
        }
    }
    if (GaugeFlags & GF_NOTEXT)
        out[0] = '\0';
    return out;
}

Rect Gauge::BarRect(const Rect& client) const
{
    Rect bar = client;
    if (Value <= Minimum) {
        bar.right = bar.left;
        return bar;
    }
    if (Value >= Maximum)
        return bar;
    const long long range = static_cast<long long>(Maximum) - Minimum;
    const long long side = Horizontal ? client.right - client.left : client.bottom - client.top;
    long long n = side * Value / range;
    if (n < 1)
        n = 0;
    if (Horizontal)
        bar.right = client.left + static_cast<int>(n);
    else
        bar.top = client.bottom - static_cast<int>(n);
    return bar;
}

bool Gauge::HasTicks() const
{
    return !(GaugeFlags & GF_NOTICKS) && Value > Minimum;
}

void Gauge::TickPositions(const Rect& client, int positions[3]) const
{
    const int width = client.right - client.left;
    const int height = client.bottom - client.top;
    const bool wide = width > height;
    const int q = wide ? width / 4 : height / 4;
    const int start = wide ? client.left : client.top;
    for (int i = 0; i < 3; ++i)
        positions[i] = start + (i + 1) * q;
}

} // namespace steward
