#pragma once

#include "Server.h"
#include "WorldOptions.h"

#include <QByteArray>
#include <QTcpSocket>

#include <memory>

// A world server running in the test's own event loop on a free port of 127.0.0.1.
struct TestWorld {
    explicit TestWorld(WorldOptions options = QuietOptions());
    static WorldOptions QuietOptions();

    std::unique_ptr<Server> server;
    quint16 port = 0;
};

// A player's side of one connection; reads run the event loop until the text is there.
class TestClient {
  public:
    explicit TestClient(quint16 port);

    // Sends the line with LF CR behind it, as the game client does.
    void Send(const QByteArray& line);
    void SendRaw(const QByteArray& bytes);
    // Everything received up to and including the first `needle` after the read position,
    // or empty when it does not come within a generous safety limit.
    QByteArray ReadUntil(const QByteArray& needle);
    QByteArray ReadUntilClosed();
    void Login(const QByteArray& name);
    void Close() { socket.abort(); }

  private:
    bool Pump();

    QTcpSocket socket;
    QByteArray received;
    qsizetype readPosition = 0;
};
