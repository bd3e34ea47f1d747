#pragma once

#include "commands/CommandParts.h"
#include "commands/KeyModifiers.h"

#include <cstddef>

namespace steward {

class CommandSender;

// The answer of `\?` holds at most 32 characters.
constexpr std::size_t MACRO_ANSWER_SIZE = 33;

// Plays macro texts into the command line as if the player typed them.
class MacroPlayer {
  public:
    MacroPlayer(const CommandParts& parts, CommandSender& sender);

    // Looks the key up in the MacroStore and plays its text; a key without text does nothing.
    void ExpandMacro(KeyModifiers modifiers, int virtualKey);
    void PlayMacro(const char* text);

  private:
    bool PlayWord(const char* text);
    void RunMacroScript(const char* name);
    void SaveLine();
    void PressEnter();
    void Type(const char* text);

    CommandParts parts_;
    CommandSender& sender_;
};

} // namespace steward
