#pragma once

namespace steward {

// Hex digits as the program writes them: upper case.
constexpr char HEX_DIGITS[] = "0123456789ABCDEF";

// The value of a hex digit of either case; any other byte counts as 0.
constexpr unsigned HexDigitValue(char c)
{
    if (c >= '0' && c <= '9')
        return static_cast<unsigned>(c - '0');
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A' + 10);
    if (c >= 'a' && c <= 'f')
        return static_cast<unsigned>(c - 'a' + 10);
    return 0;
}

} // namespace steward
