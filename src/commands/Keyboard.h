#pragma once

#include "commands/CommandHistory.h"
#include "commands/CommandParts.h"
#include "commands/CommandSender.h"
#include "commands/KeyFilter.h"
#include "commands/MacroPlayer.h"
#include "commands/MacroStore.h"

namespace steward {

// The keyboard's state and its three workers, wired once to the frame's parts; the frame owns
// one for the life of the program, and a change of character reloads Macros in place.
class Keyboard {
  public:
    Keyboard(CommandLineEdit& line, CommandSink& sink, FrameQueue& queue, KeyboardHost& host,
             const Settings& settings)
        : Parts{line, sink, queue, host, History, Macros, State, settings}
    {
    }
    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;

    CommandHistory History;
    MacroStore Macros;
    CommandState State;
    CommandParts Parts;
    CommandSender Sender{Parts};
    MacroPlayer Player{Parts, Sender};
    KeyFilter Filter{Parts, Sender, Player};
};

} // namespace steward
