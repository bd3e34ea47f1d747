#pragma once

#include "analysis/LocalClock.h"
#include "connection/GameLineSink.h"
#include "terminal/PromptState.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace steward {

class AnsiWindow;
class BufferedLog;
class CountdownListener;
class FrameQueue;
class Gauge;
class HighlightStore;
class HighlightSounds;
class SpeechQueue;
struct ChildWindows;
struct Settings;
struct ScriptWaitState;
struct StatusPanel;
class Tokenizer;

constexpr std::size_t LINE_COPY_SIZE = 8192;
// Every print gets a buffer as large as ColoredCopy, so no received line is cut on its way.
constexpr std::size_t PRINT_BUFFER_SIZE = LINE_COPY_SIZE;
// A compact thought holds a whole received line, so only a line near LINE_COPY_SIZE is cut.
constexpr std::size_t THOUGHT_BUFFER_SIZE = LINE_COPY_SIZE;
constexpr std::size_t STAR_NAME_SIZE = 128;
constexpr std::size_t STAR_TEXT_SIZE = 128;
constexpr std::size_t STATUS_RECORD_MIN_LENGTH = 70;
constexpr std::int32_t ROUND_TIME_LIMIT = 60;

// Reads n hexadecimal bytes; a bad digit counts as 0 and a set top bit reads as 0.
std::uint32_t ReadHexField(const char* place, int n);
// GM_SETMIN, GM_SETMAX, GM_SETVALUE in this order.
void SetGaugeValues(Gauge& gauge, std::int32_t minimum, std::int32_t maximum, std::int32_t value);
// Removes every CR and LF from the end of the text.
void TrimLineEnd(char* text);

// The fixed order of work on each received line, and the one road into the text windows.
class LinePipeline : public GameLineSink {
  public:
    struct Parts {
        const Settings& Options;
        BufferedLog& SessionLog;
        HighlightStore& Highlights;
        HighlightSounds& Sounds;
        const ChildWindows& Windows;
        FrameQueue& Queue;
        ScriptWaitState& Script;
        StatusPanel& Panel;
        Tokenizer& Words; // the program's one word splitter
        const LocalClock& Clock;
        CountdownListener* Frame;      // hears the end of a round time countdown
        SpeechQueue* Speech = nullptr; // says thoughts, arrivals and low hit points aloud
    };

    explicit LinePipeline(const Parts& parts);

    // Entry of the pipeline for every decoded text.
    void ProcessGameLine(const char* text) override;
    void ShowGameLine(char* line);
    // Filters the writable text in place (it must have room up to capacity), then appends it.
    void SendToWindow(AnsiWindow* window, char* text, std::size_t capacity);
    // Copies the text and sends the copy; the caller's text stays as it is.
    void PrintToWindow(AnsiWindow* window, const char* text);
    void EchoCommand(const char* text);

    void FilterLine(char* text, std::size_t capacity);
    bool CompressThought(const char* line);
    bool HandleStarLine(char* line, std::size_t capacity);
    void ParseStatusRecord(const char* text);
    void StartRoundTime(std::int32_t seconds);
    // "%d:%02d %cm"; lives until the next call.
    const char* ClockText();

    // A successful connect asks for the status record mode again.
    void ResetStatusMode() { StatusModeRequested = false; }
    bool StatusModeWasRequested() const { return StatusModeRequested; }
    PromptState& Prompt() { return prompt_; }
    const char* Plain() const { return PlainCopy.get(); }

  private:
    void RouteStarText(char* line, const char* name, const char* built);
    // The "Hp:" gauge changed.
    void HpChanged();
    void ParseExits(const char* text);

    const Settings& options_;
    BufferedLog& sessionLog_;
    HighlightStore& highlights_;
    HighlightSounds& sounds_;
    const ChildWindows& windows_;
    FrameQueue& queue_;
    ScriptWaitState& script_;
    StatusPanel& panel_;
    Tokenizer& words_;
    const LocalClock& clock_;
    CountdownListener* frame_;
    SpeechQueue* speech_;

    std::unique_ptr<char[]> ColoredCopy;
    std::unique_ptr<char[]> PlainCopy;
    bool StatusModeRequested = false;
    PromptState prompt_;
    char clockText_[16] = {};
};

} // namespace steward
