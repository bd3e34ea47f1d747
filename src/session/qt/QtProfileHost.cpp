#include "session/qt/QtProfileHost.h"

#include "commands/CommandHistory.h"
#include "commands/KeyFilter.h"
#include "commands/MacroStore.h"
#include "commands/qt/KeyFilterQt.h"
#include "config/CharacterProfile.h"
#include "config/IniStore.h"
#include "config/StewardOptions.h"
#include "highlights/HighlightStore.h"
#include "session/qt/ChildWindowSet.h"
#include "session/qt/FramePlacement.h"
#include "session/qt/FrameWindow.h"

namespace steward {

void QtProfileHost::Load(const char* name, bool createOnly)
{
    LoadProfile(links_.Files, links_.Profile, *this, name, createOnly);
}

bool QtProfileHost::Save()
{
    return SaveProfile(links_.Files, links_.Profile, *this, links_.Profile.CurrentCharacter);
}

GaugeColors QtProfileHost::GetGaugeColors(ProfileGauge gauge)
{
    return GaugeFor(links_.Panel, gauge).Colors();
}

void QtProfileHost::SetGaugeColors(ProfileGauge gauge, const GaugeColors& colors)
{
    GaugeFor(links_.Panel, gauge).SetColors(colors);
}

void QtProfileHost::SetNumLockOff()
{
    links_.Filter.SetNumLockOff();
}

void QtProfileHost::RestoreChildWindows(const std::string& profilePath)
{
    links_.Windows.Restore(profilePath);
}

bool QtProfileHost::SaveChildWindows(const std::string& profilePath)
{
    const bool windows = links_.Windows.Save(profilePath);
    FramePlacement placement(links_.Frame);
    return WritePlacement(profilePath, "Windows", "MainWindow", placement) && windows;
}

void QtProfileHost::LoadMacros(const std::string& macrosPath)
{
    links_.Macros.LoadMacros(macrosPath.c_str());
}

bool QtProfileHost::SaveMacros(const std::string& macrosPath)
{
    return links_.Macros.SaveMacros(macrosPath.c_str());
}

// With the option off the history stays in memory only, and a file from an earlier choice is
// left alone.
void QtProfileHost::LoadHistory(const std::string& historyPath)
{
    if (links_.Steward.IsOn(KEEP_COMMAND_HISTORY))
        links_.History.LoadHistory(historyPath);
}

bool QtProfileHost::SaveHistory(const std::string& historyPath)
{
    return !links_.Steward.IsOn(KEEP_COMMAND_HISTORY) || links_.History.SaveHistory(historyPath);
}

void QtProfileHost::SetDefaultMacros(bool newProfile)
{
    steward::SetDefaultMacros(links_.Macros, newProfile);
}

void QtProfileHost::LoadHighlights(const std::string& highlightsPath, const std::string& namesPath)
{
    links_.Highlights.Load(highlightsPath, namesPath);
}

bool QtProfileHost::SaveHighlights(const std::string& highlightsPath, const std::string& namesPath)
{
    return links_.Highlights.Save(highlightsPath, namesPath);
}

void QtProfileHost::UpdateTitle()
{
    char title[FRAME_TITLE_SIZE];
    MacroSetTitle(title, sizeof title, links_.Profile.CurrentCharacter, links_.Macros);
    links_.Frame.setWindowTitle(QString::fromLatin1(title));
}

} // namespace steward
