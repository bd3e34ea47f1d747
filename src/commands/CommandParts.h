#pragma once

#include "scripts/CommandState.h"

namespace steward {

class CommandHistory;
class CommandLineEdit;
class CommandSink;
class FrameQueue;
class KeyboardHost;
class MacroStore;
struct Settings;

// Everything the key filter, the macro player and the command sender work on.
struct CommandParts {
    CommandLineEdit& Line;
    CommandSink& Sink;
    FrameQueue& Queue;
    KeyboardHost& Host;
    CommandHistory& History;
    MacroStore& Macros;
    CommandState& State;
    // MinCommandLength, CommandPrefix and HonorNumLock are read at each use.
    const Settings& Options;
};

} // namespace steward
