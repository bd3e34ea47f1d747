#pragma once

#include "session/Session.h"

#include <string>

class QWidget;

namespace steward {

class Desktop;
class GameLink;

// The first connection: the connection string of the command line, else the connect dialog's
// choice (which the main ini remembers), then the connect. Offline says so in the Game window.
// False when the start ends here: on Cancel, or after the message of a failed connect.
bool ConnectAtStart(const std::string& commandLine, Session& session, GameLink& link,
                    Desktop& desktop, QWidget* parent);
// Connects again with the session's connection string; a failure is shown in a message box.
void Reconnect(const Session& session, GameLink& link, Desktop& desktop, QWidget* parent);

} // namespace steward
