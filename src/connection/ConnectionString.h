#pragma once

#include <cstddef>

namespace steward {

constexpr std::size_t HOST_SIZE = 96;
constexpr std::size_t PORT_TEXT_SIZE = 128;
constexpr int DEFAULT_CONNECT_TIMEOUT_MS = 60000;

// The parsed connection string "/H<host>/P<port>[/T<seconds>]".
struct ConnectionInfo {
    char Host[HOST_SIZE] = {};
    char PortText[PORT_TEXT_SIZE] = {};
    int TimeoutMilliseconds = DEFAULT_CONNECT_TIMEOUT_MS;
};

// True only when both the host and the port text came out non-empty. A host or port longer
// than its field is cut at the field's end.
bool ParseConnectionString(const char* text, ConnectionInfo& info);

// The decimal digits at the start of a text; none, or a number past 65535, read as 0.
unsigned ReadPortNumber(const char* text);

} // namespace steward
