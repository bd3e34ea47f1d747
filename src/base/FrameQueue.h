#pragma once

namespace steward {

// The frame's message queue as core sees it: posted work runs when the main loop next
// turns, after the block being handled is finished.
class FrameQueue {
  public:
    virtual ~FrameQueue() = default;

    // Posts a numbered frame command (see FrameCommand.h).
    virtual void PostCommand(int command) = 0;
    // Posts FWM_DROPPED: the server closed the connection.
    virtual void PostDropped() = 0;
};

} // namespace steward
