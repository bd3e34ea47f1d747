#include "terminal/AnsiWindow.h"

#include <algorithm>

namespace steward {

void AnsiWindow::FreezeView()
{
    LiveBuffer->CopyBufferTo(*ViewBuffer);
    ViewLines = ViewBuffer->CountLines();
    if (ViewLines <= Rows)
        return;
    Frozen = true;
    host_.SetScrollRange(0, ViewLines - Rows, false);
    TopLine = NO_TOP_LINE;
}

void AnsiWindow::ThawView()
{
    if (!Frozen)
        return;
    ViewBuffer->CopySelectionTo(*LiveBuffer);
    Frozen = false;
    TopLine = NO_TOP_LINE;
    host_.SetScrollRange(0, LIVE_SCROLL_MAX, false);
    host_.SetScrollPos(LIVE_SCROLL_MAX, true);
}

void AnsiWindow::ClampView(bool repaint)
{
    if (!Frozen)
        return;
    if (TopLine < 0)
        TopLine = 0;
    if (TopLine + Rows > ViewLines - 1)
        ThawView();
    if (Frozen)
        host_.SetScrollPos(TopLine, true);
    if (repaint)
        host_.InvalidateRect(false);
}

void AnsiWindow::PrepareScrollBack()
{
    if (Frozen)
        return;
    FreezeView();
    TopLine = ViewLines - Rows;
}

void AnsiWindow::ScrollUpOne(bool repaint)
{
    PrepareScrollBack();
    --TopLine;
    ClampView(repaint);
}

void AnsiWindow::ScrollDownOne(bool repaint)
{
    ++TopLine;
    ClampView(repaint);
}

void AnsiWindow::ApplyScrollCommand(int command, std::int32_t thumb)
{
    const std::int32_t before = TopLine;
    switch (command) {
    case SB_LINEUP:
        PrepareScrollBack();
        --TopLine;
        break;
    case SB_LINEDOWN:
        ++TopLine;
        break;
    case SB_PAGEUP:
        PrepareScrollBack();
        TopLine -= Rows;
        break;
    case SB_PAGEDOWN:
        TopLine += Rows;
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        if (Frozen) {
            TopLine = thumb;
        } else {
            FreezeView();
            // The live thumb is a percentage; 64-bit so that no thumb value can overflow.
            const std::int64_t percent = static_cast<std::int64_t>(ViewLines) * thumb / 100;
            TopLine = static_cast<std::int32_t>(percent) - Rows / 2;
        }
        break;
    case SB_TOP:
        PrepareScrollBack();
        TopLine = 0;
        break;
    case SB_BOTTOM:
        TopLine = ViewLines;
        break;
    default:
        break;
    }
    if (TopLine != before)
        ClampView(true);
}

TailSplit AnsiWindow::CurrentSplit() const
{
    if (!Frozen || !steward_ || !steward_->IsOn(SHOW_LIVE_TAIL))
        return {Rows, 0};
    return SplitRows(Rows, wantedTailRows_);
}

std::int32_t AnsiWindow::ViewBottom() const
{
    const TailSplit split = CurrentSplit();
    return split.TailRows > 0 ? TextTop + split.ViewRows * LineHeight : ClientRect.bottom;
}

void AnsiWindow::SetTailRows(std::int32_t rows)
{
    const std::int32_t before = CurrentSplit().TailRows;
    wantedTailRows_ = std::max(rows, MIN_PANE_ROWS);
    if (CurrentSplit().TailRows != before)
        host_.InvalidateRect(false);
}

void AnsiWindow::KeepTopLineAfterResize()
{
    const TextBuffer::Position top = ViewBuffer->SeekLine(TopLine);
    ViewBuffer->SetGeometry(TextLeft, ClientRect.right - ClientRect.left, CharWidth);
    ViewBuffer->Rewrap();
    ViewLines = ViewBuffer->CountLines();
    host_.SetScrollRange(0, ViewLines - 1, false);
    TopLine = ViewBuffer->LineIndexOf(top);
    ClampView(true);
}

} // namespace steward
