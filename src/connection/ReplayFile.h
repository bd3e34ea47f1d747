#pragma once

#include "config/Settings.h"
#include "connection/PacketDumpReader.h"

#include <cstddef>
#include <fstream>
#include <optional>

namespace steward {

enum class ReplayFormat {
    Empty,
    // What --packet-dump writes: its rows are read back into the blocks they list.
    PacketDump,
    // Any other file: the bytes as the server sent them.
    RawBytes,
};

// A recorded session to play into the receive path: a packet dump or raw received bytes, read a
// block at a time.
class ReplayFile {
  public:
    // Opens the file and tells its format by its first bytes; false when it cannot be read.
    [[nodiscard]] bool Open(const char* path);
    ReplayFormat Format() const { return format_; }
    // The next block: a dump's as it was received, raw bytes in blocks of at most rawBlockSize
    // (1 to RECEIVE_CHUNK_MAX). 0 at the end of the file.
    std::size_t NextBlock(char (&out)[RECEIVE_CHUNK_MAX], std::size_t rawBlockSize);
    // What a dump held that DumpPacket never writes; nothing for raw bytes.
    DumpProblems Problems() const;
    // Reading failed before the end of the file.
    bool ReadFailed() const;

  private:
    std::ifstream file_;
    std::optional<PacketDumpReader> dump_;
    ReplayFormat format_ = ReplayFormat::Empty;
    bool failed_ = false;
};

// True when the bytes could have come from the game: no NUL, and hardly a byte outside text,
// line ends, tabs, ESC and BEL.
bool LooksLikeGameText(const char* bytes, std::size_t length);

// At speed 1 a replay hands on one block each REPLAY_BLOCK_MS, since neither a dump nor raw
// bytes keep the times at which they came; speed X divides the wait, 0 plays at once.
constexpr int REPLAY_BLOCK_MS = 100;
// The slowest replay still hands on a block a minute.
constexpr int REPLAY_LONGEST_WAIT_MS = 60000;
// Reads a speed given as a decimal number of 0 or more; false for any other text.
bool ReadReplaySpeed(const char* text, double& speed);
// The wait between two blocks at the speed, in milliseconds.
int ReplayWaitMs(double speed);

} // namespace steward
