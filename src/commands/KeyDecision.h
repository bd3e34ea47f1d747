#pragma once

#include "commands/KeyModifiers.h"
#include "terminal/ScrollCommand.h"

namespace steward {

enum class KeyAction {
    None,
    ExpandMacro,    // Key holds the macro key, after the keypad's navigation keys are mapped
    SelectMacroSet, // Value holds the set index
    HistoryPrevious,
    HistoryNext,
    Scroll,             // Value holds the SB_ scroll command
    RepeatCommand,      // Value holds how many commands back
    RepeatThenEnterKey, // RepeatCommand(1), then MM_ENTER_KEY that is not remembered
    EnterKey,           // MM_ENTER_KEY that is remembered
    NextChildWindow,
    ToggleGameWindow,
    Escape,
};

struct KeyDecision {
    KeyAction Action = KeyAction::None;
    bool Taken = false; // the key goes no further, to no widget, shortcut or menu
    int Key = 0;
    int Value = 0;
};

// What a key press does, by the key filter's table. NumLock is honoured when the modifiers
// carry KEY_NUMLOCK and the option asks for it.
KeyDecision DecideKey(int virtualKey, KeyModifiers modifiers, bool honorNumLock,
                      bool commandLineEmpty);

} // namespace steward
