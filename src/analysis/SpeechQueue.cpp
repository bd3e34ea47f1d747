#include "analysis/SpeechQueue.h"

#include "base/ColorCode.h"
#include "config/StewardOptions.h"

#include <cstdio>

namespace steward {

namespace {

constexpr std::size_t SLOT_MASK = SPEECH_QUEUE_SLOTS - 1;

bool IsBlank(unsigned char b)
{
    return b == ' ' || b == '\t' || b == '\r' || b == '\n';
}

// The words of the text, one blank between them, without colour codes and control bytes; cut
// to the slot.
void CleanText(Utterance& out, const char* text)
{
    std::size_t length = 0;
    bool blank = false;
    for (const char* t = text; *t && length + 1 < out.size(); ++t) {
        const auto b = static_cast<unsigned char>(*t);
        if (IsBlank(b)) {
            blank = length > 0;
            continue;
        }
        if (IsColorCode(b) || b < ' ')
            continue;
        if (blank && length + 2 < out.size())
            out[length++] = ' ';
        blank = false;
        out[length++] = static_cast<char>(b);
    }
    out[length] = '\0';
}

} // namespace

SpeechQueue::SpeechQueue(SpeechEngine& engine, const StewardOptions& options)
    : engine_(engine), options_(options)
{
}

bool SpeechQueue::SpeakOn()
{
    if (options_.IsOn(SPEAK) && engine_.Available())
        return true;
    count_ = 0;
    return false;
}

void SpeechQueue::Say(const char* text)
{
    if (!SpeakOn())
        return;
    Utterance clean;
    CleanText(clean, text);
    if (clean[0] == '\0')
        return;
    if (!speaking_) {
        Start(clean);
        return;
    }
    if (count_ == SPEECH_QUEUE_SLOTS) {
        first_ = (first_ + 1) & SLOT_MASK;
        --count_;
        ++dropped_;
    }
    slots_[(first_ + count_) & SLOT_MASK] = clean;
    ++count_;
}

void SpeechQueue::WatchHp(std::int32_t value, std::int32_t maximum)
{
    const std::int64_t threshold = options_.Get(SPEAK_HP_BELOW);
    const bool below = maximum > 0 && std::int64_t{value} * 100 < threshold * maximum;
    if (below && !hpBelow_) {
        char text[64];
        std::snprintf(text, sizeof text, "Hit points %ld of %ld", static_cast<long>(value),
                      static_cast<long>(maximum));
        Say(text);
    }
    hpBelow_ = below;
}

void SpeechQueue::Spoken()
{
    speaking_ = false;
    if (count_ == 0 || !SpeakOn())
        return;
    const std::size_t slot = first_;
    first_ = (first_ + 1) & SLOT_MASK;
    --count_;
    Start(slots_[slot]);
}

void SpeechQueue::Start(const Utterance& text)
{
    current_ = text;
    speaking_ = true;
    engine_.Speak(current_.data());
}

} // namespace steward
