#include "session/qt/ConnectionChoice.h"

#include "base/ByteText.h"
#include "base/Trace.h"

#include "config/ConfigFiles.h"
#include "config/IniStore.h"
#include "session/GameLink.h"
#include "session/qt/Desktop.h"

namespace steward {

namespace {

// The stored host holds up to 255 characters.
constexpr std::size_t HOST_VALUE_SIZE = 256;
constexpr char CONNECTION_SECTION[] = "Connection";
constexpr char OFFLINE_TEXT[] = "\r\n\r\n*** Operating in an Offline mode.\r\n\r\n";

// The connection string of the command line, else the connect dialog's choice, which the main
// ini remembers; false on Cancel. Offline leaves the connection empty, host and port at their
// defaults.
bool ChooseConnection(const std::string& commandLine, const std::string& mainIni, Desktop& desktop,
                      QWidget* parent, char (&connection)[CONNECTION_STRING_SIZE],
                      std::string& host, int& port)
{
    if (!commandLine.empty()) {
        CopyCut(connection, sizeof connection, commandLine.c_str());
        return true;
    }
    char stored[HOST_VALUE_SIZE];
    ReadString(mainIni, CONNECTION_SECTION, "Host", stored, sizeof stored, DEFAULT_HOST);
    host = stored;
    port = ReadInt(mainIni, CONNECTION_SECTION, "Port", DEFAULT_PORT);
    ConnectChoice choice = desktop.AskConnection(parent, host, port);
    // Connecting to no host is the offline choice.
    if (choice == ConnectChoice::Connect && host.empty())
        choice = ConnectChoice::Offline;
    switch (choice) {
    case ConnectChoice::Cancel:
        return false;
    case ConnectChoice::Offline:
        host = DEFAULT_HOST;
        port = DEFAULT_PORT;
        return true;
    case ConnectChoice::Connect:
        break;
    }
    FormatConnectionString(connection, host.c_str(), port);
    // Unremembered, the dialog offers the old host next time, which is all a failed write costs.
    if (!WriteString(mainIni, CONNECTION_SECTION, "Host", host.c_str()) ||
        !WriteInt(mainIni, CONNECTION_SECTION, "Port", port))
        Trace("Could not remember the host in \"%s\"\n", mainIni.c_str());
    return true;
}

} // namespace

bool ConnectAtStart(const std::string& commandLine, Session& session, GameLink& link,
                    Desktop& desktop, QWidget* parent)
{
    char connection[CONNECTION_STRING_SIZE] = {};
    std::string host = DEFAULT_HOST;
    int port = DEFAULT_PORT;
    if (!ChooseConnection(commandLine, session.Files.MainIni, desktop, parent, connection, host,
                          port))
        return false;
    SetConnectionString(session, connection);
    const int result = link.ConnectToGame(session.ConnectionString);
    if (result == CONNECT_OFFLINE) {
        FormatConnectionString(session.ConnectionString, host.c_str(), port);
        link.PrintToGameWindow(OFFLINE_TEXT);
        return true;
    }
    if (const char* failure = ConnectFailureText(result)) {
        desktop.ShowMessage(parent, failure, CONNECT_FAILURE_TITLE);
        return false;
    }
    return true;
}

void Reconnect(const Session& session, GameLink& link, Desktop& desktop, QWidget* parent)
{
    const int result = link.ConnectToGame(session.ConnectionString);
    if (const char* failure = ConnectFailureText(result))
        desktop.ShowMessage(parent, failure, CONNECT_FAILURE_TITLE);
}

} // namespace steward
