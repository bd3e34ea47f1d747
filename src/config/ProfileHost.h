#pragma once

#include "panels/Gauge.h"
#include "panels/StatusPanel.h"

#include <cstddef>
#include <string>

namespace steward {

// The gauges whose colours a profile keeps, in the order they are loaded and saved.
enum ProfileGauge : int {
    GAUGE_HEALTH,
    GAUGE_FATIGUE,
    GAUGE_WEIGHT,
    GAUGE_PSI,
    GAUGE_WEB,
    GAUGE_RT,
    GAUGE_PAUSE,
};
constexpr std::size_t PROFILE_GAUGE_COUNT = 7;

// Keys of section Colors, indexed by ProfileGauge.
constexpr const char* GAUGE_COLOR_KEYS[PROFILE_GAUGE_COUNT] = {
    "Health", "Fatigue", "Weight", "PSI", "Web", "RT", "Pause",
};

// The panel's gauge whose colours are stored under GAUGE_COLOR_KEYS[gauge].
Gauge& GaugeFor(StatusPanel& panel, ProfileGauge gauge);

// What loading and saving a profile needs of the rest of the program; the frame implements it.
// Each call comes at its fixed step of LoadProfile or SaveProfile; a save gives false when its
// file could not be written.
class ProfileHost {
  public:
    virtual ~ProfileHost() = default;

    virtual GaugeColors GetGaugeColors(ProfileGauge gauge) = 0;
    virtual void SetGaugeColors(ProfileGauge gauge, const GaugeColors& colors) = 0;
    // Puts the keypad into macro mode.
    virtual void SetNumLockOff() = 0;
    virtual void RestoreChildWindows(const std::string& profilePath) = 0;
    // Also writes Open Windows and MainWindow.
    virtual bool SaveChildWindows(const std::string& profilePath) = 0;
    virtual void LoadMacros(const std::string& macrosPath) = 0;
    virtual bool SaveMacros(const std::string& macrosPath) = 0;
    // StringHighlights from the first file, NameHighlights from the second.
    virtual void LoadHighlights(const std::string& highlightsPath,
                                const std::string& namesPath) = 0;
    virtual bool SaveHighlights(const std::string& highlightsPath,
                                const std::string& namesPath) = 0;
    // The command history, when the player keeps it between sessions.
    virtual void LoadHistory(const std::string& historyPath) = 0;
    virtual bool SaveHistory(const std::string& historyPath) = 0;
    // The default macros; a new profile also gets Alt-A.
    virtual void SetDefaultMacros(bool newProfile) = 0;
    // The frame's title names the character.
    virtual void UpdateTitle() = 0;
};

} // namespace steward
