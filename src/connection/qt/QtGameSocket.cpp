#include "connection/qt/QtGameSocket.h"

#include <QCoreApplication>

#include <algorithm>
#include <new>

namespace steward {

namespace {

// How long a close waits for the last line (such as "quit") to leave.
constexpr int CLOSE_FLUSH_MS = 2000;
const QEvent::Type READ_BLOCK_EVENT = static_cast<QEvent::Type>(QEvent::registerEventType());

// Asks for the next block at the next turn of the loop. One is posted per block, and Qt deletes
// each after its turn, so their memory is kept for the next instead of going back to the heap.
// Sockets live on the main thread, which alone makes and deletes these.
class ReadBlockEvent final : public QEvent {
  public:
    ReadBlockEvent() : QEvent(READ_BLOCK_EVENT) {}

    static void* operator new(std::size_t size)
    {
        if (!spare_)
            return ::operator new(size);
        void* reused = spare_;
        spare_ = spare_->next;
        return reused;
    }
    static void operator delete(void* memory) { spare_ = new (memory) Spare{spare_}; }

  private:
    struct Spare {
        Spare* next;
    };
    static_assert(sizeof(Spare) <= sizeof(QEvent));
    static inline Spare* spare_ = nullptr;
};

} // namespace

QtGameSocket::QtGameSocket(SocketListener& listener, QObject* parent)
    : QObject(parent), listener_(listener)
{
    socket_.setReadBufferSize(static_cast<qint64>(READ_AHEAD));
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
    ForgetStaged();
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
    ForgetStaged();
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
    QCoreApplication::postEvent(this, new ReadBlockEvent);
}

void QtGameSocket::customEvent(QEvent* event)
{
    if (event->type() == READ_BLOCK_EVENT)
        ReadOneBlock();
}

void QtGameSocket::ReadOneBlock()
{
    readScheduled_ = false;
    if (!open_)
        return;
    if (stagedBegin_ == stagedEnd_) {
        const qint64 n = socket_.read(staged_, static_cast<qint64>(sizeof staged_));
        stagedBegin_ = 0;
        stagedEnd_ = n > 0 ? static_cast<std::size_t>(n) : 0;
    }
    const std::size_t length = std::min(stagedEnd_ - stagedBegin_, listener_.BlockSize());
    if (length > 0) {
        // Taken before it is handed on: a listener that closes or reopens starts afresh.
        const char* block = staged_ + stagedBegin_;
        stagedBegin_ += length;
        listener_.ReceiveBlock(block, length);
    }
    if (!open_)
        return;
    if (stagedBegin_ < stagedEnd_ || socket_.bytesAvailable() > 0) {
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
