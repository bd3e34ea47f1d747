#include "session/CharacterList.h"

#include "base/ByteText.h"
#include "config/CharacterProfile.h"
#include "session/MenuBar.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace steward {

namespace {

// Bytes that a file name on any desktop system cannot hold.
constexpr char FORBIDDEN_IN_NAME[] = "/\\:*?\"<>|";

std::string FoldedName(const std::string& name)
{
    std::string folded = name;
    for (char& c : folded)
        c = static_cast<char>(FoldCase(static_cast<unsigned char>(c)));
    return folded;
}

// The names of the folder's files that end in the extension, without it.
std::vector<std::string> NamesWithExtension(const std::string& folder, std::string_view extension)
{
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string file = entry->path().filename().string();
        if (file.size() > extension.size() && file.ends_with(extension))
            names.push_back(file.substr(0, file.size() - extension.size()));
    }
    return names;
}

bool ProfileExists(const ConfigFiles& files, const char* name)
{
    for (const std::string& existing : NamesWithExtension(files.ProgramFolder, PROFILE_EXTENSION))
        if (EqualNoCase(existing.c_str(), name))
            return true;
    return false;
}

} // namespace

std::string CharacterMenuText(const std::string& fileName)
{
    std::string text = FoldedName(fileName);
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z')
        text[0] = static_cast<char>(text[0] - ('a' - 'A'));
    return text;
}

std::vector<CharacterItem> BuildCharacterMenu(const std::string& folder, const char* current)
{
    std::vector<std::string> names = NamesWithExtension(folder, PROFILE_EXTENSION);
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string fa = FoldedName(a);
        const std::string fb = FoldedName(b);
        return fa != fb ? fa < fb : a < b;
    });
    if (names.size() > static_cast<std::size_t>(LISTED_CHARACTERS))
        names.resize(LISTED_CHARACTERS);
    std::vector<CharacterItem> items;
    int command = CMD_FIRST_CHARACTER;
    for (const std::string& name : names)
        items.push_back({command++, CharacterMenuText(name), name,
                         EqualNoCase(name.c_str(), current ? current : "")});
    return items;
}

void EnsureProfileFiles(const ConfigFiles& files)
{
    for (const std::string& name : NamesWithExtension(files.ProgramFolder, MACROS_EXTENSION)) {
        const std::string dat = ProfileFilePath(files, name, PROFILE_EXTENSION);
        if (std::ifstream(dat, std::ios::binary).is_open())
            continue;
        std::ofstream(dat, std::ios::binary) << "\r\n";
    }
}

const char* CheckNameCharacters(const char* name)
{
    if (name[0] == '\0')
        return "A character needs a name.";
    for (const char* at = name; *at; ++at) {
        const auto c = static_cast<unsigned char>(*at);
        if (c < ' ' || c == 0x7F || std::strchr(FORBIDDEN_IN_NAME, c))
            return "A character's name cannot hold any of / \\ : * ? \" < > | or control "
                   "characters.";
    }
    if (name[0] == '.' || name[0] == ' ')
        return "A character's name cannot begin with a dot or a space.";
    return nullptr;
}

const char* CheckCharacterName(const ConfigFiles& files, const char* name)
{
    if (const char* problem = CheckNameCharacters(name))
        return problem;
    if (ProfileExists(files, name))
        return "A character of that name exists already. Choose it from the Characters menu.";
    return nullptr;
}

int ConfigurationMenuPosition(int barItems)
{
    return barItems > static_cast<int>(MainMenu().size()) ? CONFIGURATION_MENU_POSITION + 1
                                                          : CONFIGURATION_MENU_POSITION;
}

} // namespace steward
