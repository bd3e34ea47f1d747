#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace steward {

constexpr char MAIN_INI_NAME[] = "Thornmere.Ini";
constexpr char DATA_FOLDER_NAME[] = "ThornmereSteward";

// The connect dialog's first proposal: the practice world on this machine.
constexpr char DEFAULT_HOST[] = "127.0.0.1";
constexpr std::int32_t DEFAULT_PORT = 34283;

// Script Path and Sound Path hold up to 254 characters.
constexpr std::size_t FOLDER_VALUE_SIZE = 255;

// Where the program keeps its files; the session owns one and hands it to whoever needs it.
struct ConfigFiles {
    std::string ProgramFolder;
    // ProgramFolder + "/Thornmere.Ini".
    std::string MainIni;
};

ConfigFiles MakeConfigFiles(std::string_view programFolder);

// The folder part of a path: everything before its last slash.
std::string FolderOf(std::string_view path);

// The executable's folder when it holds a Thornmere.Ini (a portable copy), otherwise
// dataHome/ThornmereSteward, with dataHome as $XDG_DATA_HOME or else home/.local/share.
// The chosen folder is created when missing.
std::string FindProgramFolder(std::string_view executableFolder, std::string_view xdgDataHome,
                              std::string_view home);

// Script Path and Sound Path of the main ini without one trailing slash, or the ProgramFolder
// when the value is empty; a user appends "/" and a file name.
std::string ScriptPath(const ConfigFiles& files);
std::string SoundPath(const ConfigFiles& files);

// folder + "/" + name + extension, the form of every profile file (".Dat", ".Macros", ...).
std::string ProfileFilePath(const ConfigFiles& files, std::string_view name,
                            std::string_view extension);

} // namespace steward
