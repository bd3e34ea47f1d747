#include "terminal/AnsiWindow.h"

#include "base/ColorCode.h"

#include <algorithm>

namespace steward {

TextBuffer::Position AnsiWindow::PosFromPoint(std::int32_t x, std::int32_t y)
{
    TextBuffer& shown = DisplayedBuffer();
    if (Frozen)
        shown.SeekLine(TopLine);
    else
        shown.SeekFromEnd(Rows);
    if (y < TextTop)
        return shown.GetWalkPos();
    // A point below the window (or the frozen pane) stands for the last row, so no more than a
    // window's rows are read.
    const std::int32_t row =
        std::min((y - TextTop) / LineHeight, std::max(CurrentSplit().ViewRows - 1, 0));
    TextBuffer::Position lineStart = shown.GetWalkPos();
    for (std::int32_t i = 0; i <= row; ++i) {
        lineStart = shown.GetWalkPos();
        std::int32_t limit = READ_LINE_LIMIT;
        shown.ReadLine(line_, limit, false, nullptr);
    }
    if (x <= TextLeft)
        return lineStart;
    std::int32_t pen = TextLeft;
    std::int32_t i = 0;
    for (const unsigned char* at = reinterpret_cast<const unsigned char*>(line_); *at; ++at) {
        if (IsColorCode(*at)) {
            ++i;
            continue;
        }
        const std::int32_t width = CharWidth[*at];
        const std::int32_t half = width / 2;
        if (x >= pen - half && x <= pen + half)
            return shown.AdvancePos(lineStart, i);
        ++i;
        pen += width;
    }
    return shown.AdvancePos(lineStart, i);
}

void AnsiWindow::LButtonDown(std::int32_t x, std::int32_t y, bool shift)
{
    host_.DropCommandLineSelection();
    LastDragPos = NO_DRAG_POS;
    const TextBuffer::Position p = PosFromPoint(x, y);
    TextBuffer& shown = DisplayedBuffer();
    if (!shift) {
        if (shown.BeginSelection(p))
            RepaintNow();
        Dragging = true;
        return;
    }
    if (shown.GetSelStart() == shown.GetSelEnd())
        shown.SelectLine(p);
    else
        shown.MoveSelectionEdge(p);
    RepaintNow();
}

void AnsiWindow::MouseMove(std::int32_t x, std::int32_t y)
{
    if (!Dragging)
        return;
    if (y < 0)
        ScrollUpOne(false);
    else if (y > ViewBottom())
        ScrollDownOne(false);
    const TextBuffer::Position p = PosFromPoint(x, y);
    if (p == LastDragPos)
        return;
    LastDragPos = p;
    DisplayedBuffer().ExtendSelection(p);
    RepaintNow();
}

void AnsiWindow::EndDrag()
{
    LastDragPos = NO_DRAG_POS;
    Dragging = false;
}

void AnsiWindow::LButtonDblClk(std::int32_t x, std::int32_t y)
{
    DisplayedBuffer().SelectWord(PosFromPoint(x, y));
    RepaintNow();
}

void AnsiWindow::Copy()
{
    const std::string text = DisplayedBuffer().SelectionText();
    if (!text.empty())
        host_.SetClipboardText(text);
}

void AnsiWindow::Clear()
{
    DisplayedBuffer().ClearSelection();
    host_.InvalidateRect(false);
}

// A drag shows at once, without waiting for the paint timer.
void AnsiWindow::RepaintNow()
{
    host_.InvalidateRect(false);
    host_.UpdateWindow();
}

} // namespace steward
