#pragma once

namespace steward {

// The frame timer's period, and the ticks of rest after which the client shows it is there.
constexpr int FRAME_TIMER_MS = 3000;
constexpr int REST_TICK_LIMIT = 120;

constexpr const char REST_ENTER_TEXT[] = "\r\nEntering rest mode...press any key to resume.\r\n";

// What rest mode sends on a tick.
class RestSender {
  public:
    virtual ~RestSender() = default;
    virtual void SendCommand(const char* text) = 0;
};

// The keep-alive idle state: while on, every 121st tick of the frame timer sends "exper" and,
// unless silent, "act snores softly".
struct RestState {
    bool RestMode = false;
    bool RestSilent = false;
    int RestTicks = 0;

    void Enter(bool silent);
    // True when the mode was on, so that the caller says it is left.
    bool Leave();
    void OnTimer(RestSender& sender);
};

} // namespace steward
