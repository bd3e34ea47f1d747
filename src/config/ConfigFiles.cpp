#include "config/ConfigFiles.h"

#include "config/IniStore.h"

#include <filesystem>

namespace steward {

namespace {

std::string Join(std::string_view folder, std::string_view name)
{
    std::string path(folder);
    path += '/';
    path += name;
    return path;
}

std::string ConfiguredFolder(const ConfigFiles& files, const char* key)
{
    char value[FOLDER_VALUE_SIZE];
    ReadString(files.MainIni, "Config", key, value, sizeof value, "");
    std::string folder = value[0] ? value : files.ProgramFolder;
    if (!folder.empty() && (folder.back() == '/' || folder.back() == '\\'))
        folder.pop_back();
    return folder;
}

} // namespace

ConfigFiles MakeConfigFiles(std::string_view programFolder)
{
    return {std::string(programFolder), Join(programFolder, MAIN_INI_NAME)};
}

std::string FolderOf(std::string_view path)
{
    const std::size_t slash = path.find_last_of('/');
    return std::string(slash == std::string_view::npos ? std::string_view{}
                                                       : path.substr(0, slash));
}

std::string FindProgramFolder(std::string_view executableFolder, std::string_view xdgDataHome,
                              std::string_view home)
{
    std::error_code error;
    if (std::filesystem::exists(Join(executableFolder, MAIN_INI_NAME), error))
        return std::string(executableFolder);
    const std::string dataHome =
        xdgDataHome.empty() ? Join(home, ".local/share") : std::string(xdgDataHome);
    const std::string folder = Join(dataHome, DATA_FOLDER_NAME);
    std::filesystem::create_directories(folder, error);
    return folder;
}

std::string ScriptPath(const ConfigFiles& files)
{
    return ConfiguredFolder(files, "Script Path");
}

std::string SoundPath(const ConfigFiles& files)
{
    return ConfiguredFolder(files, "Sound Path");
}

std::string ProfileFilePath(const ConfigFiles& files, std::string_view name,
                            std::string_view extension)
{
    std::string path = Join(files.ProgramFolder, name);
    path += extension;
    return path;
}

} // namespace steward
