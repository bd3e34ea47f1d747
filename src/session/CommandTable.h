#pragma once

#include <span>

namespace steward {

// A frame command that sends one fixed text, as if typed.
struct FixedTextCommand {
    int Command;
    const char* Text;
};

// The texts of the Info menu, looked up before every other command.
std::span<const FixedTextCommand> FixedTextCommands();
// The text that a command sends, or null when it is not one of the fixed-text commands.
const char* FindFixedText(int command);

// False for the commands whose work comes with a later part of the program: their menu
// items are shown grey.
bool IsCommandAvailable(int command);

} // namespace steward
