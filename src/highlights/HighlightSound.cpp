#include "highlights/HighlightSound.h"

#include <cstdio>
#include <cstring>

namespace steward {

bool BuildSoundPath(char (&out)[SOUND_PATH_SIZE], const char* soundPath, const char* name)
{
    const char* extension = std::strchr(name, '.') ? "" : ".WAV";
    const int length = std::snprintf(out, sizeof out, "%s/%s%s", soundPath, name, extension);
    return length >= 0 && static_cast<std::size_t>(length) < sizeof out;
}

void SoundFolder::PlayHighlightSound(const char* name)
{
    char path[SOUND_PATH_SIZE];
    if (!BuildSoundPath(path, soundPath_.c_str(), name))
        return;
    if (player_.PlayFile(path) || std::strchr(name, '.'))
        return;
    std::memcpy(path + std::strlen(path) - 4, ".wav", 4);
    player_.PlayFile(path);
}

void PlayStartMusic(HighlightSounds& sounds, bool squelchSounds)
{
    if (!squelchSounds)
        sounds.PlayHighlightSound(START_MUSIC);
}

} // namespace steward
