#include "terminal/AnsiWindow.h"

#include "base/ColorCode.h"

namespace steward {

void AnsiWindow::Paint(DrawingLayer& layer, bool erase)
{
    if (erase) {
        layer.SetBkColor(BackColor);
        Fill(layer, {0, 0, ClientRect.right, TextTop});
        Fill(layer, {0, 0, TextLeft, ClientRect.bottom});
    }
    PaintText(layer);
}

void AnsiWindow::PaintText(DrawingLayer& layer)
{
    layer.SetTextColor(TextColor);
    layer.SetBkColor(BackColor);
    Stacks.PushFore(layer);
    Stacks.PushBack(layer);
    if (Rows < 1) {
        Fill(layer, {0, 0, ClientRect.right, ClientRect.bottom});
        return;
    }
    TextBuffer& shown = DisplayedBuffer();
    if (Frozen)
        shown.SeekLine(TopLine);
    else
        shown.SeekFromEnd(Rows);
    Stacks.ForeDepth = 0;
    Stacks.BackDepth = 0;
    const bool active = host_.IsActiveChild();
    const TailSplit split = CurrentSplit();
    const std::int32_t viewBottom = ViewBottom();
    std::int32_t x = TextLeft;
    std::int32_t y = TextTop;
    while (y + LineHeight <= viewBottom) {
        x = PaintRow(layer, shown, y, active);
        y += LineHeight;
    }
    if (split.TailRows > 0) {
        x = PaintLiveTail(layer, y, split.TailRows);
        y += (SPLIT_BAR_ROWS + split.TailRows) * LineHeight;
    }
    layer.SetTextColor(TextColor);
    layer.SetBkColor(BackColor);
    Fill(layer, {0, y, ClientRect.right, ClientRect.bottom});
    if ((!Frozen || split.TailRows > 0) && options_.ShowCursor && IsGameWindow())
        layer.TextOutA(x, y - LineHeight, "_", 1);
}

// The bar, a line across the middle of its row, then the last rows of the LiveBuffer; returns
// the x behind the last row's text. The live end shows no selection: it is not tracked while
// the view is frozen.
std::int32_t AnsiWindow::PaintLiveTail(DrawingLayer& layer, std::int32_t y, std::int32_t rows)
{
    layer.SetBkColor(BackColor);
    Fill(layer, {0, y, ClientRect.right, y + LineHeight});
    const std::int32_t middle = y + LineHeight / 2;
    layer.SetBkColor(TextColor);
    Fill(layer, {0, middle - 1, ClientRect.right, middle + 1});
    layer.SetTextColor(TextColor);
    layer.SetBkColor(BackColor);
    Stacks.ForeDepth = 0;
    Stacks.BackDepth = 0;
    LiveBuffer->SeekFromEnd(rows);
    std::int32_t x = TextLeft;
    for (std::int32_t row = 0; row < rows; ++row)
        x = PaintRow(layer, *LiveBuffer, y + (SPLIT_BAR_ROWS + row) * LineHeight, false);
    return x;
}

// Draws one row and returns the x behind its text.
std::int32_t AnsiWindow::PaintRow(DrawingLayer& layer, TextBuffer& shown, std::int32_t y,
                                  bool active)
{
    std::int32_t limit = READ_LINE_LIMIT;
    bool selectionSeen = false;
    shown.ReadLine(line_, limit, active, &selectionSeen);
    if (selectionSeen) {
        layer.SetTextColor(TextColor);
        layer.SetBkColor(BackColor);
    }
    std::int32_t x = TextLeft;
    const unsigned char* at = reinterpret_cast<const unsigned char*>(line_);
    do {
        if (IsColorCode(*at)) {
            ApplyColorCode(layer, *at++, selectionSeen);
            continue;
        }
        const unsigned char* run = at;
        std::int32_t width = 0;
        for (; *at != '\0' && !IsColorCode(*at); ++at)
            width += CharWidth[*at];
        layer.ExtTextOutA(x, y, {x, y, x + width, y + LineHeight},
                          reinterpret_cast<const char*>(run), static_cast<std::int32_t>(at - run));
        x += width;
    } while (*at != '\0');
    if (x < ClientRect.right) {
        Stacks.PushBack(layer);
        layer.SetBkColor(BackColor);
        Fill(layer, {x, y, ClientRect.right, y + LineHeight});
        Stacks.PopBack(layer);
    }
    return x;
}

void AnsiWindow::ApplyColorCode(DrawingLayer& layer, unsigned char code, bool selectionSeen)
{
    if (code == COLOR_INVERSE_ON) {
        Stacks.PushBack(layer);
        Stacks.PushFore(layer);
        layer.SetTextColor(BackColor);
        layer.SetBkColor(TextColor);
    } else if (code == COLOR_INVERSE_OFF) {
        Stacks.PopBack(layer);
        Stacks.PopFore(layer);
    } else if (selectionSeen) {
        return;
    } else if (code < COLOR_BACKGROUND) {
        Stacks.PushFore(layer);
        layer.SetTextColor(Palette[code - COLOR_FOREGROUND]);
    } else if (code < COLOR_FOREGROUND_OFF) {
        Stacks.PushBack(layer);
        layer.SetBkColor(Palette[code - COLOR_BACKGROUND]);
    } else if (code == COLOR_FOREGROUND_OFF) {
        Stacks.PopFore(layer);
    } else {
        Stacks.PopBack(layer);
    }
}

void AnsiWindow::Fill(DrawingLayer& layer, const Rect& rect)
{
    layer.ExtTextOutA(rect.left, rect.top, rect, "", 0);
}

} // namespace steward
