#pragma once

#include "config/ConfigFiles.h"
#include "config/ProfileHost.h"
#include "config/Settings.h"

#include <cstddef>
#include <string>

namespace steward {

constexpr std::size_t CHARACTER_NAME_SIZE = 64;
// Each equipment command holds up to 126 characters.
constexpr std::size_t EQUIP_COMMAND_SIZE = 127;
// Open Windows holds up to 30 letters.
constexpr std::size_t OPEN_WINDOWS_SIZE = 31;

constexpr char DEFAULT_CHARACTER[] = "Default";
constexpr char PROFILE_EXTENSION[] = ".Dat";
constexpr char MACROS_EXTENSION[] = ".Macros";
constexpr char HIGHLIGHTS_EXTENSION[] = ".Highlights";
constexpr char NAMES_EXTENSION[] = ".Names";
constexpr char HISTORY_EXTENSION[] = ".History";

// What the client remembers of one character, as loaded from and saved to its .Dat file.
struct CharacterProfile {
    char CurrentCharacter[CHARACTER_NAME_SIZE] = {};
    // The .Dat file of CurrentCharacter; the windows read and write their state there.
    std::string ProfilePath;
    steward::Settings Settings;
    // Sent by the tool buttons; a load fills each, with its default when the key is missing.
    char EquipWeapon[EQUIP_COMMAND_SIZE] = {};
    char UnequipWeapon[EQUIP_COMMAND_SIZE] = {};
    char EquipShield[EQUIP_COMMAND_SIZE] = {};
    char UnequipShield[EQUIP_COMMAND_SIZE] = {};
};

// Makes name (null: LastChar of the main ini) the current character and, unless createOnly,
// reads its profile and hands the other parts theirs. True when the profile was new: missing,
// or with a Settings value of the wrong length, in which case its file is started afresh.
bool LoadProfile(const ConfigFiles& files, CharacterProfile& profile, ProfileHost& parts,
                 const char* name, bool createOnly);

// Writes every file of the profile under name (null: CurrentCharacter); empty equipment
// commands lose their keys. Each file is replaced whole or not at all; false when any of them
// could not be written.
[[nodiscard]] bool SaveProfile(const ConfigFiles& files, const CharacterProfile& profile,
                               ProfileHost& parts, const char* name);

// LastChar of the main ini, written at program end.
[[nodiscard]] bool WriteLastChar(const ConfigFiles& files, const CharacterProfile& profile);

// The window letters of the profile ("g", "t", "a", the focused one in upper case); a missing
// value and "{none}" read as "tG".
std::string ReadOpenWindows(const std::string& profilePath);
[[nodiscard]] bool WriteOpenWindows(const std::string& profilePath, const std::string& letters);

} // namespace steward
