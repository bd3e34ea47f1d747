#include "connection/qt/QtGameSocket.h"

namespace steward {

namespace {

// How long a close waits for the last line (such as "quit") to leave.
constexpr int CLOSE_FLUSH_MS = 2000;
// Qt reads ahead of us only this far; beyond it the bytes wait in the kernel and TCP slows the
// server down, so a flood faster than the client can show never piles up in memory.
constexpr qint64 READ_AHEAD_LIMIT = 16 * RECEIVE_CHUNK_MAX;

} // namespace

QtGameSocket::QtGameSocket(SocketListener& listener, QObject* parent)
    : QObject(parent), listener_(listener)
{
    socket_.setReadBufferSize(READ_AHEAD_LIMIT);
    connect(&socket_, &QTcpSocket::readyRead, this, &QtGameSocket::ScheduleRead);
    connect(&socket_, &QTcpSocket::disconnected, this, &QtGameSocket::OnDisconnected);
}

bool QtGameSocket::Open(const char* host, std::uint16_t port, int timeoutMilliseconds)
{
    Close();
    socket_.connectToHost(QString::fromLatin1(host), port);
    if (!socket_.waitForConnected(timeoutMilliseconds)) {
        socket_.abort();
        return false;
    }
    open_ = true;
    remoteClosed_ = false;
    if (socket_.bytesAvailable() > 0)
        ScheduleRead();
    return true;
}

void QtGameSocket::Write(const char* bytes, std::size_t length)
{
    if (!open_ || remoteClosed_)
        return;
    socket_.write(bytes, static_cast<qint64>(length));
}

void QtGameSocket::Close()
{
    if (!open_)
        return;
    open_ = false;
    if (socket_.state() == QAbstractSocket::ConnectedState) {
        socket_.flush();
        if (socket_.bytesToWrite() > 0)
            socket_.waitForBytesWritten(CLOSE_FLUSH_MS);
    }
    socket_.abort();
}

void QtGameSocket::ScheduleRead()
{
    if (readScheduled_ || !open_)
        return;
    readScheduled_ = true;
    QMetaObject::invokeMethod(this, &QtGameSocket::ReadOneBlock, Qt::QueuedConnection);
}

void QtGameSocket::ReadOneBlock()
{
    readScheduled_ = false;
    if (!open_)
        return;
    qint64 n = socket_.read(block_, static_cast<qint64>(listener_.BlockSize()));
    if (n > 0)
        listener_.ReceiveBlock(block_, static_cast<std::size_t>(n));
    if (!open_)
        return;
    if (socket_.bytesAvailable() > 0) {
        ScheduleRead();
        return;
    }
    if (remoteClosed_) {
        open_ = false;
        listener_.ConnectionClosed();
    }
}

void QtGameSocket::OnDisconnected()
{
    if (!open_ || remoteClosed_)
        return;
    remoteClosed_ = true;
    ScheduleRead();
}

} // namespace steward
