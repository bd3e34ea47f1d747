#pragma once

#include <cstdint>

namespace steward {

// One frame of the display.
constexpr std::int64_t DISPLAY_FRAME_MS = 16;

// Lets a picture that is asked for again and again be drawn at most once per frame: the
// first request after a quiet frame draws at once, later ones within the frame wait for its
// end, and any number of them then draw once.
class FrameGate {
  public:
    explicit FrameGate(std::int64_t frameMs) : frameMs_(frameMs) {}

    // A request at `nowMs`: 0 to draw now, more to draw after that many milliseconds, or
    // -1 when a draw is already waiting and the request joins it.
    std::int64_t Request(std::int64_t nowMs)
    {
        if (waiting_)
            return -1;
        if (drawn_ && nowMs - lastDrawMs_ < frameMs_) {
            waiting_ = true;
            return frameMs_ - (nowMs - lastDrawMs_);
        }
        Drawn(nowMs);
        return 0;
    }

    // A draw is waiting for the frame's end: a further request would only join it.
    bool Waiting() const { return waiting_; }

    // The wait of a request ended, and the picture is drawn at `nowMs`.
    void Drawn(std::int64_t nowMs)
    {
        waiting_ = false;
        drawn_ = true;
        lastDrawMs_ = nowMs;
    }

  private:
    std::int64_t frameMs_;
    std::int64_t lastDrawMs_ = 0;
    bool drawn_ = false;
    bool waiting_ = false;
};

} // namespace steward
