#include "Server.h"

#include "Connection.h"
#include "FloodSource.h"
#include "Npcs.h"

#include <QTimer>

namespace {

// Flood output is topped up whenever the socket's queue falls below this.
constexpr qint64 FloodLowWater = 64 * 1024;

} // namespace

Server::Server(const WorldOptions& o, QObject* parent) : QObject(parent), options(o), game(o.seed)
{
    connect(&listener, &QTcpServer::newConnection, this, &Server::Accept);
}

Server::~Server() = default;

bool Server::Start(QString& error)
{
    if (!options.replayFile.isEmpty()) {
        QFile file(options.replayFile);
        if (!file.open(QIODevice::ReadOnly))
            return error = "cannot read " + options.replayFile, false;
        replayBytes = file.readAll();
    }
    if (!options.recordFile.isEmpty()) {
        recording.setFileName(options.recordFile);
        if (!recording.open(QIODevice::WriteOnly | QIODevice::Append))
            return error = "cannot write " + options.recordFile, false;
    }
    if (!listener.listen(options.listenAddress, options.port))
        return error = listener.errorString(), false;
    if (!options.quiet && options.replayFile.isEmpty() && options.floodBytes == 0)
        npcs = std::make_unique<Npcs>(game, nullptr);
    return true;
}

void Server::Accept()
{
    while (QTcpSocket* socket = listener.nextPendingConnection()) {
        auto* connection = new Connection(socket, ++connectionCount,
                                          recording.isOpen() ? &recording : nullptr, this);
        // Queued, because a connection can close while the game walks its list of players.
        connect(connection, &Connection::Closed, this, &Server::Forget, Qt::QueuedConnection);
        if (!options.replayFile.isEmpty()) {
            StartReplay(*connection);
        } else if (options.floodBytes > 0) {
            StartFlood(*connection);
        } else {
            connect(connection, &Connection::LineReceived, this,
                    [this](Connection* c, const QByteArray& line) { game.HandleLine(*c, line); });
            game.Join(*connection);
        }
    }
}

void Server::StartReplay(Connection& connection)
{
    connection.stage = Connection::Stage::Passive;
    if (options.replayBlock <= 0) {
        connection.Send(replayBytes);
        return;
    }
    auto* timer = new QTimer(&connection);
    auto offset = std::make_shared<qsizetype>(0);
    connect(timer, &QTimer::timeout, &connection, [this, timer, offset, &connection] {
        connection.Send(replayBytes.mid(*offset, options.replayBlock));
        *offset += options.replayBlock;
        if (*offset >= replayBytes.size())
            timer->stop();
    });
    timer->start(options.replayPauseMs);
}

void Server::StartFlood(Connection& connection)
{
    connection.stage = Connection::Stage::Passive;
    auto source = std::make_shared<FloodSource>(options.floodBytes, options.seed);
    auto topUp = [source](Connection* c) {
        if (!source->Done() && c->QueuedOutput() < FloodLowWater)
            c->Send(source->Next(FloodLowWater));
    };
    connect(&connection, &Connection::Drained, this, topUp);
    topUp(&connection);
}

void Server::Forget(Connection* connection)
{
    game.Leave(*connection, !connection->ClosedOnPurpose());
    connection->deleteLater();
}
