#pragma once

#include "highlights/SoundPlayer.h"

#include <cstddef>
#include <string>

namespace steward {

// A sound path is built in a buffer of this size; a longer one plays nothing.
constexpr std::size_t SOUND_PATH_SIZE = 256;

// Builds "SoundPath/name", with ".WAV" added when the name holds no dot; false when it does
// not fit in out.
bool BuildSoundPath(char (&out)[SOUND_PATH_SIZE], const char* soundPath, const char* name);

// Plays the wave files of SoundPath by name, trying ".wav" when an added ".WAV" finds nothing,
// and at last a file whose name differs only in case.
class SoundFolder : public HighlightSounds {
  public:
    explicit SoundFolder(SoundPlayer& player) : player_(player) {}

    void SetSoundPath(const std::string& folder) { soundPath_ = folder; }
    const std::string& SoundPath() const { return soundPath_; }

    void PlayHighlightSound(const char* name) override { TryPlay(name); }
    // False when no file of that name was found.
    bool TryPlay(const char* name);

  private:
    SoundPlayer& player_;
    std::string soundPath_;
};

// The start-up sound's name, played unless SquelchSounds is on.
constexpr const char* START_MUSIC = "T_STARTMUSIC";
void PlayStartMusic(HighlightSounds& sounds, bool squelchSounds);

} // namespace steward
