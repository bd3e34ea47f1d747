#pragma once

#include "session/Session.h"

#include <string>

class QWidget;

namespace steward {

class Desktop;

// The connection string of the command line, else the connect dialog's choice, which the main
// ini remembers; false on Cancel. Offline leaves the connection empty, host and port at their
// defaults.
bool ChooseConnection(const std::string& commandLine, const std::string& mainIni, Desktop& desktop,
                      QWidget* parent, char (&connection)[CONNECTION_STRING_SIZE],
                      std::string& host, int& port);

} // namespace steward
