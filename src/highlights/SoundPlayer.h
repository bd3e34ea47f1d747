#pragma once

namespace steward {

// The platform's wave player: starts a file at once, cutting off the sound before it.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    // Returns false when no such file exists; a file that cannot be played is ignored.
    virtual bool PlayFile(const char* path) = 0;
};

// Where the matcher sends the sound names of its hits.
class HighlightSounds {
  public:
    virtual ~HighlightSounds() = default;
    virtual void PlayHighlightSound(const char* name) = 0;
};

} // namespace steward
