#pragma once

#include "config/BufferedLog.h"

#include <cstddef>

namespace steward {

class LogHost;

// A dump row lists this many bytes of a block.
constexpr std::size_t DUMP_ROW_BYTES = 16;
// The hexadecimal part of a row takes three columns per byte; the text part starts here.
constexpr std::size_t DUMP_TEXT_COLUMN = 50;
// Work buffer of one row: 50 columns of hex and blanks, 16 characters and the NUL fit in it.
constexpr std::size_t DUMP_ROW_SIZE = 81;
static_assert(DUMP_TEXT_COLUMN + DUMP_ROW_BYTES < DUMP_ROW_SIZE);

constexpr const char PACKET_DUMP_ACTIVE_TEXT[] =
    "\r\n\r\n*******\r\n Packet Dump file is ACTIVE!\r\n*******\r\n";

// The character a row's text part shows for a byte; the range stops at 'z' on purpose, so braces,
// bar and tilde show as dots.
constexpr char DumpCharacter(unsigned char byte)
{
    return byte >= 0x20 && byte <= 0x7A ? static_cast<char>(byte) : '.';
}

// The diagnostic trace of received blocks; what DumpPacket writes is its only particularity.
using PacketDump = BufferedLog;

// Lists the NUL-terminated block as rows of hex and text; does nothing when the dump is closed.
void DumpPacket(PacketDump& dump, const char* block);

// Says in the Game window that the dump is open, so that nobody runs with it unawares.
void AnnouncePacketDump(const PacketDump& dump, LogHost& host);

} // namespace steward
