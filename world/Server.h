#pragma once

#include "Game.h"
#include "WorldOptions.h"

#include <QFile>
#include <QObject>
#include <QTcpServer>

#include <memory>

class Connection;
class Npcs;

// Accepts players on the listening address and hands each connection to the game, or, in
// the replay and flood modes, feeds it a stream of bytes instead.
class Server : public QObject {
    Q_OBJECT
  public:
    explicit Server(const WorldOptions& options, QObject* parent = nullptr);
    ~Server() override;

    // Opens the files and starts listening; false with a message when that fails.
    bool Start(QString& error);
    quint16 Port() const { return listener.serverPort(); }

  private:
    void Accept();
    void StartReplay(Connection& connection);
    void StartFlood(Connection& connection);
    void Forget(Connection* connection);

    WorldOptions options;
    QTcpServer listener;
    Game game;
    std::unique_ptr<Npcs> npcs;
    QFile recording;
    QByteArray replayBytes;
    int connectionCount = 0;
};
