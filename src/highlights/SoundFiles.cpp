#include "highlights/SoundFiles.h"

#include "base/ByteText.h"
#include "config/FileHandle.h"
#include "highlights/HighlightItem.h"

#include <cstdio>
#include <cstring>
#include <filesystem>

namespace steward {

namespace fs = std::filesystem;

namespace {

// "RIFF", four bytes of length, "WAVE".
constexpr std::size_t WAVE_HEADER_SIZE = 12;

bool SameFolder(const fs::path& a, const fs::path& b)
{
    std::error_code error;
    return fs::equivalent(a, b, error);
}

} // namespace

SoundFileKind CheckSoundFile(const std::string& path)
{
    File file(std::fopen(path.c_str(), "rb"));
    if (!file)
        return SoundFileKind::Missing;
    char header[WAVE_HEADER_SIZE] = {};
    const bool wave = std::fread(header, 1, sizeof header, file.get()) == sizeof header &&
                      std::memcmp(header, "RIFF", 4) == 0 &&
                      std::memcmp(header + 8, "WAVE", 4) == 0;
    const std::string extension = fs::path(path).extension().string();
    return wave && EqualNoCase(extension.c_str(), ".wav") ? SoundFileKind::Wave
                                                          : SoundFileKind::NotWave;
}

SoundImport ImportSoundFile(const std::string& path, const std::string& soundFolder)
{
    const fs::path file(path);
    const std::string name = file.filename().string();
    const SoundFileKind kind = CheckSoundFile(path);
    if (kind == SoundFileKind::Missing)
        return {{}, "The sound file \"" + path + "\" does not exist."};
    if (kind == SoundFileKind::NotWave)
        return {{}, "\"" + name + "\" is not a wave sound: a sound must be a .wav file."};
    if (!SameFolder(file.parent_path(), soundFolder)) {
        const fs::path target = fs::path(soundFolder) / name;
        std::error_code error;
        if (fs::exists(target, error) || !FindFileNoCase(soundFolder, name).empty())
            return {{},
                    "A sound named \"" + name + "\" is already in the sound folder " + soundFolder +
                        "; choose it from the list, or rename the new file."};
        if (!fs::copy_file(file, target, error))
            return {{},
                    "The sound could not be copied into the sound folder " + soundFolder + ": " +
                        error.message() + "."};
    }
    return {SoundChoiceOfFile(name), {}};
}

std::string FindFileNoCase(const std::string& folder, const std::string& name)
{
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const std::string candidate = at->path().filename().string();
        if (EqualNoCase(candidate.c_str(), name.c_str()))
            return at->path().string();
    }
    return {};
}

} // namespace steward
