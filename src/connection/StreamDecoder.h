#pragma once

#include "config/Settings.h"
#include "connection/PacketDump.h"

#include <cstddef>
#include <cstdint>

namespace steward {

class GameLineSink;

// A line is cut after this many raw bytes, even while partial lines are held.
constexpr std::size_t LINE_BUFFER_SIZE = 4097;
// Decoded output of one line.
constexpr std::size_t DECODED_LINE_SIZE = 8192;
// A decoded line is at most two bytes longer than its raw line: the closing codes at a CR were
// paid for by the four-byte token that opened the colour, and only a token cut short by the
// line's end yields more than its length.
static_assert(DECODED_LINE_SIZE >= LINE_BUFFER_SIZE + 2 + 1);

// Everything that survives from one received block to the next; allocated once.
struct DecoderState {
    char ReceiveBuffer[RECEIVE_CHUNK_MAX + 1];
    char LineBuffer[LINE_BUFFER_SIZE + 1];
    std::int32_t LineLength = 0;
    char DecodedLine[DECODED_LINE_SIZE];
    bool HoldPartialLines = false;
};

// Turns the server's byte stream into GameLines: line assembly, the high bit stripped, the
// two colour tokens replaced by ColorCodes.
class StreamDecoder {
  public:
    StreamDecoder(GameLineSink& sink, PacketDump& dump, const Settings& settings);

    // The work on the bytes that one read of the socket returned: dump, assemble, decode.
    // A block longer than RECEIVE_CHUNK_MAX is taken as several blocks in a row.
    void HandleSocketEvent(const char* bytes, std::size_t length);
    // True once the server sends status records: a block's tail then waits for its line end.
    void SetHoldPartialLines(bool hold) { state_.HoldPartialLines = hold; }
    bool HoldsPartialLines() const { return state_.HoldPartialLines; }
    // Drops a held partial line; part of every connect.
    void ResetLineAssembly();
    // Decodes one NUL-terminated raw line and hands it to the sink once.
    void DecodeGameLine(const char* raw);

    // The number of bytes waiting for the rest of their line.
    std::int32_t LineLength() const { return state_.LineLength; }
    // The largest read that the socket may make for the next block: the setting, kept within
    // 1..RECEIVE_CHUNK_MAX however it was changed.
    std::size_t ReceiveChunkSize() const;

  private:
    void HandleBlock(const char* bytes, std::size_t length);
    void AssembleLines(const char* block);
    void DeliverLine();

    GameLineSink& sink_;
    PacketDump& dump_;
    const Settings& settings_;
    DecoderState state_{};
};

} // namespace steward
