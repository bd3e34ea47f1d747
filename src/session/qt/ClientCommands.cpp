// The client's switchboard: every frame command is served here, most by a line of the table.
#include "session/qt/Client.h"

#include "base/ByteText.h"

#include "base/FrameCommand.h"
#include "commands/Keyboard.h"
#include "commands/qt/CommandLine.h"
#include "scripts/qt/ScriptControl.h"
#include "services/WebAddress.h"
#include "services/qt/AboutDialog.h"
#include "session/CommandTable.h"
#include "session/qt/CharacterMenu.h"
#include "session/qt/ChildWindowSet.h"
#include "session/qt/ConnectionChoice.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameDialogs.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "session/qt/QtKeyboardHost.h"
#include "session/qt/QtProfileHost.h"
#include "terminal/AnsiWindow.h"
#include "terminal/Wheel.h"

namespace steward {

namespace {

constexpr char STEWARD_ON[] = "Set Steward On";

} // namespace

// The commands served by number; fixed texts and characters are looked up before them.
const Client::CommandEntry Client::COMMANDS[] = {
    {CMD_EXIT, [](Client& c) { c.frame_->close(); }},
    {CMD_RUN_NOTEPAD, [](Client& c) { c.logs_.RunNotes(); }},
    {CMD_REST_MODE, [](Client& c) { c.EnterRestMode(false); }},
    {CMD_REST_MODE_SILENT, [](Client& c) { c.EnterRestMode(true); }},
    {CMD_AUTO_ARRANGE, [](Client& c) { c.ToggleAutoArrange(); }},
    {CMD_OPEN_GAME_WINDOW, [](Client& c) { c.windows_->OpenCommand(GAME_ROW); }},
    {CMD_OPEN_THOUGHT_WINDOW, [](Client& c) { c.windows_->OpenCommand(THOUGHT_ROW); }},
    {CMD_OPEN_ARRIVAL_WINDOW, [](Client& c) { c.windows_->OpenCommand(ARRIVAL_ROW); }},
    {CMD_TILE_HORIZONTALLY, [](Client& c) { c.frame_->Mdi().TileHorizontally(); }},
    {CMD_TILE_VERTICALLY, [](Client& c) { c.frame_->Mdi().TileVertically(); }},
    {CMD_CASCADE, [](Client& c) { c.frame_->Mdi().Cascade(); }},
    {CMD_ARRANGE, [](Client& c) { c.windows_->Arrange(true); }},
    {MM_ENTER_KEY, [](Client& c) { c.keyboard_->Sender.EnterKey(); }},
    {CMD_RESET_STEWARD_MODE, [](Client& c) { c.ResetStewardMode(); }},
    {CMD_AUTO_LOG, [](Client& c) { c.logs_.ToggleAutoLog(); }},
    {CMD_OPEN_DATED_LOG, [](Client& c) { c.logs_.OpenDatedLog(); }},
    {CMD_OPEN_LOG, [](Client& c) { c.logs_.OpenLogWithDialog(); }},
    {CMD_CLOSE_LOG, [](Client& c) { c.session_.SessionLog.Close(); }},
    {CMD_CUT, [](Client& c) { c.commandLine_->Cut(); }},
    {CMD_COPY, [](Client& c) { c.keyboardHost_->Copy(); }},
    {CMD_COPY_TO_STRING_HIGHLIGHTS,
     [](Client& c) { c.dialogs_->CopyToHighlights(CMD_COPY_TO_STRING_HIGHLIGHTS); }},
    {CMD_COPY_TO_NAME_HIGHLIGHTS,
     [](Client& c) { c.dialogs_->CopyToHighlights(CMD_COPY_TO_NAME_HIGHLIGHTS); }},
    {CMD_COPY_TO_COMMAND_LINE, [](Client& c) { c.keyboardHost_->CopyToCommandLine(); }},
    {CMD_CLEAR, [](Client& c) { c.commandLine_->Clear(); }},
    {CMD_PASTE, [](Client& c) { c.commandLine_->Paste(); }},
    {CMD_FIND, [](Client& c) { c.windows_->FindInActiveWindow(); }},
    {CMD_VERSION_NOTES, [](Client& c) { c.logs_.RunVersionNotes(); }},
    {CMD_EQUIP_WEAPON, [](Client& c) { c.SendCommand(c.session_.Profile.EquipWeapon); }},
    {CMD_UNEQUIP_WEAPON, [](Client& c) { c.SendCommand(c.session_.Profile.UnequipWeapon); }},
    {CMD_EQUIP_SHIELD, [](Client& c) { c.SendCommand(c.session_.Profile.EquipShield); }},
    {CMD_UNEQUIP_SHIELD, [](Client& c) { c.SendCommand(c.session_.Profile.UnequipShield); }},
    {CMD_CONNECT, [](Client& c) { Reconnect(c.session_, c.link_, c.desktop_, c.frame_.get()); }},
    {CMD_MACRO_KEYS, [](Client& c) { c.dialogs_->EditMacros(); }},
    {CMD_HIGHLIGHT_STRINGS, [](Client& c) { c.dialogs_->EditHighlights(); }},
    {CMD_DRAG_SOMEONE, [](Client& c) { c.dialogs_->AskDragTarget(); }},
    {CMD_STOP_DRAGGING, [](Client& c) { c.keyboard_->State.DragTarget[0] = '\0'; }},
    {CMD_GRAPHICS_AT_TOP, [](Client& c) { c.SetDisplayMode(DISPLAY_GRAPHICS_TOP); }},
    {CMD_GRAPHICS_AT_BOTTOM, [](Client& c) { c.SetDisplayMode(DISPLAY_GRAPHICS_BOTTOM); }},
    {CMD_FULL_SCREEN, [](Client& c) { c.SetDisplayMode(DISPLAY_FULL_SCREEN); }},
    {MM_RUN_SCRIPT, [](Client& c) { c.scripts_->RunScript(); }},
    {CMD_EXECUTE_SCRIPT, [](Client& c) { c.scripts_->ExecuteScript(); }},
    {CMD_STOP_SCRIPT, [](Client& c) { c.scripts_->StopScript(); }},
    {CMD_RECORD_SCRIPT, [](Client& c) { c.scripts_->RecordScript(); }},
    {CMD_STOP_RECORDING, [](Client& c) { c.scripts_->StopRecording(); }},
    {CMD_EDIT_SCRIPT, [](Client& c) { c.logs_.RunNotepad(c.scripts_->ChooseScriptToEdit()); }},
    {CMD_CREATE_SCRIPT, [](Client& c) { c.logs_.RunNotepad(c.scripts_->CreateScript()); }},
    {CMD_NEW_CHARACTER, [](Client& c) { c.characters_->CreateCharacter(); }},
    {CMD_OPTIONS, [](Client& c) { c.dialogs_->EditOptions(); }},
    {CMD_ABOUT, [](Client& c) { ShowAboutDialog(c.frame_.get()); }},
    {CMD_HOME_PAGE, [](Client& c) { OpenUrl(c.desktop_.WebBrowser(), HOME_PAGE_ADDRESS); }},
    {CMD_MESSAGE_BOARD, [](Client& c) { OpenUrl(c.desktop_.WebBrowser(), MESSAGE_BOARD_ADDRESS); }},
};

void Client::OnCommand(int command)
{
    if (ServeFixedCommand(command))
        return;
    if (command >= CMD_FIRST_CHARACTER && command <= CMD_LAST_CHARACTER)
        return characters_->SwitchCharacter(command);
    for (const CommandEntry& entry : COMMANDS)
        if (entry.Command == command) {
            entry.Serve(*this);
            return;
        }
}

void Client::SendCommand(const char* text)
{
    keyboard_->Sender.SendCommand(text);
}

bool Client::ServeFixedCommand(int command)
{
    const char* text = FindFixedText(command);
    if (!text)
        return false;
    SendCommand(text);
    return true;
}

void Client::ResetStewardMode()
{
    SendCommand(STEWARD_ON);
    link_.SetHoldPartialLines(true);
}

void Client::EnterRestMode(bool silent)
{
    link_.PrintToGameWindow(REST_ENTER_TEXT);
    session_.Rest.Enter(silent);
}

void Client::SetDisplayMode(std::uint8_t mode)
{
    session_.Profile.Settings.DisplayMode = mode;
    frame_->SetDisplayMode(mode);
}

void Client::ToggleAutoArrange()
{
    session_.Profile.Settings.AutoArrange = !session_.Profile.Settings.AutoArrange;
    windows_->Arrange(false);
}

void Client::MakeScriptControl()
{
    scripts_ = std::make_unique<ScriptControl>(ScriptControlParts{
        session_.Script, keyboard_->State, session_.Words, session_.Panel.RT, desktop_, desktop_,
        frame_.get(), [this] { return ScriptPath(session_.Files); },
        [this](const char* text) { link_.PrintToGameWindow(text); },
        [this](const char* text) { keyboard_->Sender.SendScripted(text); },
        [this](int seconds) { keyboardHost_->PumpFor(seconds); }});
    keyboardHost_->SetScripts(*scripts_);
    link_.SetRecording(scripts_.get());
}

void Client::OnWheel(bool shift, int amount)
{
    if (AnsiWindow* window = windows_->ActiveWindow())
        window->VScroll(WheelScrollCommand(shift, amount), 0);
}

} // namespace steward
