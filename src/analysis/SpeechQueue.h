#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace steward {

class StewardOptions;

// The platform's voice: it speaks one text at a time and never makes the caller wait for it.
class SpeechEngine {
  public:
    virtual ~SpeechEngine() = default;
    // Whether a voice can speak at all: false with no engine installed, or after it failed.
    // The first question may start the engine.
    virtual bool Available() = 0;
    // Starts speaking the text; the end is reported to SpeechQueue::Spoken.
    virtual void Speak(const char* text) = 0;
};

// A text is cut to this many bytes with its NUL; a line of the game fits.
constexpr std::size_t UTTERANCE_SIZE = 256;
// Texts that may wait while the voice speaks; a flood drops the oldest of them.
constexpr std::size_t SPEECH_QUEUE_SLOTS = 16;
static_assert((SPEECH_QUEUE_SLOTS & (SPEECH_QUEUE_SLOTS - 1)) == 0,
              "the ring is indexed by a mask");

using Utterance = std::array<char, UTTERANCE_SIZE>;

// What the "Speak" option says aloud, one text after the other: thoughts, arrivals, and a
// fall of the hit points below the player's threshold. Fixed slots, so a flood allocates
// nothing and the waiting texts never grow past SPEECH_QUEUE_SLOTS.
class SpeechQueue {
  public:
    SpeechQueue(SpeechEngine& engine, const StewardOptions& options);

    // A line for the voice, without its colour codes, bells and line ends. Nothing is said
    // while "Speak" is off or no voice is available.
    void Say(const char* text);
    // The hit points after each change: a fall below the threshold is said once, and the
    // watch is armed again when they rise to it.
    void WatchHp(std::int32_t value, std::int32_t maximum);
    // The voice finished its text; the oldest waiting one starts.
    void Spoken();

    bool Speaking() const { return speaking_; }
    std::size_t Waiting() const { return count_; }
    // Texts dropped unsaid because the queue was full.
    std::uint64_t Dropped() const { return dropped_; }

  private:
    bool SpeakOn();
    void Start(const Utterance& text);

    SpeechEngine& engine_;
    const StewardOptions& options_;
    std::array<Utterance, SPEECH_QUEUE_SLOTS> slots_{};
    // The oldest waiting text, and how many wait behind it, in a ring.
    std::size_t first_ = 0;
    std::size_t count_ = 0;
    std::uint64_t dropped_ = 0;
    bool speaking_ = false;
    bool hpBelow_ = false;
    // The text being spoken, out of its slot, so the slot is free for the next one.
    Utterance current_{};
};

} // namespace steward
