#include "highlights/HighlightSound.h"

#include "highlights/SoundFiles.h"

#include <cstdio>
#include <cstring>

namespace steward {

bool BuildSoundPath(char (&out)[SOUND_PATH_SIZE], const char* soundPath, const char* name)
{
    const char* extension = std::strchr(name, '.') ? "" : ".WAV";
    const int length = std::snprintf(out, sizeof out, "%s/%s%s", soundPath, name, extension);
    return length >= 0 && static_cast<std::size_t>(length) < sizeof out;
}

bool SoundFolder::TryPlay(const char* name)
{
    char path[SOUND_PATH_SIZE];
    if (!BuildSoundPath(path, soundPath_.c_str(), name))
        return false;
    if (player_.PlayFile(path))
        return true;
    const bool dotted = std::strchr(name, '.') != nullptr;
    if (!dotted) {
        std::memcpy(path + std::strlen(path) - 4, ".wav", 4);
        if (player_.PlayFile(path))
            return true;
    }
    // Only a name that was not found costs a look through the folder.
    const std::string found =
        FindFileNoCase(soundPath_, std::string(name) + (dotted ? "" : ".wav"));
    return !found.empty() && found.size() < SOUND_PATH_SIZE && player_.PlayFile(found.c_str());
}

void PlayStartMusic(HighlightSounds& sounds, bool squelchSounds)
{
    if (!squelchSounds)
        sounds.PlayHighlightSound(START_MUSIC);
}

} // namespace steward
