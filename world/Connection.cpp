#include "Connection.h"

#include <QFile>

#include <cstdio>

Connection::Connection(QTcpSocket* s, int n, QFile* record, QObject* parent)
    : QObject(parent), socket(s), recording(record), number(n)
{
    socket->setParent(this);
    peer =
        (socket->peerAddress().toString() + ':' + QString::number(socket->peerPort())).toLatin1();
    age.start();
    connect(socket, &QTcpSocket::readyRead, this, &Connection::ReadInput);
    connect(socket, &QTcpSocket::disconnected, this, &Connection::Finish);
    connect(socket, &QTcpSocket::bytesWritten, this, [this] { emit Drained(this); });
}

Connection::~Connection() = default;

void Connection::Send(const QByteArray& bytes)
{
    if (!socket || finished)
        return;
    if (socket->bytesToWrite() + bytes.size() > MaxQueuedOutput) {
        closeReason = "output overflow";
        Finish();
        socket->abort();
        return;
    }
    promptPending = false;
    bytesOut += bytes.size();
    socket->write(bytes);
}

void Connection::SendPrompt()
{
    if (player.statusMode) {
        Send(promptPending ? "\r\n" + FormatStatusRecord(player.Status())
                           : FormatStatusRecord(player.Status()));
        return;
    }
    Send(">");
    promptPending = true;
}

void Connection::Notify(const QByteArray& text)
{
    if (stage != Stage::Playing)
        return;
    Send(promptPending ? "\r\n" + text + "\r\n" : text + "\r\n");
    SendPrompt();
}

void Connection::Close(const char* reason)
{
    closeReason = reason;
    closedOnPurpose = true;
    Finish();
    if (!socket)
        return;
    // The socket outlives this connection until its last bytes, such as a farewell, are out.
    QTcpSocket* leaving = socket;
    leaving->disconnect(this);
    leaving->setParent(nullptr);
    connect(leaving, &QAbstractSocket::disconnected, leaving, &QObject::deleteLater);
    leaving->disconnectFromHost();
    if (leaving->state() == QAbstractSocket::UnconnectedState)
        leaving->deleteLater();
}

qint64 Connection::QueuedOutput() const
{
    return socket ? socket->bytesToWrite() : 0;
}

void Connection::ReadInput()
{
    char chunk[ReadChunk];
    while (socket && !finished && socket->bytesAvailable() > 0) {
        const qint64 n = socket->read(chunk, sizeof chunk);
        if (n <= 0)
            break;
        bytesIn += n;
        if (recording) {
            recording->write(chunk, n);
            recording->flush();
        }
        if (stage == Stage::Passive)
            continue;
        reader.Feed(chunk, n, [this](const QByteArray& line) {
            if (!finished)
                emit LineReceived(this, line);
        });
    }
}

void Connection::Finish()
{
    if (finished)
        return;
    finished = true;
    std::fprintf(
        stderr, "world: connection %d from %s name %s: %s after %lld s, %lld bytes in, %lld out\n",
        number, peer.constData(), player.name.isEmpty() ? "(none)" : player.name.constData(),
        closeReason, static_cast<long long>(age.elapsed() / 1000), static_cast<long long>(bytesIn),
        static_cast<long long>(bytesOut));
    emit Closed(this);
}
