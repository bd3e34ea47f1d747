#pragma once

#include <cstddef>
#include <cstdint>

namespace steward {

// The one TCP connection to the game as core sees it; the Qt layer implements it.
class GameSocket {
  public:
    virtual ~GameSocket() = default;

    // Resolves the host, connects within the time limit and starts watching for received
    // bytes; false when any of that failed, and then nothing stays open.
    virtual bool Open(const char* host, std::uint16_t port, int timeoutMilliseconds) = 0;
    // Hands bytes to the system; what it cannot take at once is queued, never waited for.
    virtual void Write(const char* bytes, std::size_t length) = 0;
    // Writes out what is queued, then closes; harmless when nothing is open.
    virtual void Close() = 0;
};

// What the socket reports to the program as the loop turns.
class SocketListener {
  public:
    virtual ~SocketListener() = default;

    // The largest block that the next read may deliver: 1 to RECEIVE_CHUNK_MAX bytes.
    virtual std::size_t BlockSize() const = 0;
    // One received block of at most BlockSize bytes: the bytes of one read.
    virtual void ReceiveBlock(const char* bytes, std::size_t length) = 0;
    // The server closed the connection; every received byte was handed on before.
    virtual void ConnectionClosed() = 0;
};

} // namespace steward
