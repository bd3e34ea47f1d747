#pragma once

#include "connection/ConnectionString.h"

#include <cstddef>

namespace steward {

class GameSocket;
class StreamDecoder;

// Results of ConnectToGame.
enum ConnectResult : int {
    CONNECT_OK = 0,
    CONNECT_BAD_STRING = -2,
    CONNECT_NO_LIBRARY = -3, // the socket library would not start; cannot happen with ours
    CONNECT_FAILED = -4,
    CONNECT_OFFLINE = -5,
};

// A line and its LF CR end go out of a buffer of this size, NUL included.
constexpr std::size_t SEND_BUFFER_SIZE = 516;
// The longest text that SendLine sends; the rest of a longer text is cut.
constexpr std::size_t SEND_TEXT_LIMIT = SEND_BUFFER_SIZE - 3;

constexpr const char DROPPED_TEXT[] = "\n\n*\n* Connection to the game has been dropped.\n*\n\n";

constexpr const char CONNECT_FAILURE_TITLE[] = "Fatal Error";
// The message box text for a failed connect, or null for results that show none.
const char* ConnectFailureText(int result);

// The one connection to the game. The socket is the only record of its state: there is no
// separate offline flag.
class Connection {
  public:
    Connection(GameSocket& socket, StreamDecoder& decoder);

    // 0 when connected, else a ConnectResult; a held partial line never survives an attempt.
    int ConnectToGame(const char* connectionString);
    bool IsDisconnected() const { return !connected_; }
    // Sends the text with LF then CR behind it; does nothing while disconnected.
    void SendLine(const char* text);
    // Closes the socket if one is open; harmless when called again.
    void ShutdownConnection();

  private:
    GameSocket& socket_;
    StreamDecoder& decoder_;
    ConnectionInfo info_;
    bool connected_ = false;
};

} // namespace steward
