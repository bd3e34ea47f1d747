#pragma once

namespace steward {

// A frame command that sends one fixed text, as if typed.
struct FixedTextCommand {
    int Command;
    const char* Text;
};

// The text that one of the Info menu's commands sends, or null for any other command; these
// are looked up before every other command.
const char* FindFixedText(int command);


} // namespace steward
