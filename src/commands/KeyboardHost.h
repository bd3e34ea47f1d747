#pragma once

#include <cstddef>

namespace steward {

// What the keyboard needs of the frame and its windows besides the command line and the queue.
class KeyboardHost {
  public:
    virtual ~KeyboardHost() = default;

    virtual bool RestMode() const = 0;
    virtual void SetRestMode(bool on) = 0;
    // PrintToWindow on the GameWindow.
    virtual void PrintToGameWindow(const char* text) = 0;
    // WM_VSCROLL with an SB_ code to the frame's active child window, if any.
    virtual void ScrollActiveChild(int scrollCode) = 0;
    // WM_MDINEXT to the frame's client window.
    virtual void NextChildWindow() = 0;
    // If the GameWindow exists: restore it when it is maximised, else maximise it.
    virtual void ToggleGameWindowMaximized() = 0;
    virtual bool ScriptRunning() const = 0;
    virtual void AbortScript() = 0;
    // AWM_ENDSCROLLBACK to each of the Game, Thought and Arrival windows that exists.
    virtual void EndScrollback() = 0;
    virtual void SetFrameTitle(const char* title) = 0;
    virtual const char* CurrentCharacter() const = 0;
    // WM_COPY to the frame's active child window, if any.
    virtual void CopyFromActiveChild() = 0;
    // WM_CLOSE posted to the frame.
    virtual void PostClose() = 0;
    // GETSTR_DIALOG with the title; false on Cancel. The answer holds at most capacity - 1.
    virtual bool AskString(const char* title, char* answer, std::size_t capacity) = 0;
    // Waits the seconds while serving messages.
    virtual void PumpFor(int seconds) = 0;
};

} // namespace steward
