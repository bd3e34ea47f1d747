#pragma once

namespace steward {

// After a drop the client may try to connect again: the first try waits this long, each
// further one twice as long as the one before, never more than the longest wait.
constexpr int RECONNECT_FIRST_WAIT_S = 2;
constexpr int RECONNECT_LONGEST_WAIT_S = 60;
constexpr int RECONNECT_TRIES = 10;

// When to try to connect again after a drop, and when not: never after the player's own
// "quit" (typed, from a macro or a script, or at the exit), never with the option off, never
// once the player connected by hand, and not after the last try. The Qt side keeps the time.
class ReconnectPlan {
  public:
    // The player said "quit": the drop that follows is his own, and a waiting try is off.
    void PlayerQuit();
    // The connection dropped: the wait before the first try in seconds, or 0 when none comes.
    int Dropped(bool optionOn);
    // The waited-for try failed: the wait before the next, or 0 once every try was made.
    int TryFailed();
    // A connect succeeded, a try's or the player's: a later drop is tried again.
    void Connected();
    // The player connects by hand: no try waits any more.
    void Stop() { waiting_ = false; }

    bool Waiting() const { return waiting_; }
    // The number of the try that waits, from 1 to RECONNECT_TRIES.
    int Try() const { return tries_ + 1; }

  private:
    int Wait() const;

    int tries_ = 0;
    bool waiting_ = false;
    bool quit_ = false;
};

// True for a line that ends the session on the game's side: "quit" as its first word.
bool IsQuitCommand(const char* text);

} // namespace steward
