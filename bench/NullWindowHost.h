#pragma once

#include "terminal/AnsiWindowHost.h"

namespace steward {

// A window system that shows nothing: a wide client area, cells of 8 by 16 pixels, no dialogs.
class NullWindowHost : public AnsiWindowHost {
  public:
    Rect GetClientRect() const override { return {0, 0, 1000, 808}; }
    void InvalidateRect(bool) override {}
    void UpdateWindow() override {}
    void SetScrollRange(std::int32_t, std::int32_t, bool) override {}
    void SetScrollPos(std::int32_t, bool) override {}
    bool IsActiveChild() const override { return true; }
    void FocusCommandLine() override {}
    void ClearTitle() override {}
    void SelectFont(const LogFontRecord*, LogFontRecord&, FontMeasure& measure) override
    {
        measure.Height = 16;
        measure.Widths.fill(8);
    }
    bool GetWindowPlacement(WindowPlacementRecord&) override { return false; }
    void SetWindowPlacement(const WindowPlacementRecord&) override {}
    void ShowWindow(std::uint32_t) override {}
    bool PickColor(COLORREF&, bool) override { return false; }
    bool PickFont(const LogFontRecord&, LogFontRecord&) override { return false; }
    void Beep() override {}
    void SetClipboardText(const std::string&) override {}
    void DropCommandLineSelection() override {}
};

} // namespace steward
