#pragma once

#include "config/Settings.h"
#include "connection/GameSocket.h"
#include "connection/ReplayFile.h"

#include <cstddef>
#include <cstdint>
#include <functional>

namespace steward {

// A shown file name keeps at most this many characters.
constexpr std::size_t REPLAY_NAME_SIZE = 200;

// Plays a recorded session into the receive path, one block per call, exactly as the socket
// hands on live blocks; nothing is sent anywhere. What it plays, and how that ended, it says
// in the Game window.
class SessionReplay {
  public:
    using Print = std::function<void(const char*)>;

    SessionReplay(SocketListener& link, Print print);

    // Opens the file and says what it holds; false, after saying why, when there is nothing
    // to play.
    bool Open(const char* path);
    // Hands the next block to the link; false once the file is played out, after the summary.
    bool PlayNextBlock();

  private:
    void Finish();
    void Say(const char* format, ...) __attribute__((format(printf, 2, 3)));

    SocketListener& link_;
    Print print_;
    ReplayFile file_;
    char name_[REPLAY_NAME_SIZE] = {};
    char block_[RECEIVE_CHUNK_MAX];
    std::uint64_t blocks_ = 0;
    std::uint64_t bytes_ = 0;
    bool playing_ = false;
};

} // namespace steward
