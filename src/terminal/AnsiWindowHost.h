#pragma once

#include "config/BinaryRecords.h"
#include "config/IniStore.h"
#include "terminal/DrawingLayer.h"
#include "terminal/TextBuffer.h"

#include <cstdint>
#include <string>

namespace steward {

// The measurements of a font that the window keeps: row height, overhang and the width of
// every byte value.
struct FontMeasure {
    std::int32_t Height = 0;
    std::int32_t Overhang = 0;
    CharWidthTable Widths{};
};

// Everything a text window needs of the window system around it. The bell of its text comes
// through the BellListener part; its placement, which the profile keeps, through the
// PlacementTarget part, whose UpdateWindow also carries out a pending paint at once.
class AnsiWindowHost : public BellListener, public PlacementTarget {
  public:
    // The client area, without the scroll bar.
    virtual Rect GetClientRect() const = 0;
    // Asks for a paint later, when the queue is idle; erase also clears the two bands left of
    // and above the rows.
    virtual void InvalidateRect(bool erase) = 0;
    // The live text grew from position on, which was its write position before the append;
    // a host without a screen reader to tell has nothing to do.
    virtual void TextAppended(TextBuffer::Position) {}
    virtual void SetScrollRange(std::int32_t minimum, std::int32_t maximum, bool redraw) = 0;
    virtual void SetScrollPos(std::int32_t position, bool redraw) = 0;
    // Whether this window is the active child of the text area.
    virtual bool IsActiveChild() const = 0;
    // Typing always goes to the command line, never to a text window.
    virtual void FocusCommandLine() = 0;
    // The window's title becomes empty once a label is set.
    virtual void ClearTitle() = 0;
    // Makes the font of the record the window's font, or the system's fixed-pitch font for a
    // null record; reads the font in use back into inUse and measures it.
    virtual void SelectFont(const LogFontRecord* record, LogFontRecord& inUse,
                            FontMeasure& measure) = 0;
    // Colour dialog on color; true and color changed when the user confirms. The foreground
    // rule asks for solid colours on a screen of fewer than 16 bits per pixel.
    virtual bool PickColor(COLORREF& color, bool foregroundRule) = 0;
    // Font dialog on font; true and record filled when the user confirms.
    virtual bool PickFont(const LogFontRecord& font, LogFontRecord& record) = 0;
    // Puts the bytes on the clipboard as text, each byte one Latin-1 character.
    virtual void SetClipboardText(const std::string& text) = 0;
    // A click in a text window collapses the command line's selection to its end, so that
    // Copy then takes the window's selection.
    virtual void DropCommandLineSelection() = 0;
};

} // namespace steward
