#pragma once

#include "config/BufferedLog.h"
#include "config/CharacterProfile.h"
#include "config/ConfigFiles.h"
#include "config/StewardOptions.h"
#include "connection/PacketDump.h"
#include "panels/StatusPanel.h"
#include "scripts/ScriptWait.h"
#include "scripts/Tokenizer.h"
#include "session/RestMode.h"
#include "terminal/ChildWindows.h"

#include <cstddef>

namespace steward {

constexpr std::size_t CONNECTION_STRING_SIZE = 256;

// The program's state, in groups, living as long as the process. The socket and the
// window objects belong to the frame; their handles here are what the other parts reach.
struct Session {
    // Windows: the three text windows as core code reaches them.
    ChildWindows Windows;

    // Files and names: ProgramFolder and MainIni; CurrentCharacter, ProfilePath, Settings and
    // the equipment commands of the loaded profile.
    ConfigFiles Files;
    CharacterProfile Profile;
    // The program's own additions, from the main ini.
    StewardOptions Steward;
    BufferedLog SessionLog;
    steward::PacketDump PacketDump;

    // Connection: what "Connect to the Game" connects to again.
    char ConnectionString[CONNECTION_STRING_SIZE] = {};
    // A recorded session plays instead of a connection, and nothing connects.
    bool Replay = false;

    // Timer and rest mode.
    RestState Rest;

    // Running work; the keyboard keeps DragTarget and the script's name and parameters.
    ScriptWaitState Script;
    // The one word splitter that the line analysis and the scripts share.
    Tokenizer Words;

    // What the status record feeds.
    StatusPanel Panel;
};

// Copies a connection string, cut to its field.
void SetConnectionString(Session& session, const char* text);
// "/H%s/P%d", the form the client writes itself.
void FormatConnectionString(char (&out)[CONNECTION_STRING_SIZE], const char* host, int port);

} // namespace steward
