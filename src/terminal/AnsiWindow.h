#pragma once

#include "config/BinaryRecords.h"
#include "config/Settings.h"
#include "config/StewardOptions.h"
#include "terminal/AnsiWindowHost.h"
#include "terminal/ColorStacks.h"
#include "terminal/DrawingLayer.h"
#include "terminal/PromptState.h"
#include "terminal/ScrollCommand.h"
#include "terminal/TailSplit.h"
#include "terminal/TextBuffer.h"
#include "terminal/TextSearch.h"
#include "terminal/TextWindowServices.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace steward {

constexpr std::size_t SECTION_NAME_SIZE = 256;
constexpr std::size_t WINDOW_NAME_SIZE = 64;
constexpr std::size_t LABEL_SIZE = 128;

// Text starts this many pixels right of the client area's left edge.
constexpr std::int32_t TEXT_LEFT = 4;
// A font that measures less than one pixel high gets rows of this height.
constexpr std::int32_t FALLBACK_LINE_HEIGHT = 8;
// While live, the scroll bar stands at the bottom of this artificial range.
constexpr std::int32_t LIVE_SCROLL_MAX = 100;
// TopLine while live; every freeze replaces it.
constexpr std::int32_t NO_TOP_LINE = -100;

// What a text window is built from. ProfilePath is the profile's .Dat file that the window
// reads its font and colours from when it is made (null gives the defaults); Prompt is given
// to the Game window only, which also draws the cursor.
struct AnsiWindowParts {
    AnsiWindowHost& Host;
    const Settings& Options;
    const char* ProfilePath;
    PromptState* Prompt = nullptr;
    // Null leaves the popup menu's file, editor and frame commands without effect.
    TextWindowServices* Services = nullptr;
    // The program's own options, read as they change; null keeps the standard behaviour.
    const StewardOptions* Steward = nullptr;
    // A larger ring than the window's standard one, in bytes; a smaller one is not taken.
    std::uint32_t ScrollbackBytes = 0;
};

// One text window: its two buffers, layout, colours and font measurements, the frozen view of
// its scrollback, and the painting of its rows. Each window message is a call of its name.
class AnsiWindow : public FontTarget {
  public:
    // Null when a buffer cannot be made.
    static std::unique_ptr<AnsiWindow> Create(const char* name, const AnsiWindowParts& parts);

    AnsiWindow(const AnsiWindow&) = delete;
    AnsiWindow& operator=(const AnsiWindow&) = delete;

    // Window messages of the program.
    void SetName(const char* text);
    void SetLogFont(const LogFontRecord& record);
    COLORREF GetBkColor() const { return BackColor; }
    COLORREF GetTextColor() const { return TextColor; }
    std::uint16_t GetText(char* out, std::uint16_t room) const;
    int AppendText(const char* text, bool lineFeedFirst = false);
    void EndScrollback();
    std::int32_t GetLineCount() const { return LiveBuffer->CountLines(); }
    std::int32_t GetViewLineCount() const { return ViewBuffer->CountLines(); }
    // Writes the window's font, placement and colours to the profile's .Dat file.
    [[nodiscard]] bool SaveState(const std::string& profilePath);
    // Null when no buffer can be made; the caller owns the copy.
    std::unique_ptr<TextBuffer> CloneBuffer() const;
    void RestoreBuffer(std::unique_ptr<TextBuffer> buffer);
    void SetLabel(const char* text);
    // out has room for LABEL_SIZE bytes.
    std::size_t GetLabel(char* out) const;
    bool HasSelection() const;

    // Events of the window system.
    // Takes a new font; a null record gives the system's fixed-pitch font.
    void SetFont(const LogFontRecord* record, bool redraw) override;
    const LogFontRecord& GetFont() const { return Font; }
    // The window was resized: lays out again from the host's client area; a minimised window
    // changes nothing.
    void Size(bool minimized);
    void Paint(DrawingLayer& layer, bool erase);
    void VScroll(int command, std::int32_t thumb);
    // The window became active or inactive: the selection shows only in the active window.
    void MdiActivate();

    // The popup menu's Appearance commands.
    void ChangeForegroundColor();
    void ChangeBackgroundColor();
    void ChangeFont();

    void PaintText(DrawingLayer& layer);

    // The mouse and the selection, on the displayed buffer. Points are client coordinates.
    TextBuffer::Position PosFromPoint(std::int32_t x, std::int32_t y);
    void LButtonDown(std::int32_t x, std::int32_t y, bool shift);
    void MouseMove(std::int32_t x, std::int32_t y);
    // The end of a drag, by the button's release or a lost capture.
    void EndDrag();
    void LButtonDblClk(std::int32_t x, std::int32_t y);
    bool IsDragging() const { return Dragging; }
    // Copy puts the selection on the clipboard; Clear drops the selection, not the text.
    void Copy();
    void Clear();

    // The popup menu's commands on the whole LiveBuffer.
    void CopyAllToClipboard();
    void CopyAllToFile();
    void EditAll();
    void SaveScrollback(const std::string& text);

