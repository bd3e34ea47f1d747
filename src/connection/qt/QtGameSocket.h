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

  protected:
    void customEvent(QEvent* event) override;

  private:
    void ScheduleRead();
    void ReadOneBlock();
    void OnDisconnected();
    void ForgetStaged() { stagedBegin_ = stagedEnd_ = 0; }

    SocketListener& listener_;
    QTcpSocket socket_;
    bool open_ = false;
    bool readScheduled_ = false;
    bool remoteClosed_ = false;
    // Qt reads ahead of us only this far, and we hold as much again; beyond it the bytes wait in
    // the kernel and TCP slows the server down, so a flood faster than the client can show never
    // piles up in memory.
    static constexpr std::size_t READ_AHEAD = 16 * RECEIVE_CHUNK_MAX;

    // Bytes taken from Qt in one read and handed on a block per turn, so that the kernel is asked
    // once per many blocks instead of once per block.
    char staged_[READ_AHEAD];
    std::size_t stagedBegin_ = 0;
    std::size_t stagedEnd_ = 0;
};

} // namespace steward
