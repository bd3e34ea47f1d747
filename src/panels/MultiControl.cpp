#include "panels/MultiControl.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace steward {

namespace {

constexpr std::uint32_t GAUGE_FRAME_COLOR = 0x808080;
// Text centred in a horizontal gauge without boxes.
constexpr std::uint32_t GAUGE_BAR_TEXT_COLOR = 0xC0C0C0;
constexpr std::uint32_t PURE_RED = 0x0000FF;
constexpr int TICK_LENGTH = 3;

constexpr int COMPASS_PANEL_WIDTH = 62;
constexpr int COMPASS_PANEL_HEIGHT = 43;
// Each zone's rectangle in a panel of the compass picture: x, y, width, height.
constexpr int COMPASS_ZONE_RECTS[COMPASS_ZONES][4] = {
    {32, 3, 15, 13},  {47, 5, 9, 9},  {45, 14, 13, 15}, {47, 29, 9, 9},
    {32, 27, 15, 13}, {23, 29, 9, 9}, {21, 14, 13, 15}, {23, 5, 9, 9},
    {6, 17, 9, 9},    {3, 3, 15, 13}, {3, 27, 15, 13}};

struct OverlayPlaces {
    FigureBitmap Bitmap;
    int Count;
    int Places[4][2];
};
constexpr OverlayPlaces OVERLAY_PLACES[] = {
    {FIGURE_BITMAP_CLOUD, 1, {{6, 21}}},
    {FIGURE_BITMAP_STAR, 4, {{2, 6}, {8, 0}, {30, 0}, {36, 6}}},
    {FIGURE_BITMAP_NET, 1, {{7, 21}}},
    {FIGURE_BITMAP_DROP, 2, {{5, 14}, {34, 14}}}};

const OverlayPlaces* PlacesOf(FigureBitmap bitmap)
{
    for (const OverlayPlaces& places : OVERLAY_PLACES)
        if (places.Bitmap == bitmap)
            return &places;
    return nullptr;
}

// A value far outside the range would reach past the client area; the bar never does.
Rect ClipTo(Rect bar, const Rect& r)
{
    bar.left = std::max(bar.left, r.left);
    bar.top = std::max(bar.top, r.top);
    bar.right = std::min(bar.right, r.right);
    bar.bottom = std::min(bar.bottom, r.bottom);
    return bar;
}

} // namespace

int NextControlId()
{
    static int next = FIRST_CONTROL_ID;
    return next++;
}

void ControlHandler::AccessibleValue(char* out, std::size_t size) const
{
    if (size > 0)
        out[0] = '\0';
}

TextBoxHandler::TextBoxHandler(const char* text, std::uint32_t boxColor) : BoxColor(boxColor)
{
    own_.SetText(text);
}

void TextBoxHandler::Paint(PanelCanvas& canvas, int width, int height)
{
    std::memcpy(painted_.data(), text_.Text(), painted_.size());
    paintedColor_ = BoxColor;
    paintedOnce_ = true;
    canvas.FillColor({0, 0, width, height}, BoxColor);
    canvas.DrawBoxText(0, -3, text_.Text(), BOX_TEXT_COLOR);
}

bool TextBoxHandler::NeedsPaint() const
{
    return !paintedOnce_ || paintedColor_ != BoxColor ||
           std::strncmp(painted_.data(), text_.Text(), painted_.size()) != 0;
}

bool GaugeHandler::Look::operator==(const Look& o) const
{
    return Minimum == o.Minimum && Maximum == o.Maximum && Value == o.Value && Flags == o.Flags &&
           Colors.GaugeTextColor == o.Colors.GaugeTextColor &&
           Colors.BarColor == o.Colors.BarColor &&
           Colors.GaugeBackColor == o.Colors.GaugeBackColor && Text == o.Text;
}

GaugeHandler::Look GaugeHandler::Current() const
{
    Look look{gauge_.GetMin(),   gauge_.GetMax(), gauge_.GetValue(),
              gauge_.GetFlags(), gauge_.Colors(), {}};
    std::memcpy(look.Text.data(), gauge_.Text(), look.Text.size());
    return look;
}

bool GaugeHandler::NeedsPaint() const
{
    return !paintedOnce_ || !(Current() == painted_);
}

