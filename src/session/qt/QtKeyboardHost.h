#pragma once

#include "commands/KeyboardHost.h"

namespace steward {

class ChildWindowSet;
class Desktop;
class FrameWindow;
class GameLink;
struct Session;

// The keyboard's host: rest mode, the text windows and the frame as keys and macros reach them.
class QtKeyboardHost : public KeyboardHost {
  public:
    struct Links {
        Session& State;
        GameLink& Link;
        ChildWindowSet& Windows;
        FrameWindow& Frame;
        Desktop& Dialogs;
    };

    explicit QtKeyboardHost(const Links& links) : links_(links) {}

    bool RestMode() const override;
    void SetRestMode(bool on) override;
    void PrintToGameWindow(const char* text) override;
    void ScrollActiveChild(int scrollCode) override;
    void NextChildWindow() override;
    void ToggleGameWindowMaximized() override;
    // Waits for the script runner, which will say whether a script is open.
    bool ScriptRunning() const override { return false; }
    // Waits for the script runner, which will close the open script.
    void AbortScript() override {}
    void EndScrollback() override;
    void SetFrameTitle(const char* title) override;
    const char* CurrentCharacter() const override;
    // Waits for copying from the text windows, which will copy the active one's selection.
    void CopyFromActiveChild() override {}
    void PostClose() override;
    bool AskString(const char* title, char* answer, std::size_t capacity) override;
    void PumpFor(int seconds) override;
    void Trace(const char* line) override;

  private:
    Links links_;
};

} // namespace steward
