#include "connection/Connection.h"

#include "connection/GameSocket.h"
#include "connection/StreamDecoder.h"

#include <cstdint>

namespace steward {

const char* ConnectFailureText(int result)
{
    switch (result) {
    case CONNECT_FAILED:
        return "Unable to connect to the server!";
    case CONNECT_NO_LIBRARY:
        return "Unable to initialize Winsock!";
    case CONNECT_BAD_STRING:
        return "Invalid connection information supplied!";
    default:
        return nullptr;
    }
}

Connection::Connection(GameSocket& socket, StreamDecoder& decoder)
    : socket_(socket), decoder_(decoder)
{
}

int Connection::ConnectToGame(const char* connectionString)
{
    decoder_.SetHoldPartialLines(false);
    ShutdownConnection();
    decoder_.ResetLineAssembly();
    if (connectionString[0] == '\0')
        return CONNECT_OFFLINE;
    if (!ParseConnectionString(connectionString, info_))
        return CONNECT_BAD_STRING;
    unsigned port = ReadPortNumber(info_.PortText);
    if (port == 0 ||
        !socket_.Open(info_.Host, static_cast<std::uint16_t>(port), info_.TimeoutMilliseconds))
        return CONNECT_FAILED;
    connected_ = true;
    return CONNECT_OK;
}

void Connection::SendLine(const char* text)
{
    if (!connected_)
        return;
    char buffer[SEND_BUFFER_SIZE];
    std::size_t n = 0;
    for (; n < SEND_TEXT_LIMIT && text[n]; ++n)
        buffer[n] = text[n];
    buffer[n++] = '\n';
    buffer[n++] = '\r';
    socket_.Write(buffer, n);
}

void Connection::ShutdownConnection()
{
    if (!connected_)
        return;
    socket_.Close();
    connected_ = false;
}

} // namespace steward
