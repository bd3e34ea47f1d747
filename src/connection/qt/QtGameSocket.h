#pragma once

#include "config/Settings.h"
#include "connection/GameSocket.h"

#include <QObject>
#include <QTcpSocket>

namespace steward {

// The game socket on a QTcpSocket: one block per turn of the loop, sends that never block,
// and a drop reported only after every received byte was handed on.
class QtGameSocket : public QObject, public GameSocket {
    Q_OBJECT
  public:
    explicit QtGameSocket(SocketListener& listener, QObject* parent = nullptr);

    bool Open(const char* host, std::uint16_t port, int timeoutMilliseconds) override;
    void Write(const char* bytes, std::size_t length) override;
    void Close() override;

  private:
    void ScheduleRead();
    void ReadOneBlock();
    void OnDisconnected();

    SocketListener& listener_;
    QTcpSocket socket_;
    bool open_ = false;
    bool readScheduled_ = false;
    bool remoteClosed_ = false;
    char block_[RECEIVE_CHUNK_MAX];
};

} // namespace steward
