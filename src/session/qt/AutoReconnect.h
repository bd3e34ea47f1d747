#pragma once

#include <QObject>
#include <QTimer>

namespace steward {

class GameLink;
struct Session;

// Connects again after a drop when the option "Reconnect when the connection drops" is on:
// each try waits as the link's ReconnectPlan says, connects as "Connect to the Game" does, and
// says in the Game window when it comes and how it went.
class AutoReconnect : public QObject {
    Q_OBJECT
  public:
    AutoReconnect(GameLink& link, const Session& session, QObject* parent = nullptr);

    // The connection dropped, and the Game window said so.
    void Dropped();
    // The player connects by hand, or the program ends: no try waits any more.
    void Stop();

  private:
    void Try();
    void WaitForTry(int seconds);

    GameLink& link_;
    const Session& session_;
    QTimer timer_;
};

} // namespace steward
