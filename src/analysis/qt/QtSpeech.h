#pragma once

#include "analysis/SpeechQueue.h"

#include <QObject>

#include <functional>
#include <memory>

class QTextToSpeech;

namespace steward {

// What the player reads when "Speak" cannot be turned on.
constexpr char NO_VOICE_TEXT[] =
    "Speak stays off: no speech engine can speak here. On Debian, install "
    "qt6-speech-speechd-plugin (with speech-dispatcher) or qt6-speech-flite-plugin, and check "
    "the sound output.";

// The voice of Qt's text-to-speech engine. The engine is made the first time it is asked for,
// so that a player who never turns "Speak" on never starts a speech service.
class QtSpeech : public QObject, public SpeechEngine {
    Q_OBJECT
  public:
    QtSpeech();
    ~QtSpeech() override;

    bool Available() override;
    void Speak(const char* text) override;
    // Hears, on a later turn of the loop, that a text was spoken or given up.
    void SetFinished(std::function<void()> finished) { finished_ = std::move(finished); }
    // Hears, on a later turn of the loop, that the engine failed and no voice is left.
    void SetFailed(std::function<void()> failed) { failed_ = std::move(failed); }

  private:
    void Finish();
    void Later(const std::function<void()>& call);

    std::unique_ptr<QTextToSpeech> engine_;
    std::function<void()> finished_;
    std::function<void()> failed_;
    bool tried_ = false;
    bool broken_ = false;
    bool speaking_ = false;
};

} // namespace steward