    // The frozen view of the scrollback.
    void FreezeView();
    void ThawView();
    void ClampView(bool repaint);
    void ScrollUpOne(bool repaint);
    void ScrollDownOne(bool repaint);
    void ApplyScrollCommand(int command, std::int32_t thumb);

    // The live tail below a frozen view, when that option is on and the window is high enough.
    TailSplit CurrentSplit() const;
    // The top of the bar between the two panes; only meaningful while a tail shows.
    std::int32_t SplitBarTop() const { return TextTop + CurrentSplit().ViewRows * LineHeight; }
    // Where the frozen view's rows end: the bar while a tail shows, else the client area's end.
    std::int32_t ViewBottom() const;
    // The bar was dragged: the tail keeps this many rows, as far as the window allows.
    void SetTailRows(std::int32_t rows);

    // Finds needle from the selection of the displayed buffer (or the end, or the start,
    // without one), scrolling back to show it selected; false, and the view as it was, when
    // there is none.
    bool Find(std::string_view needle, SearchDirection direction, bool matchCase);

    bool IsFrozen() const { return Frozen; }
    bool IsGameWindow() const { return prompt_ != nullptr; }
    std::int32_t GetTopLine() const { return TopLine; }
    std::int32_t GetViewLines() const { return ViewLines; }
    std::int32_t GetRows() const { return Rows; }
    std::int32_t GetTextTop() const { return TextTop; }
    std::int32_t GetTextLeft() const { return TextLeft; }
    std::int32_t GetLineHeight() const { return LineHeight; }
    const Rect& GetClientRect() const { return ClientRect; }
    const CharWidthTable& GetCharWidth() const { return CharWidth; }
    const char* GetWindowName() const { return WindowName; }
    const char* GetSectionName() const { return SectionName; }
    TextBuffer& GetLiveBuffer() { return *LiveBuffer; }
    TextBuffer& GetViewBuffer() { return *ViewBuffer; }
    // The ViewBuffer while frozen, else the LiveBuffer.
    TextBuffer& DisplayedBuffer() { return Frozen ? *ViewBuffer : *LiveBuffer; }
    const TextBuffer& DisplayedBuffer() const { return Frozen ? *ViewBuffer : *LiveBuffer; }

  private:
    AnsiWindow(const AnsiWindowParts& parts, std::unique_ptr<TextBuffer> live,
               std::unique_ptr<TextBuffer> view);

    // The appends of AppendText; false when the prompt rule dropped the text.
    bool StoreText(const char* text, bool lineFeedFirst);
    void LoadColors(const char* profilePath);
    void LoadFont(const char* profilePath);
    void Layout();
    void KeepTopLineAfterResize();
    void PrepareScrollBack();
    void ChangeColor(COLORREF& color, bool foregroundRule);
    std::int32_t PaintRow(DrawingLayer& layer, TextBuffer& shown, std::int32_t y, bool active);
    std::int32_t PaintLiveTail(DrawingLayer& layer, std::int32_t y, std::int32_t rows);
    void ShowHit(const TextHit& hit);
    void ApplyColorCode(DrawingLayer& layer, unsigned char code, bool selectionSeen);
    void Fill(DrawingLayer& layer, const Rect& rect);
    void RepaintNow();

    AnsiWindowHost& host_;
    const Settings& options_;
    PromptState* prompt_;
    TextWindowServices* services_;
    const StewardOptions* steward_;
    std::int32_t wantedTailRows_ = DEFAULT_TAIL_ROWS;

    std::unique_ptr<TextBuffer> LiveBuffer;
    std::unique_ptr<TextBuffer> ViewBuffer;
    std::int32_t TopLine = NO_TOP_LINE;
    std::int32_t ViewLines = 0;
    CharWidthTable CharWidth{};
    bool Frozen = false;
    Rect ClientRect;
    std::int32_t Rows = 0;
    std::int32_t TextLeft = TEXT_LEFT;
    std::int32_t TextTop = 0;
    COLORREF TextColor = 0;
    COLORREF BackColor = 0;
    LogFontRecord Font;
    std::int32_t Overhang = 0;
    std::int32_t LineHeight = FALLBACK_LINE_HEIGHT;
    char SectionName[SECTION_NAME_SIZE] = {};
    char WindowName[WINDOW_NAME_SIZE] = {};
    char Label[LABEL_SIZE] = {};
    ColorStacks Stacks;
    bool Dragging = false;
    // The position last given to the selection by a drag.
    static constexpr TextBuffer::Position NO_DRAG_POS = UINT32_MAX;
    TextBuffer::Position LastDragPos = NO_DRAG_POS;
    // Filled by ReadLine on each painted row, so painting allocates nothing.
    char line_[READ_LINE_BUFFER_SIZE] = {};
};

// "Ga" at the start of the name asks for the large ring.
std::uint32_t BufferCapacityFor(const char* name);

} // namespace steward
