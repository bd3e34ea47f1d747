#pragma once

#include "terminal/AnsiWindow.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward::testing {

constexpr std::int32_t CELL_WIDTH = 8;
constexpr std::int32_t CELL_HEIGHT = 10;

// One ExtTextOutA or TextOutA, with the colours in force when it was made.
struct DrawCall {
    bool cursor = false;
    std::int32_t x = 0;
    std::int32_t y = 0;
    Rect rect;
    std::string text;
    COLORREF textColor = 0;
    COLORREF backColor = 0;
};

class RecordingLayer : public DrawingLayer {
  public:
    void SetTextColor(COLORREF color) override { text_ = color; }
    COLORREF GetTextColor() const override { return text_; }
    void SetBkColor(COLORREF color) override { back_ = color; }
    COLORREF GetBkColor() const override { return back_; }
    void ExtTextOutA(std::int32_t x, std::int32_t y, const Rect& rect, const char* text,
                     std::int32_t length) override
    {
        calls.push_back({false, x, y, rect, std::string(text, length), text_, back_});
    }
    void TextOutA(std::int32_t x, std::int32_t y, const char* text, std::int32_t length) override
    {
        calls.push_back({true, x, y, {}, std::string(text, length), text_, back_});
    }

    // The text runs of the row whose top is y, joined.
    std::string RowText(std::int32_t y) const
    {
        std::string row;
        for (const DrawCall& call : calls)
            if (!call.cursor && call.y == y)
                row += call.text;
        return row;
    }
    const DrawCall* Cursor() const
    {
        for (const DrawCall& call : calls)
            if (call.cursor)
                return &call;
        return nullptr;
    }

    std::vector<DrawCall> calls;

  private:
    COLORREF text_ = 0x123456;
    COLORREF back_ = 0x654321;
};

struct ScrollState {
    std::int32_t minimum = -1;
    std::int32_t maximum = -1;
    std::int32_t position = -1;
};

// A window system whose font has cells of CELL_WIDTH by CELL_HEIGHT pixels.
class FakeHost : public AnsiWindowHost {
  public:
    Rect GetClientRect() const override { return client; }
    void InvalidateRect(bool erase) override { invalidations.push_back(erase); }
    void UpdateWindow() override { ++updates; }
    void SetScrollRange(std::int32_t minimum, std::int32_t maximum, bool) override
    {
        scroll.minimum = minimum;
        scroll.maximum = maximum;
    }
    void SetScrollPos(std::int32_t position, bool) override { scroll.position = position; }
    bool IsActiveChild() const override { return active; }
    void FocusCommandLine() override { ++focusCalls; }
    void ClearTitle() override { ++titleClears; }
    void SelectFont(const LogFontRecord* record, LogFontRecord& inUse,
                    FontMeasure& measure) override
    {
        inUse = record ? *record : LogFontRecord{};
        const std::int32_t scale = record && record->lfHeight != 0 ? 2 : 1;
        measure.Height = CELL_HEIGHT * scale;
        measure.Overhang = overhang;
        measure.Widths.fill(CELL_WIDTH * scale + overhang);
    }
    bool GetWindowPlacement(WindowPlacementRecord& placement) override
    {
        placement = this->placement;
        return true;
    }
    void SetWindowPlacement(const WindowPlacementRecord& placement) override
    {
        this->placement = placement;
    }
    void ShowWindow(std::uint32_t) override {}
    bool PickColor(COLORREF& color, bool foregroundRule) override
    {
        lastForegroundRule = foregroundRule;
        if (!confirmDialogs)
            return false;
        color = pickedColor;
        return true;
    }
    bool PickFont(const LogFontRecord&, LogFontRecord& record) override
    {
        if (!confirmDialogs)
            return false;
        record = pickedFont;
        return true;
    }
    void Beep() override { ++beeps; }
    void SetClipboardText(const std::string& text) override { clipboard = text; }
    void DropCommandLineSelection() override {}

    Rect client{0, 0, 400, 105};
    bool active = true;
    std::int32_t overhang = 0;
    std::vector<bool> invalidations;
    int updates = 0;
    ScrollState scroll;
    int focusCalls = 0;
    int titleClears = 0;
    int beeps = 0;
    std::string clipboard;
    WindowPlacementRecord placement;
    bool confirmDialogs = true;
    bool lastForegroundRule = false;
    COLORREF pickedColor = 0;
    LogFontRecord pickedFont;
};

class WindowTest : public ::testing::Test {
  protected:
    // A window named name over the host, with the prompt state when it is the Game window.
    std::unique_ptr<AnsiWindow> Make(const char* name, bool game = false)
    {
        return AnsiWindow::Create(name, {host, settings, nullptr, game ? &prompt : nullptr});
    }
    // Appends each text followed by a line feed.
    static void AppendLines(AnsiWindow& window, int count, const char* prefix = "line ")
    {
        for (int i = 0; i < count; ++i) {
            const std::string text = prefix + std::to_string(i) + "\n";
            window.AppendText(text.c_str());
        }
    }
    std::vector<DrawCall> Paint(AnsiWindow& window)
    {
        RecordingLayer layer;
        window.PaintText(layer);
        return layer.calls;
    }

    FakeHost host;
    Settings settings;
    PromptState prompt;
};

} // namespace steward::testing
