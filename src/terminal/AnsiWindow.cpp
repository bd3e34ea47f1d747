#include "terminal/AnsiWindow.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace steward {
namespace {

// Copies text into a fixed field, cut so that the NUL always fits.
void CopyCut(char* field, std::size_t size, const char* text)
{
    const std::size_t length = text ? strnlen(text, size - 1) : 0;
    std::memcpy(field, text ? text : "", length);
    field[length] = '\0';
}

} // namespace

std::uint32_t BufferCapacityFor(const char* name)
{
    return std::strncmp(name, "Ga", 2) == 0 ? GAME_BUFFER_CAPACITY : WINDOW_BUFFER_CAPACITY;
}

std::unique_ptr<AnsiWindow> AnsiWindow::Create(const char* name, const AnsiWindowParts& parts)
{
    const std::uint32_t capacity = std::max(BufferCapacityFor(name), parts.ScrollbackBytes);
    std::unique_ptr<TextBuffer> live = TextBuffer::CreateTextBuffer(capacity);
    if (!live)
        return nullptr;
    std::unique_ptr<TextBuffer> view = TextBuffer::CreateTextBuffer(capacity);
    if (!view)
        return nullptr;
    std::unique_ptr<AnsiWindow> window(new (std::nothrow)
                                           AnsiWindow(parts, std::move(live), std::move(view)));
    if (!window)
        return nullptr;
    window->SetName(name);
    window->LoadColors(parts.ProfilePath);
    window->LoadFont(parts.ProfilePath);
    return window;
}

AnsiWindow::AnsiWindow(const AnsiWindowParts& parts, std::unique_ptr<TextBuffer> live,
                       std::unique_ptr<TextBuffer> view)
    : host_(parts.Host), options_(parts.Options), prompt_(parts.Prompt), services_(parts.Services),
      steward_(parts.Steward), LiveBuffer(std::move(live)), ViewBuffer(std::move(view))
{
    ClientRect = host_.GetClientRect();
    LiveBuffer->SetBellListener(&host_);
}

void AnsiWindow::SetName(const char* text)
{
    CopyCut(WindowName, sizeof WindowName, text);
    CopyCut(SectionName, sizeof SectionName, WindowName);
}

void AnsiWindow::SetLogFont(const LogFontRecord& record)
{
    SetFont(&record, true);
}

std::uint16_t AnsiWindow::GetText(char* out, std::uint16_t room) const
{
    return static_cast<std::uint16_t>(LiveBuffer->CopyAsText(out, room));
}

int AnsiWindow::AppendText(const char* text, bool lineFeedFirst)
{
    const TextBuffer::Position before = LiveBuffer->GetWritePos();
    const bool stored = StoreText(text, lineFeedFirst);
    host_.TextAppended(before);
    if (!stored)
        return 1;
    if (Frozen) {
        if (CurrentSplit().TailRows > 0)
            host_.InvalidateRect(false);
        return 1;
    }
    host_.InvalidateRect(false);
    if (!options_.BufferedUpdates)
        host_.UpdateWindow();
    return 1;
}

bool AnsiWindow::StoreText(const char* text, bool lineFeedFirst)
{
    const bool track = !Frozen;
    if (lineFeedFirst)
        LiveBuffer->AppendText("\n", track);
    if (prompt_) {
        const PromptAction action = ApplyPromptRule(*prompt_, text);
        if (action == PromptAction::Drop)
            return false;
        if (action == PromptAction::BreakThenAppend)
            LiveBuffer->AppendText("\n", track);
    }
    LiveBuffer->AppendText(text, track);
    return true;
}

void AnsiWindow::EndScrollback()
{
    ThawView();
    host_.InvalidateRect(false);
}

std::unique_ptr<TextBuffer> AnsiWindow::CloneBuffer() const
{
    std::unique_ptr<TextBuffer> clone = TextBuffer::CreateTextBuffer(LiveBuffer->GetCapacity());
    if (clone)
        LiveBuffer->CopyBufferTo(*clone);
    return clone;
}

void AnsiWindow::RestoreBuffer(std::unique_ptr<TextBuffer> buffer)
{
    if (buffer)
        buffer->CopyBufferTo(*LiveBuffer);
    host_.InvalidateRect(true);
}

void AnsiWindow::SetLabel(const char* text)
{
    if (!text || strnlen(text, LABEL_SIZE) >= LABEL_SIZE)
        return;
    CopyCut(Label, sizeof Label, text);
    host_.ClearTitle();
}

std::size_t AnsiWindow::GetLabel(char* out) const
{
    const std::size_t length = std::strlen(Label);
    std::memcpy(out, Label, length + 1);
    return length;
}

bool AnsiWindow::HasSelection() const
{
    const TextBuffer& shown = DisplayedBuffer();
    return shown.GetSelStart() != shown.GetSelEnd();
}

void AnsiWindow::SetFont(const LogFontRecord* record, bool redraw)
{
    FontMeasure measure;
    host_.SelectFont(record, Font, measure);
    Overhang = measure.Overhang;
    LineHeight = measure.Height < 1 ? FALLBACK_LINE_HEIGHT : measure.Height;
    for (std::size_t c = 0; c < CharWidth.size(); ++c)
        CharWidth[c] = measure.Widths[c] - Overhang;
    Size(false);
    if (redraw) {
        host_.InvalidateRect(true);
        host_.UpdateWindow();
    }
}

void AnsiWindow::Size(bool minimized)
{
    if (minimized)
        return;
    ClientRect = host_.GetClientRect();
    Layout();
    LiveBuffer->SetGeometry(TextLeft, ClientRect.right - ClientRect.left, CharWidth);
    LiveBuffer->Rewrap();
    if (Frozen) {
        KeepTopLineAfterResize();
    } else {
        host_.SetScrollRange(0, LIVE_SCROLL_MAX, false);
        host_.SetScrollPos(LIVE_SCROLL_MAX, true);
    }
    host_.FocusCommandLine();
}

void AnsiWindow::Layout()
{
    TextLeft = TEXT_LEFT;
    const std::int32_t height = ClientRect.bottom - ClientRect.top;
    Rows = (height - LineHeight / 2) / LineHeight;
    TextTop = (height - Rows * LineHeight) / 2 + ClientRect.top;
}

void AnsiWindow::VScroll(int command, std::int32_t thumb)
{
    ApplyScrollCommand(command, thumb);
    host_.FocusCommandLine();
}

void AnsiWindow::MdiActivate()
{
    host_.InvalidateRect(false);
    host_.FocusCommandLine();
}

void AnsiWindow::ChangeForegroundColor()
{
    ChangeColor(TextColor, true);
}

void AnsiWindow::ChangeBackgroundColor()
{
    ChangeColor(BackColor, false);
}

void AnsiWindow::ChangeColor(COLORREF& color, bool foregroundRule)
{
    host_.PickColor(color, foregroundRule);
    host_.InvalidateRect(true);
    host_.FocusCommandLine();
}

void AnsiWindow::ChangeFont()
{
    LogFontRecord record;
    if (host_.PickFont(Font, record))
        SetLogFont(record);
    host_.InvalidateRect(true);
}

} // namespace steward
