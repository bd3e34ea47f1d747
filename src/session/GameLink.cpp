#include "session/GameLink.h"

namespace steward {

GameLink::GameLink(const LinePipeline::Parts& parts, PacketDump& dump, GameSocket& socket)
    : queue_(parts.Queue), windows_(parts.Windows), pipeline_(parts),
      decoder_(pipeline_, dump, parts.Options), connection_(socket, decoder_)
{
}

int GameLink::ConnectToGame(const char* connectionString)
{
    const int result = connection_.ConnectToGame(connectionString);
    if (result == CONNECT_OK) {
        pipeline_.ResetStatusMode();
        reconnect_.Connected();
    }
    return result;
}

void GameLink::SendLine(const char* text)
{
    if (IsQuitCommand(text))
        reconnect_.PlayerQuit();
    connection_.SendLine(text);
}

void GameLink::ReceiveBlock(const char* bytes, std::size_t length)
{
    decoder_.HandleSocketEvent(bytes, length);
}

} // namespace steward
