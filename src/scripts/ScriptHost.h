#pragma once

namespace steward {

// What the script runner and the recording need of the window system and the connection.
class ScriptHost {
  public:
    virtual ~ScriptHost() = default;

    // The busy cursor while a script runs, the arrow again when it ends.
    virtual void ShowBusyCursor(bool busy) = 0;
    virtual void Beep() = 0;
    // Posts a message without effect, so that the main loop turns once more.
    virtual void PostWakeUp() = 0;
    // PrintToWindow on the GameWindow.
    virtual void PrintToGameWindow(const char* text) = 0;
    // The short road of a script line to the game: echo and send, no recording.
    virtual void SendScripted(const char* text) = 0;
    // Waits the seconds while serving messages.
    virtual void PumpFor(int seconds) = 0;
};

} // namespace steward
