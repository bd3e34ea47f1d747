#include "panels/PanelStates.h"

#include "base/ByteText.h"

namespace steward {

void FigureState::SetState(std::uint32_t state)
{
    state_ = state;
    if (view_)
        view_->Repaint();
}

FigureBitmap FigureState::BaseBitmap() const
{
    if (state_ & FIGURE_SITTING)
        return FIGURE_BITMAP_SITTING;
    if (state_ & FIGURE_KNEELING)
        return FIGURE_BITMAP_KNEELING;
    if (!(state_ & FIGURE_LYING))
        return (state_ & FIGURE_DEAD) ? FIGURE_BITMAP_GRAVE : FIGURE_BITMAP_STANDING;
    return FIGURE_BITMAP_LYING;
}

std::size_t FigureState::Overlays(FigureBitmap out[4]) const
{
    if (state_ & FIGURE_DEAD)
        return 0;
    const struct {
        std::uint32_t bit;
        FigureBitmap bitmap;
    } order[] = {{FIGURE_CLOUD, FIGURE_BITMAP_CLOUD},
                 {FIGURE_STARS, FIGURE_BITMAP_STAR},
                 {FIGURE_NET, FIGURE_BITMAP_NET},
                 {FIGURE_BLEEDING, FIGURE_BITMAP_DROP}};
    std::size_t count = 0;
    for (const auto& overlay : order)
        if (state_ & overlay.bit)
            out[count++] = overlay.bitmap;
    return count;
}

void IconState::SetState(std::uint32_t state)
{
    state_ = state;
    if (view_)
        view_->Repaint();
}

void PanelText::SetText(const char* text)
{
    CopyCut(text_, sizeof text_, text ? text : "");
    if (view_)
        view_->Repaint();
}

} // namespace steward
