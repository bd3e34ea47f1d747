#pragma once

#include "commands/KeyboardHost.h"

#include <functional>

namespace steward {

class ChildWindowSet;
class CommandLine;
class Desktop;
class FrameWindow;
class GameLink;
class ScriptControl;
struct Session;

// Serves messages for the seconds, clipped to 1..29, in a nested loop that a quit also ends.
void PumpFor(int seconds);

// The keyboard's host: rest mode, the text windows and the frame as keys and macros reach them.
class QtKeyboardHost : public KeyboardHost {
  public:
    struct Links {
        Session& State;
        GameLink& Link;
        ChildWindowSet& Windows;
        FrameWindow& Frame;
        Desktop& Dialogs;
        CommandLine& Line;
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

    // CMD_COPY: the command line's selection, or else the active window's.
    void Copy();
    // CMD_COPY_TO_COMMAND_LINE: the active window's selection is pasted into the command line.
    void CopyToCommandLine();
    // Copy Special: take runs with the active window's selection on the clipboard, which is
    // dropped afterwards; without an active window the clipboard stays as it is.
    void WithSelectionCopied(const std::function<void()>& take);

    // The scripts come after the keyboard, whose state they share.
    void SetScripts(ScriptControl& scripts) { scripts_ = &scripts; }

  private:
    Links links_;
    ScriptControl* scripts_ = nullptr;
};

} // namespace steward
