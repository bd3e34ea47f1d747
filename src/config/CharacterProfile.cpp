#include "config/CharacterProfile.h"

#include "base/Trace.h"
#include "config/BinaryRecords.h"
#include "config/IniBatch.h"
#include "config/IniStore.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace steward {

namespace {

constexpr char CONFIG_SECTION[] = "Config";
constexpr char COLORS_SECTION[] = "Colors";
constexpr char WINDOWS_SECTION[] = "Windows";
constexpr char HISTORY_SECTION[] = "History";
constexpr char SETTINGS_KEY[] = "Settings";
constexpr char LAST_CHAR_KEY[] = "LastChar";
constexpr char NO_WINDOWS[] = "{none}";
constexpr char DEFAULT_WINDOWS[] = "tG";

struct EquipKey {
    const char* key;
    char (CharacterProfile::*value)[EQUIP_COMMAND_SIZE];
    const char* defaultValue;
};

constexpr EquipKey EQUIP_KEYS[] = {
    {"EquipWeapon", &CharacterProfile::EquipWeapon, "ready saber"},
    {"UnequipWeapon", &CharacterProfile::UnequipWeapon, "unready saber"},
    {"EquipShield", &CharacterProfile::EquipShield, "ready shield"},
    {"UnequipShield", &CharacterProfile::UnequipShield, "unready shield"},
};

void SetCurrentCharacter(CharacterProfile& profile, const ConfigFiles& files, const char* name)
{
    char* current = profile.CurrentCharacter;
    if (name) {
        const std::string_view given(name);
        const std::size_t length = std::min(given.size(), CHARACTER_NAME_SIZE - 1);
        std::memmove(current, given.data(), length);
        current[length] = '\0';
    } else {
        ReadString(files.MainIni, HISTORY_SECTION, LAST_CHAR_KEY, current, CHARACTER_NAME_SIZE,
                   DEFAULT_CHARACTER);
    }
    if (current[0] == '\0')
        std::strcpy(current, DEFAULT_CHARACTER);
    profile.ProfilePath = ProfileFilePath(files, current, PROFILE_EXTENSION);
}

bool WriteSettings(const std::string& path, const Settings& settings)
{
    const SettingsBytes bytes = settings.ToBytes();
    return WriteBinary(path, CONFIG_SECTION, SETTINGS_KEY, bytes.data(), bytes.size());
}

// Reads Settings; a missing value or one of the wrong length starts the file afresh.
bool ReadSettings(CharacterProfile& profile)
{
    SettingsBytes bytes{};
    if (ReadBinary(profile.ProfilePath, CONFIG_SECTION, SETTINGS_KEY, bytes.data(), bytes.size())) {
        profile.Settings = Settings::FromBytes(bytes);
        return false;
    }
    profile.Settings = Settings{};
    // A profile that cannot be rewritten still plays with the defaults; its save will say so.
    if (!DeleteIniFile(profile.ProfilePath) ||
        !WriteSettings(profile.ProfilePath, profile.Settings))
        Trace("Could not start \"%s\" afresh\n", profile.ProfilePath.c_str());
    return true;
}

void ReadGaugeColors(const std::string& path, ProfileHost& parts)
{
    for (std::size_t i = 0; i < PROFILE_GAUGE_COUNT; ++i) {
        GaugeColorBytes bytes{};
        if (ReadBinary(path, COLORS_SECTION, GAUGE_COLOR_KEYS[i], bytes.data(), bytes.size()))
            parts.SetGaugeColors(static_cast<ProfileGauge>(i), GaugeColorsFromBytes(bytes));
    }
}

bool WriteGaugeColors(const std::string& path, ProfileHost& parts)
{
    bool written = true;
    for (std::size_t i = 0; i < PROFILE_GAUGE_COUNT; ++i) {
        const GaugeColorBytes bytes =
            GaugeColorsToBytes(parts.GetGaugeColors(static_cast<ProfileGauge>(i)));
        written =
            WriteBinary(path, COLORS_SECTION, GAUGE_COLOR_KEYS[i], bytes.data(), bytes.size()) &&
            written;
    }
    return written;
}

void ReadEquipment(CharacterProfile& profile)
{
    for (const EquipKey& e : EQUIP_KEYS)
        ReadString(profile.ProfilePath, CONFIG_SECTION, e.key, profile.*e.value, EQUIP_COMMAND_SIZE,
                   e.defaultValue);
}

bool WriteEquipment(const std::string& path, const CharacterProfile& profile)
{
    bool written = true;
    for (const EquipKey& e : EQUIP_KEYS)
        written = WriteString(path, CONFIG_SECTION, e.key, profile.*e.value) && written;
    return written;
}

} // namespace

