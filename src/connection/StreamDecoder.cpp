#include "connection/StreamDecoder.h"

#include "base/ColorCode.h"
#include "connection/EscapeByte.h"
#include "connection/GameLineSink.h"

#include <algorithm>
#include <cstring>

namespace steward {

namespace {

constexpr unsigned char LF = 0x0A;
constexpr unsigned char CR = 0x0D;
constexpr unsigned char TOKEN_COLOR_OFF = '0';
constexpr unsigned char TOKEN_COLOR_ON = '1';
// A token is ESC, its selector and two bytes that are skipped unread.
constexpr std::size_t TOKEN_LENGTH = 4;

} // namespace

StreamDecoder::StreamDecoder(GameLineSink& sink, PacketDump& dump, const Settings& settings)
    : sink_(sink), dump_(dump), settings_(settings)
{
}

std::size_t StreamDecoder::ReceiveChunkSize() const
{
    return static_cast<std::size_t>(
        std::clamp(settings_.ReceiveChunkSize, RECEIVE_CHUNK_MIN, RECEIVE_CHUNK_MAX));
}

void StreamDecoder::HandleSocketEvent(const char* bytes, std::size_t length)
{
    do {
        const std::size_t block = std::min<std::size_t>(length, RECEIVE_CHUNK_MAX);
        HandleBlock(bytes, block);
        bytes += block;
        length -= block;
    } while (length > 0);
}

void StreamDecoder::HandleBlock(const char* bytes, std::size_t length)
{
    if (length == 0)
        return;
    std::memcpy(state_.ReceiveBuffer, bytes, length);
    state_.ReceiveBuffer[length] = '\0';
    DumpPacket(dump_, state_.ReceiveBuffer);
    AssembleLines(state_.ReceiveBuffer);
}

// Takes the block up to its first NUL; a line ends at LF or when it reaches LINE_BUFFER_SIZE.
void StreamDecoder::AssembleLines(const char* block)
{
    const char* next = block;
    const char* end = block + std::strlen(block);
    while (next < end) {
        const std::size_t room = LINE_BUFFER_SIZE - static_cast<std::size_t>(state_.LineLength);
        const std::size_t available = static_cast<std::size_t>(end - next);
        const std::size_t span = std::min(room, available);
        const void* lineEnd = std::memchr(next, LF, span);
        const std::size_t take =
            lineEnd ? static_cast<std::size_t>(static_cast<const char*>(lineEnd) - next) + 1 : span;
        std::memcpy(state_.LineBuffer + state_.LineLength, next, take);
        state_.LineLength += static_cast<std::int32_t>(take);
        next += take;
        if (lineEnd || static_cast<std::size_t>(state_.LineLength) == LINE_BUFFER_SIZE)
            DeliverLine();
    }
    if (state_.LineLength > 0 && !state_.HoldPartialLines)
        DeliverLine();
}

void StreamDecoder::DeliverLine()
{
    state_.LineBuffer[state_.LineLength] = '\0';
    DecodeGameLine(state_.LineBuffer);
    state_.LineLength = 0;
}

void StreamDecoder::ResetLineAssembly()
{
    state_.LineLength = 0;
    state_.LineBuffer[0] = '\0';
}

// The open flag and the current colour belong to one line: a colour left open at its end is
// not closed here.
void StreamDecoder::DecodeGameLine(const char* raw)
{
    const auto* in = reinterpret_cast<const unsigned char*>(raw);
    char* out = state_.DecodedLine;
    bool open = false;
    unsigned char current = 0;
    while (*in) {
        const unsigned char c = *in;
        if (c == CR && open) {
            out = AppendColorOff(out, current);
            open = false;
        }
        if (c == ESC && (in[1] == TOKEN_COLOR_OFF || in[1] == TOKEN_COLOR_ON)) {
            if (in[1] == TOKEN_COLOR_OFF || open)
                out = AppendColorOff(out, current);
            if (in[1] == TOKEN_COLOR_ON) {
                current = settings_.SaysColor;
                out = AppendColorOn(out, current);
                open = true;
            } else {
                current = 0;
                open = false;
            }
            // The skip stops at the line's NUL when the token is cut short.
            for (std::size_t step = 0; step < TOKEN_LENGTH && *in; ++step)
                ++in;
            continue;
        }
        *out++ = static_cast<char>(c & 0x7F);
        ++in;
    }
    *out = '\0';
    sink_.ProcessGameLine(state_.DecodedLine);
}

} // namespace steward
