#pragma once

#include "config/ProfileHost.h"

namespace steward {

class ChildWindowSet;
class CommandHistory;
class StewardOptions;
class FrameWindow;
class HighlightStore;
class KeyFilterQt;
class MacroStore;
struct ConfigFiles;
struct CharacterProfile;

// The profile host: loads a character's profile into the running program and saves it back,
// handing each part of the program its share at the fixed step.
class QtProfileHost : private ProfileHost {
  public:
    struct Links {
        const ConfigFiles& Files;
        CharacterProfile& Profile;
        StatusPanel& Panel;
        HighlightStore& Highlights;
        MacroStore& Macros;
        CommandHistory& History;
        const StewardOptions& Steward;
        KeyFilterQt& Filter;
        ChildWindowSet& Windows;
        FrameWindow& Frame;
    };

    explicit QtProfileHost(const Links& links) : links_(links) {}

    // LoadProfile of the named character, or of LastChar when name is null.
    void Load(const char* name = nullptr, bool createOnly = false);
    // SaveProfile of the current character; false when a file of it could not be written.
    [[nodiscard]] bool Save();
    // The frame's title again, after the current macro set may have changed.
    void RefreshTitle() { UpdateTitle(); }

  private:
    GaugeColors GetGaugeColors(ProfileGauge gauge) override;
    void SetGaugeColors(ProfileGauge gauge, const GaugeColors& colors) override;
    void SetNumLockOff() override;
    void RestoreChildWindows(const std::string& profilePath) override;
    bool SaveChildWindows(const std::string& profilePath) override;
    void LoadMacros(const std::string& macrosPath) override;
    bool SaveMacros(const std::string& macrosPath) override;
    void LoadHighlights(const std::string& highlightsPath, const std::string& namesPath) override;
    bool SaveHighlights(const std::string& highlightsPath, const std::string& namesPath) override;
    void LoadHistory(const std::string& historyPath) override;
    bool SaveHistory(const std::string& historyPath) override;
    void SetDefaultMacros(bool newProfile) override;
    void UpdateTitle() override;

    Links links_;
};

} // namespace steward
