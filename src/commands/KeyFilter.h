#pragma once

#include "commands/CommandParts.h"
#include "commands/KeyModifiers.h"

#include <cstddef>

namespace steward {

class CommandSender;
class MacroPlayer;
class MacroStore;
struct KeyDecision;

constexpr std::size_t FRAME_TITLE_SIZE = 256;

// "Thornmere [%s]: Current Macro Set: %d - %s" for the current set, counted from 1.
void MacroSetTitle(char* out, std::size_t capacity, const char* character, const MacroStore& store);

// Turns key presses into the keyboard's actions before any widget sees them.
class KeyFilter {
  public:
    KeyFilter(const CommandParts& parts, CommandSender& sender, MacroPlayer& player);

    // Every key press, modifiers included; true when the key was taken.
    bool KeyDown(int virtualKey, KeyModifiers modifiers);
    // Whether KeyDown would take the key, without acting; for a shortcut's first look.
    bool WouldTake(int virtualKey, KeyModifiers modifiers) const;

  private:
    KeyDecision Decide(int virtualKey, KeyModifiers modifiers) const;
    void Act(const KeyDecision& decision, KeyModifiers modifiers);
    void SelectMacroSet(int index);
    void Escape();

    CommandParts parts_;
    CommandSender& sender_;
    MacroPlayer& player_;
};

} // namespace steward
