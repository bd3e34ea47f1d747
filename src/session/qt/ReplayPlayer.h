#pragma once

#include "session/SessionReplay.h"

#include <QObject>
#include <QTimer>

#include <string>

namespace steward {

// Plays a recorded session one block per turn of the loop, like the socket: the next block is
// asked for only after the work of the last, so the commands that a block posts come first.
class ReplayPlayer : public QObject {
    Q_OBJECT
  public:
    ReplayPlayer(SocketListener& link, SessionReplay::Print print, QObject* parent = nullptr);

    // Opens the file and plays it from the next turn of the loop, at the speed (0: as fast as
    // the loop turns); false, after saying why in the Game window, when there is nothing to play.
    bool Start(const std::string& path, double speed);
    bool Playing() const { return playing_; }

  private:
    void ScheduleNext();
    void PlayOne();

    SessionReplay replay_;
    QTimer timer_;
    int waitMs_ = 0;
    bool playing_ = false;
};

} // namespace steward
