#pragma once

#include <cstdint>

namespace steward {

// A ColorCode is one byte of colour markup inside decoded text. Received text has bit 7
// cleared, so only the client itself can put a byte of this range into a line.
constexpr unsigned char COLOR_FIRST = 0x80;
constexpr unsigned char COLOR_LAST = 0xA3;

constexpr unsigned char COLOR_FOREGROUND = 0x80;     // + palette index: push and set foreground
constexpr unsigned char COLOR_BACKGROUND = 0x90;     // + palette index: push and set background
constexpr unsigned char COLOR_FOREGROUND_OFF = 0xA0; // pop foreground
constexpr unsigned char COLOR_BACKGROUND_OFF = 0xA1; // pop background
constexpr unsigned char COLOR_INVERSE_ON = 0xA2;     // push both, paint exchanged
constexpr unsigned char COLOR_INVERSE_OFF = 0xA3;    // pop both

constexpr bool IsColorCode(unsigned char c)
{
    return c >= COLOR_FIRST && c <= COLOR_LAST;
}

// Writes the colour-on sequence for a colour byte (low nibble foreground, high nibble
// background, 0 leaving the background alone) and returns the position behind it.
char* AppendColorOn(char* out, unsigned char color);
// Writes the matching colour-off sequence and returns the position behind it.
char* AppendColorOff(char* out, unsigned char color);

} // namespace steward
