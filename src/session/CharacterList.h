#pragma once

#include "base/FrameCommand.h"
#include "config/ConfigFiles.h"

#include <cstddef>
#include <string>
#include <vector>

namespace steward {

// The "Characters" submenu lists at most this many profiles, one command each.
constexpr int LISTED_CHARACTERS = CMD_LAST_CHARACTER - CMD_FIRST_CHARACTER + 1;
// A new character's name holds up to 60 characters.
constexpr std::size_t NEW_CHARACTER_LIMIT = 60;
// Where "Characters" sits in the "Configuration" menu.
constexpr int CHARACTERS_MENU_POSITION = 8;

// One item of the "Characters" submenu: the capitalised text the player reads, and the real
// file name without ".Dat" that the item loads.
struct CharacterItem {
    int Command = 0;
    std::string Text;
    std::string FileName;
    bool Checked = false;
};

// The profiles of the folder (its "NAME.Dat" files) as the submenu lists them: sorted by name
// without regard to case, the first LISTED_CHARACTERS of them, the current one checked.
std::vector<CharacterItem> BuildCharacterMenu(const std::string& folder, const char* current);

// "bOB smith" reads "Bob smith": all lower case, then the first letter upper case.
std::string CharacterMenuText(const std::string& fileName);

// Gives every "NAME.Macros" of the ProgramFolder a "NAME.Dat" when it has none, holding one
// empty line, so that a macro file brought in by hand makes a character.
void EnsureProfileFiles(const ConfigFiles& files);

// The message that refuses a name as a file name, or null: empty, a path separator or another
// character that file names cannot hold, or a leading dot or space.
const char* CheckNameCharacters(const char* name);
// CheckNameCharacters, and also refused: the name of a profile that exists (in any case).
const char* CheckCharacterName(const ConfigFiles& files, const char* name);

// The configuration menu's place on a menu bar of that many items: a maximised child window
// adds one item in front of the menus.
int ConfigurationMenuPosition(int barItems);

} // namespace steward
