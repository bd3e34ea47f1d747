#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace steward {

// The program's own additions to the standard client. Each is off, or at the standard size, by
// default, and they live in their own section of the main ini, which a standard profile never
// reads.
constexpr char STEWARD_SECTION[] = "Steward";

enum StewardOption : int {
    SHOW_LIVE_TAIL,
    KEEP_COMMAND_HISTORY,
    RECONNECT_ON_DROP,
    SPEAK,
    SPEAK_HP_BELOW,
    GAME_SCROLLBACK_KB,
    THOUGHT_SCROLLBACK_KB,
    ARRIVAL_SCROLLBACK_KB,
    STEWARD_OPTION_COUNT,
};

// 64 MB: the longest scrollback a window can be given.
constexpr std::int32_t MAX_SCROLLBACK_KB = 64 * 1024;

struct StewardOptionRow {
    StewardOption Option;
    // Its key in the "Steward" section.
    const char* Key;
    // Its label on the options sheet's " Steward " page.
    const char* Label;
    std::int32_t Default;
    // A row from 0 to 1 is a check box, any other a number field.
    std::int32_t Minimum;
    std::int32_t Maximum;
};

constexpr std::array<StewardOptionRow, STEWARD_OPTION_COUNT> StewardOptionTable = {{
    {SHOW_LIVE_TAIL, "LiveTail", "Show new text below while scrolled back", 0, 0, 1},
    {KEEP_COMMAND_HISTORY, "KeepHistory", "Keep command history between sessions", 0, 0, 1},
    {RECONNECT_ON_DROP, "Reconnect", "Reconnect when the connection drops", 0, 0, 1},
    {SPEAK, "Speak", "Speak", 0, 0, 1},
    // Percent of the maximum; 0 never speaks the hit points.
    {SPEAK_HP_BELOW, "SpeakHpBelow", "Speak when Hp falls below (percent)", 25, 0, 100},
    {GAME_SCROLLBACK_KB, "GameScrollback",
     "Game window scrollback in KB, from the next start (0: standard)", 0, 0, MAX_SCROLLBACK_KB},
    {THOUGHT_SCROLLBACK_KB, "ThoughtScrollback",
     "Thought window scrollback in KB, from the next start (0: standard)", 0, 0, MAX_SCROLLBACK_KB},
    {ARRIVAL_SCROLLBACK_KB, "ArrivalScrollback",
     "Arrival window scrollback in KB, from the next start (0: standard)", 0, 0, MAX_SCROLLBACK_KB},
}};

// The scrollback a window asks for, in bytes; a size below the window's standard one keeps the
// standard one.
constexpr std::uint32_t ScrollbackBytes(std::int32_t kilobytes)
{
    return static_cast<std::uint32_t>(kilobytes) * 1024u;
}

class StewardOptions {
  public:
    StewardOptions();

    // A missing, unreadable or out-of-range value reads as its row's default.
    static StewardOptions Load(const std::string& mainIni);
    // Writes every value and keeps the rest of the file; false leaves the file as it was.
    [[nodiscard]] bool Save(const std::string& mainIni) const;

    std::int32_t Get(StewardOption option) const { return values_[option]; }
    bool IsOn(StewardOption option) const { return values_[option] != 0; }
    // Clamped to the row's range.
    void Set(StewardOption option, std::int32_t value);

  private:
    std::array<std::int32_t, STEWARD_OPTION_COUNT> values_;
};

} // namespace steward
