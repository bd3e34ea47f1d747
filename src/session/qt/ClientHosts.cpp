#include "session/qt/Client.h"

#include "commands/Keyboard.h"
#include "commands/qt/KeyFilterQt.h"

namespace steward {

void Client::SendCommand(const char* text)
{
    keyboard_->Road.SendCommand(text);
}

void Client::PrintToGameWindow(const char* text)
{
    pipeline_.PrintToWindow(session_.Windows.GameWindow, text);
}

GaugeColors Client::GetGaugeColors(ProfileGauge gauge)
{
    return GaugeFor(session_.Panel, gauge).Colors();
}

void Client::SetGaugeColors(ProfileGauge gauge, const GaugeColors& colors)
{
    GaugeFor(session_.Panel, gauge).SetColors(colors);
}

void Client::SetNumLockOff()
{
    keyFilter_->SetNumLockOff();
}

void Client::LoadMacros(const std::string& macrosPath)
{
    keyboard_->Macros.LoadMacros(macrosPath.c_str(),
                                 [this](const std::string& line) { Trace(line); });
}

void Client::SaveMacros(const std::string& macrosPath)
{
    keyboard_->Macros.SaveMacros(macrosPath.c_str(),
                                 [this](const std::string& line) { Trace(line); });
}

void Client::SetDefaultMacros(bool newProfile)
{
    steward::SetDefaultMacros(keyboard_->Macros, newProfile);
}

void Client::LoadHighlights(const std::string& highlightsPath, const std::string& namesPath)
{
    highlights_.Load(highlightsPath, namesPath, [this](const std::string& line) { Trace(line); });
}

void Client::SaveHighlights(const std::string& highlightsPath, const std::string& namesPath)
{
    highlights_.Save(highlightsPath, namesPath, [this](const std::string& line) { Trace(line); });
}

void Client::UpdateTitle()
{
    char title[FRAME_TITLE_SIZE];
    MacroSetTitle(title, sizeof title, session_.Profile.CurrentCharacter, keyboard_->Macros);
    SetFrameTitle(title);
}

} // namespace steward
