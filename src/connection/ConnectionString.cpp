#include "connection/ConnectionString.h"

namespace steward {

namespace {

constexpr int MAX_TIMEOUT_SECONDS = 24 * 60 * 60;

bool IsMarker(const char* at, char letter)
{
    return at[0] == '/' && at[1] == letter;
}

// Copies up to the next "/" or the end, cut to the field; returns the position of the stop.
const char* CopyField(const char* from, char* field, std::size_t size)
{
    std::size_t n = 0;
    for (; *from && *from != '/'; ++from)
        if (n + 1 < size)
            field[n++] = *from;
    field[n] = '\0';
    return from;
}

// Reads leading decimal digits, saturating so that a long run of digits cannot overflow.
unsigned ReadDigits(const char* text, unsigned limit)
{
    unsigned value = 0;
    for (; *text >= '0' && *text <= '9'; ++text) {
        value = value * 10 + static_cast<unsigned>(*text - '0');
        if (value > limit)
            return limit + 1;
    }
    return value;
}

} // namespace

bool ParseConnectionString(const char* text, ConnectionInfo& info)
{
    info = ConnectionInfo{};
    const char* at = text;
    while (*at == ' ')
        ++at;
    if (IsMarker(at, 'H'))
        at = CopyField(at + 2, info.Host, HOST_SIZE);
    if (IsMarker(at, 'P'))
        at = CopyField(at + 2, info.PortText, PORT_TEXT_SIZE);
    if (IsMarker(at, 'T')) {
        unsigned seconds = ReadDigits(at + 2, MAX_TIMEOUT_SECONDS);
        if (seconds > MAX_TIMEOUT_SECONDS)
            seconds = MAX_TIMEOUT_SECONDS;
        // A limit of 0 would fail every connect at once, so it keeps the default.
        if (seconds > 0)
            info.TimeoutMilliseconds = static_cast<int>(seconds) * 1000;
    }
    return info.Host[0] != '\0' && info.PortText[0] != '\0';
}

unsigned ReadPortNumber(const char* text)
{
    constexpr unsigned MAX_PORT = 65535;
    unsigned port = ReadDigits(text, MAX_PORT);
    return port > MAX_PORT ? 0 : port;
}

} // namespace steward