void GaugeHandler::Paint(PanelCanvas& canvas, int width, int height)
{
    painted_ = Current();
    paintedOnce_ = true;
    DrawBevel(canvas, {0, 0, width, height}, GAUGE_FRAME_COLOR, GAUGE_FRAME_COLOR);
    const Rect r{1, 1, width - 1, height - 1};
    const GaugeColors& colors = gauge_.Colors();
    canvas.FillColor(r, colors.GaugeBackColor);
    if (gauge_.GetValue() > gauge_.GetMin())
        canvas.FillColor(ClipTo(gauge_.BarRect(r), r), colors.BarColor);
    if (gauge_.HasTicks()) {
        int at[3];
        gauge_.TickPositions(r, at);
        const bool wide = r.right - r.left > r.bottom - r.top;
        for (int position : at) {
            if (wide)
                canvas.DrawLine(position, r.bottom - 1, position, r.bottom - TICK_LENGTH,
                                colors.GaugeTextColor);
            else
                canvas.DrawLine(r.left, position, r.left + 2, position, colors.GaugeTextColor);
        }
    }
    char text[GAUGE_CUSTOM_TEXT_SIZE];
    gauge_.BuildText(text, sizeof text);
    if (!text[0])
        return;
    if (gauge_.GetFlags() & GF_BOXES) {
        if (valueBox_)
            valueBox_->SetText(text);
    } else if (gauge_.IsHorizontal()) {
        DrawTextCentered(canvas, font_, {r.left, r.top + 1, r.right, r.bottom}, text,
                         GAUGE_BAR_TEXT_COLOR);
    } else {
        DrawTextStacked(canvas, font_, {r.left, r.top, r.right + 2, r.bottom}, text,
                        colors.GaugeTextColor);
    }
}

void GaugeHandler::AccessibleValue(char* out, std::size_t size) const
{
    const long scale = (gauge_.GetFlags() & GF_SECONDS) ? 1000 : 1;
    const long value = gauge_.GetValue() / scale;
    if (gauge_.GetFlags() & GF_SHOWMAX)
        std::snprintf(out, size, "%ld of %ld", value, gauge_.GetMax() / scale);
    else
        std::snprintf(out, size, "%ld", value);
}

void CompassHandler::Paint(PanelCanvas& canvas, int, int)
{
    paintedOnce_ = true;
    canvas.DrawPicture(0, 0, COMPASS_PANEL_WIDTH, COMPASS_PANEL_HEIGHT, 0, 0);
    for (std::size_t zone = 0; zone < COMPASS_ZONES; ++zone) {
        const ExitState state = compass_.Zone(zone);
        painted_[zone] = state;
        if (state == EXIT_NONE)
            continue;
        const int* z = COMPASS_ZONE_RECTS[zone];
        canvas.DrawPicture(z[0], z[1], z[2], z[3], z[0] + COMPASS_PANEL_WIDTH * state, z[1]);
    }
}

bool CompassHandler::NeedsPaint() const
{
    for (std::size_t zone = 0; zone < COMPASS_ZONES; ++zone)
        if (painted_[zone] != compass_.Zone(zone))
            return true;
    return !paintedOnce_;
}

void FigureHandler::Paint(PanelCanvas& canvas, int width, int height)
{
    painted_ = figure_.GetState();
    paintedOnce_ = true;
    canvas.DrawMappedBitmap(figure_.BaseBitmap(), 0, 0);
    FigureBitmap overlays[4];
    const std::size_t count = figure_.Overlays(overlays);
    for (std::size_t i = 0; i < count; ++i) {
        const OverlayPlaces* places = PlacesOf(overlays[i]);
        if (!places)
            continue;
        if (overlays[i] == FIGURE_BITMAP_DROP)
            DrawBevel(canvas, {0, 0, width, height}, PURE_RED, PURE_RED);
        for (int p = 0; p < places->Count; ++p)
            canvas.DrawMappedBitmap(overlays[i], places->Places[p][0], places->Places[p][1]);
    }
}

bool FigureHandler::NeedsPaint() const
{
    return !paintedOnce_ || painted_ != figure_.GetState();
}

void IconHandler::Paint(PanelCanvas& canvas, int width, int height)
{
    painted_ = icon_.Held();
    paintedOnce_ = true;
    canvas.DrawPicture(0, 0, width, height, painted_ ? 0 : width, 0);
}

bool IconHandler::NeedsPaint() const
{
    return !paintedOnce_ || painted_ != icon_.Held();
}

void PaintToolButton(PanelCanvas& canvas, int faceWidth, int height, bool pressed)
{
    canvas.DrawPicture(0, 0, faceWidth, height, pressed ? faceWidth : 0, 0);
}

} // namespace steward
