#include "terminal/AnsiWindow.h"

#include <cstdint>

namespace steward {

bool AnsiWindow::Find(std::string_view needle, SearchDirection direction, bool matchCase)
{
    // The search runs over the frozen copy, so the text holds still while it is read.
    const bool wasFrozen = Frozen;
    if (!Frozen)
        FreezeView();
    const TextBuffer& shown = DisplayedBuffer();
    std::int32_t low = 0;
    std::int32_t high = 0;
    shown.SelectionRange(low, high);
    std::int32_t from = direction == SearchDirection::Older ? INT32_MAX : 0;
    if (low != high)
        from = direction == SearchDirection::Older ? low : low + 1;
    const TextHit hit = FindText(shown, needle, from, direction, matchCase);
    if (!hit.Found()) {
        if (!wasFrozen)
            ThawView();
        return false;
    }
    ShowHit(hit);
    return true;
}

// Selects the hit and puts its line a third of the way down the frozen rows; a hit on the last
// page thaws the view, which takes the selection along.
void AnsiWindow::ShowHit(const TextHit& hit)
{
    TextBuffer& shown = DisplayedBuffer();
    shown.SetSelection(hit.Start, hit.End);
    if (Frozen) {
        const TextBuffer::Position start = shown.AdvancePos(shown.GetHeadPos(), hit.Start);
        TopLine = shown.LineIndexOf(start) - CurrentSplit().ViewRows / 3;
        ClampView(false);
    }
    host_.InvalidateRect(false);
}

} // namespace steward