bool LoadProfile(const ConfigFiles& files, CharacterProfile& profile, ProfileHost& parts,
                 const char* name, bool createOnly)
{
    SetCurrentCharacter(profile, files, name);
    if (createOnly)
        return false;
    Trace("Loading configuration from \"%s\"\n", profile.ProfilePath.c_str());
    const bool isNew = ReadSettings(profile);
    ReadGaugeColors(profile.ProfilePath, parts);
    CheckSettings(profile.Settings);
    if (profile.Settings.HonorNumLock)
        parts.SetNumLockOff();
    ReadEquipment(profile);
    parts.RestoreChildWindows(profile.ProfilePath);
    const std::string character = profile.CurrentCharacter;
    parts.LoadMacros(ProfileFilePath(files, character, MACROS_EXTENSION));
    parts.LoadHighlights(ProfileFilePath(files, character, HIGHLIGHTS_EXTENSION),
                         ProfileFilePath(files, character, NAMES_EXTENSION));
    parts.LoadHistory(ProfileFilePath(files, character, HISTORY_EXTENSION));
    parts.SetDefaultMacros(isNew);
    parts.UpdateTitle();
    return isNew;
}

bool SaveProfile(const ConfigFiles& files, const CharacterProfile& profile, ProfileHost& parts,
                 const char* name)
{
    if (!name)
        name = profile.CurrentCharacter;
    const std::string path = ProfileFilePath(files, name, PROFILE_EXTENSION);
    Trace("Saving data to \"%s\"\n", path.c_str());
    // Inside the batch every write goes to memory; what reaches the disk is decided at Commit.
    IniBatch dat(path);
    bool saved = WriteSettings(path, profile.Settings);
    saved = WriteEquipment(path, profile) && saved;
    saved = WriteGaugeColors(path, parts) && saved;
    saved = parts.SaveChildWindows(path) && saved;
    saved = dat.Commit() && saved;
    saved = parts.SaveMacros(ProfileFilePath(files, name, MACROS_EXTENSION)) && saved;
    saved = parts.SaveHistory(ProfileFilePath(files, name, HISTORY_EXTENSION)) && saved;
    return parts.SaveHighlights(ProfileFilePath(files, name, HIGHLIGHTS_EXTENSION),
                                ProfileFilePath(files, name, NAMES_EXTENSION)) &&
           saved;
}

bool WriteLastChar(const ConfigFiles& files, const CharacterProfile& profile)
{
    return WriteString(files.MainIni, HISTORY_SECTION, LAST_CHAR_KEY, profile.CurrentCharacter);
}

std::string ReadOpenWindows(const std::string& profilePath)
{
    char letters[OPEN_WINDOWS_SIZE];
    ReadString(profilePath, WINDOWS_SECTION, "Open Windows", letters, sizeof letters, NO_WINDOWS);
    return std::strcmp(letters, NO_WINDOWS) == 0 ? DEFAULT_WINDOWS : letters;
}

bool WriteOpenWindows(const std::string& profilePath, const std::string& letters)
{
    return WriteString(profilePath, WINDOWS_SECTION, "Open Windows", letters.c_str());
}

} // namespace steward
