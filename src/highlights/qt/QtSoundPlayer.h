#pragma once

#include "highlights/SoundPlayer.h"

#include <QString>

#include <memory>

class QSoundEffect;

namespace steward {

// Plays wave files through one QSoundEffect, so that a new sound cuts off the one before; with
// no audio output it stays silent.
class QtSoundPlayer : public SoundPlayer {
  public:
    QtSoundPlayer();
    ~QtSoundPlayer() override;

    bool PlayFile(const char* path) override;

  private:
    std::unique_ptr<QSoundEffect> effect_;
};

} // namespace steward
