#pragma once

#include "commands/KeyboardHost.h"

namespace steward {

class ChildWindowSet;
class Desktop;
class FrameWindow;
class GameLink;
class ScriptControl;
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
    bool ScriptRunning() const override;
    void AbortScript() override;
    void EndScrollback() override;
    void SetFrameTitle(const char* title) override;
    const char* CurrentCharacter() const override;
    // Puts the active text window's selection on the clipboard.
    void CopyFromActiveChild() override;
    void PostClose() override;
    bool AskString(const char* title, char* answer, std::size_t capacity) override;
    void PumpFor(int seconds) override;
    void Trace(const char* line) override;

    // The scripts come after the keyboard, whose state they share.
    void SetScripts(ScriptControl& scripts) { scripts_ = &scripts; }

  private:
    Links links_;
    ScriptControl* scripts_ = nullptr;
};

} // namespace steward
