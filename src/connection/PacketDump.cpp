#include "connection/PacketDump.h"

#include "base/HexDigits.h"
#include "config/LogHost.h"

#include <cstdio>
#include <cstring>

namespace steward {

namespace {

// Formats up to DUMP_ROW_BYTES bytes into row; a short row keeps its text part aligned.
void FormatRow(char (&row)[DUMP_ROW_SIZE], const unsigned char* bytes, std::size_t count)
{
    std::memset(row, ' ', DUMP_TEXT_COLUMN);
    for (std::size_t i = 0; i < count; ++i) {
        row[3 * i] = HEX_DIGITS[bytes[i] >> 4];
        row[3 * i + 1] = HEX_DIGITS[bytes[i] & 0x0F];
    }
    char* text = row + DUMP_TEXT_COLUMN;
    for (std::size_t i = 0; i < count; ++i)
        *text++ = DumpCharacter(bytes[i]);
    *text = '\0';
}

} // namespace

void DumpPacket(PacketDump& dump, const char* block)
{
    if (!dump.IsOpen())
        return;
    const std::size_t length = std::strlen(block);
    char header[40];
    std::snprintf(header, sizeof header, "---- (%zu bytes)\r\n", length);
    dump.Write("\r\n\r\n");
    dump.Write(header);

    const auto* bytes = reinterpret_cast<const unsigned char*>(block);
    char row[DUMP_ROW_SIZE];
    for (std::size_t done = 0; done < length; done += DUMP_ROW_BYTES) {
        const std::size_t count = length - done < DUMP_ROW_BYTES ? length - done : DUMP_ROW_BYTES;
        FormatRow(row, bytes + done, count);
        dump.Write(row);
        dump.Write("\r\n");
    }
}

void AnnouncePacketDump(const PacketDump& dump, LogHost& host)
{
    if (dump.IsOpen())
        host.PrintToGameWindow(PACKET_DUMP_ACTIVE_TEXT);
}

} // namespace steward
