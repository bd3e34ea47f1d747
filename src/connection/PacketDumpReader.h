#pragma once

#include "config/Settings.h"
#include "connection/PacketDump.h"

#include <cstddef>
#include <cstdint>
#include <istream>

namespace steward {

// What a dump reader met that DumpPacket never writes. The reading goes on past each of them
// with what could be read.
struct DumpProblems {
    // Lines that are neither blank, a block's header nor a well-formed row; the hex pairs at
    // the start of such a line are still taken.
    std::uint64_t BrokenRows = 0;
    // The line (counted from 1) of the first broken row.
    std::uint64_t FirstBrokenLine = 0;
    // Blocks whose rows list another number of bytes than their header says, as when a full
    // buffer lost rows.
    std::uint64_t UnevenBlocks = 0;
    // The file ends inside a row, whose bytes are taken as far as they go.
    bool CutRow = false;
};

// The dump keeps no line longer than this: a row is 66 characters, a header far fewer.
constexpr std::size_t DUMP_LINE_LIMIT = 128;
static_assert(DUMP_LINE_LIMIT > DUMP_TEXT_COLUMN + DUMP_ROW_BYTES + 1);

// Reads a packet dump back into the blocks it lists, one line at a time, so that a file of any
// size costs the same few bytes of memory.
class PacketDumpReader {
  public:
    explicit PacketDumpReader(std::istream& in);

    // The next block as it reached the decoder, that is up to its first NUL. Blocks without
    // bytes are left out; a block longer than RECEIVE_CHUNK_MAX comes in parts. 0 at the end.
    std::size_t NextBlock(char (&out)[RECEIVE_CHUNK_MAX]);
    const DumpProblems& Problems() const { return problems_; }
    // Reading the file failed before its end.
    bool ReadFailed() const { return failed_; }

  private:
    bool ReadLine();
    void FinishBlock();
    void NoteBrokenRow();

    std::istream& in_;
    char line_[DUMP_LINE_LIMIT + 1];
    std::size_t length_ = 0;
    std::uint64_t lineNumber_ = 0;
    bool tooLong_ = false;
    bool terminated_ = true;
    bool failed_ = false;
    // The header of the block being read, and how many bytes its rows listed so far.
    bool headerSeen_ = false;
    std::uint64_t expected_ = 0;
    std::uint64_t listed_ = 0;
    // A row that did not fit behind a block of RECEIVE_CHUNK_MAX bytes begins the next part.
    unsigned char pending_[DUMP_ROW_BYTES];
    std::size_t pendingCount_ = 0;
    DumpProblems problems_;
};

} // namespace steward
