#include "Server.h"

#include "Connection.h"
#include "FloodSource.h"
#include "Npcs.h"

#include <QTimer>

#include <chrono>
#include <cstdio>

namespace {

// Flood output is topped up whenever the socket's queue falls below this.
constexpr qint64 FloodLowWater = 64 * 1024;

// One line on standard output behind the monotonic clock's microseconds, for a measurement
// that reads this clock too.
void PrintStamp(const QByteArray& what)
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf(
        "%lld %s\n",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now).count()),
        what.constData());
    std::fflush(stdout);
}

struct FloodRun {
    FloodSource source;
    bool started = false;
    bool lastStamped = false;
};

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
    const bool readsLines = options.stamp || !options.floodTrigger.isEmpty();
    // A flooded connection that is listened to never joins the game, so nothing else sends.
    connection.stage = readsLines ? Connection::Stage::Playing : Connection::Stage::Passive;
    auto run = std::make_shared<FloodRun>(FloodRun{FloodSource(options.floodBytes, options.seed)});
    const bool stamp = options.stamp;
    auto topUp = [run, stamp](Connection* c) {
        if (!run->started)
            return;
        if (!run->source.Done()) {
            if (c->QueuedOutput() < FloodLowWater) {
                const bool first = run->source.SentBytes() == 0;
                c->Send(run->source.Next(FloodLowWater));
                if (first && stamp)
                    PrintStamp("first");
            }
        } else if (stamp && !run->lastStamped && c->QueuedOutput() == 0) {
            run->lastStamped = true;
            PrintStamp("last " + QByteArray::number(run->source.SentBytes()) + ' ' +
                       QByteArray::number(run->source.SentLines()));
        }
    };
    connect(&connection, &Connection::Drained, this, topUp);
    if (readsLines) {
        const QByteArray trigger = options.floodTrigger.toLatin1();
        connect(&connection, &Connection::LineReceived, this,
                [run, stamp, trigger, topUp](Connection* c, const QByteArray& line) {
                    if (stamp)
                        PrintStamp("line " + line);
                    if (!run->started && line == trigger) {
                        run->started = true;
                        topUp(c);
                    }
                });
    }
    run->started = options.floodTrigger.isEmpty();
    topUp(&connection);
}

void Server::Forget(Connection* connection)
{
    game.Leave(*connection, !connection->ClosedOnPurpose());
    connection->deleteLater();
}
