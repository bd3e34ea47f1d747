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
    // Scrolls the frame's active child window, if any, by an SB_ code.
    virtual void ScrollActiveChild(int scrollCode) = 0;
    // Activates the next child window of the frame.
    virtual void NextChildWindow() = 0;
    // If the GameWindow exists: restore it when it is maximised, else maximise it.
    virtual void ToggleGameWindowMaximized() = 0;
    virtual bool ScriptRunning() const = 0;
    virtual void AbortScript() = 0;
    // AWM_ENDSCROLLBACK to each of the Game, Thought and Arrival windows that exists.
    virtual void EndScrollback() = 0;
    virtual void SetFrameTitle(const char* title) = 0;
    virtual const char* CurrentCharacter() const = 0;
    // Copies the selection of the frame's active child window, if any.
    virtual void CopyFromActiveChild() = 0;
    // Asks the frame to close, once the current message is served.
    virtual void PostClose() = 0;
    // Asks for one line of text under the title; false on Cancel. The answer holds at most
    // capacity - 1.
    virtual bool AskString(const char* title, char* answer, std::size_t capacity) = 0;
    // Waits the seconds while serving messages.
    virtual void PumpFor(int seconds) = 0;
};

} // namespace steward
