#include "session/qt/Client.h"

#include "commands/Keyboard.h"
#include "commands/qt/CommandLine.h"
#include "config/FileHandle.h"
#include "config/SessionLog.h"
#include "session/CommandTable.h"
#include "session/FrameCommand.h"
#include "session/Wheel.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "terminal/AnsiWindow.h"

#include <QDate>

#include <cstdio>

namespace steward {

namespace {

constexpr char NOTES_FILE[] = "Thornmere Notes.Txt";
constexpr char NOTES_HEADER[] =
    "--------------------\nThornmere Notes:\n--------------------\n\n\n";
constexpr char VERSION_NOTES_FILE[] = "Version Notes.Txt";
constexpr char EDITOR_FAILED_TEXT[] = "Unable to run the text editor!";
constexpr char LOG_OPENED_TEXT[] = "\r\nLog file auto-opened successfully.\r\n\r\n";
constexpr char LOG_FAILED_TEXT[] = "\r\nError auto-opening log file!\r\n\r\n";
constexpr char STEWARD_ON[] = "Set Steward On";

} // namespace

// The commands served by number; fixed texts and characters are looked up before them.
const Client::CommandEntry Client::COMMANDS[] = {
    {CMD_EXIT, [](Client& c) { c.frame_->close(); }},
    {CMD_RUN_NOTEPAD, [](Client& c) { c.RunNotes(); }},
    {CMD_REST_MODE, [](Client& c) { c.EnterRestMode(false); }},
    {CMD_REST_MODE_SILENT, [](Client& c) { c.EnterRestMode(true); }},
    {CMD_AUTO_ARRANGE, [](Client& c) { c.ToggleAutoArrange(); }},
    {CMD_OPEN_GAME_WINDOW, [](Client& c) { c.OpenWindowCommand(GAME_ROW); }},
    {CMD_OPEN_THOUGHT_WINDOW, [](Client& c) { c.OpenWindowCommand(THOUGHT_ROW); }},
    {CMD_OPEN_ARRIVAL_WINDOW, [](Client& c) { c.OpenWindowCommand(ARRIVAL_ROW); }},
    {CMD_TILE_HORIZONTALLY, [](Client& c) { c.TileCommand(&MdiClient::TileHorizontally); }},
    {CMD_TILE_VERTICALLY, [](Client& c) { c.TileCommand(&MdiClient::TileVertically); }},
    {CMD_CASCADE, [](Client& c) { c.TileCommand(&MdiClient::Cascade); }},
    {CMD_ARRANGE, [](Client& c) { c.ArrangeWindows(true); }},
    {MM_ENTER_KEY, [](Client& c) { c.keyboard_->Road.EnterKey(); }},
    {CMD_RESET_STEWARD_MODE, [](Client& c) { c.ResetStewardMode(); }},
    {CMD_AUTO_LOG, [](Client& c) { c.ToggleAutoLog(); }},
    {CMD_OPEN_DATED_LOG, [](Client& c) { c.OpenDatedLog(); }},
    {CMD_OPEN_LOG, [](Client& c) { c.OpenLogWithDialog(); }},
    {CMD_CLOSE_LOG, [](Client& c) { c.session_.SessionLog.Close(); }},
    {CMD_CUT, [](Client& c) { c.commandLine_->Cut(); }},
    {CMD_COPY, [](Client& c) { c.CopyCommand(); }},
    {CMD_COPY_TO_STRING_HIGHLIGHTS,
     [](Client& c) { c.CopyToHighlights(CMD_COPY_TO_STRING_HIGHLIGHTS); }},
    {CMD_COPY_TO_NAME_HIGHLIGHTS,
     [](Client& c) { c.CopyToHighlights(CMD_COPY_TO_NAME_HIGHLIGHTS); }},
    {CMD_CLEAR, [](Client& c) { c.commandLine_->Clear(); }},
    {CMD_PASTE, [](Client& c) { c.commandLine_->Paste(); }},
    {CMD_VERSION_NOTES, [](Client& c) { c.RunVersionNotes(); }},
    {CMD_EQUIP_WEAPON, [](Client& c) { c.SendCommand(c.session_.Profile.EquipWeapon); }},
    {CMD_UNEQUIP_WEAPON, [](Client& c) { c.SendCommand(c.session_.Profile.UnequipWeapon); }},
    {CMD_EQUIP_SHIELD, [](Client& c) { c.SendCommand(c.session_.Profile.EquipShield); }},
    {CMD_UNEQUIP_SHIELD, [](Client& c) { c.SendCommand(c.session_.Profile.UnequipShield); }},
    {CMD_CONNECT, [](Client& c) { c.Reconnect(); }},
    {CMD_DRAG_SOMEONE, [](Client& c) { c.AskDragTarget(); }},
    {CMD_STOP_DRAGGING, [](Client& c) { c.keyboard_->State.DragTarget[0] = '\0'; }},
    {CMD_GRAPHICS_AT_TOP, [](Client& c) { c.SetDisplayMode(DISPLAY_GRAPHICS_TOP); }},
    {CMD_GRAPHICS_AT_BOTTOM, [](Client& c) { c.SetDisplayMode(DISPLAY_GRAPHICS_BOTTOM); }},
    {CMD_FULL_SCREEN, [](Client& c) { c.SetDisplayMode(DISPLAY_FULL_SCREEN); }},
};

void Client::OnCommand(int command)
{
    if (ServeFixedCommand(command))
        return;
    if (command >= CMD_FIRST_CHARACTER && command <= CMD_LAST_CHARACTER)
        return;
    for (const CommandEntry& entry : COMMANDS)
        if (entry.Command == command) {
            entry.Serve(*this);
            return;
        }
}

bool Client::ServeFixedCommand(int command)
{
    const char* text = FindFixedText(command);
    if (!text)
        return false;
    SendCommand(text);
    return true;
}

void Client::RunNotes()
{
    const std::string path = session_.Files.ProgramFolder + "/" + NOTES_FILE;
    if (!Exists(path.c_str())) {
        if (File file{std::fopen(path.c_str(), "wb")})
            std::fputs(NOTES_HEADER, file.get());
    }
    RunNotepad(path);
}

void Client::RunNotepad(const std::string& path)
{
    if (path.empty())
        return;
    if (!desktop_.RunEditor(path))
        desktop_.ShowMessage(frame_.get(), EDITOR_FAILED_TEXT, nullptr);
}

void Client::OpenDatedLog()
{
    const QDate today = QDate::currentDate();
    const std::string path = DatedLogName(session_.Files.ProgramFolder,
                                          {today.year(), today.month(), today.day()}, *this);
    const bool opened = session_.SessionLog.OpenAppend(path.c_str());
    PrintToGameWindow(opened ? LOG_OPENED_TEXT : LOG_FAILED_TEXT);
}

void Client::ToggleAutoLog()
{
    Settings& settings = session_.Profile.Settings;
    if (settings.AutoLog) {
        settings.AutoLog = 0;
        return;
    }
    settings.AutoLog = 1;
    if (!session_.SessionLog.IsOpen())
        OnCommand(CMD_OPEN_DATED_LOG);
}

void Client::Reconnect()
{
    const int result = connection_.ConnectToGame(session_.ConnectionString);
    if (const char* failure = ConnectFailureText(result)) {
        desktop_.ShowMessage(frame_.get(), failure, CONNECT_FAILURE_TITLE);
        return;
    }
    pipeline_.ResetStatusMode();
}

void Client::ResetStewardMode()
{
    SendCommand(STEWARD_ON);
    decoder_.SetHoldPartialLines(true);
}

void Client::EnterRestMode(bool silent)
{
    PrintToGameWindow(REST_ENTER_TEXT);
    session_.Rest.Enter(silent);
}

void Client::SetDisplayMode(std::uint8_t mode)
{
    session_.Profile.Settings.DisplayMode = mode;
    frame_->SetDisplayMode(mode);
}

void Client::OpenWindowCommand(WindowRow row)
{
    Handle(row) = OpenChildWindow(row);
    ArrangeWindows(false);
    frame_->FocusCommandLine();
}

void Client::ToggleAutoArrange()
{
    session_.Profile.Settings.AutoArrange = !session_.Profile.Settings.AutoArrange;
    ArrangeWindows(false);
}

void Client::TileCommand(void (MdiClient::*tile)())
{
    (frame_->Mdi().*tile)();
    frame_->FocusCommandLine();
}

void Client::OpenLogWithDialog()
{
    OpenWithDialog(session_.SessionLog, session_.Files.ProgramFolder.c_str(), *this);
}

void Client::RunVersionNotes()
{
    RunNotepad(session_.Files.ProgramFolder + "/" + VERSION_NOTES_FILE);
}

void Client::AskDragTarget()
{
    char(&dragTarget)[DRAG_TARGET_SIZE] = keyboard_->State.DragTarget;
    std::string target = dragTarget;
    if (!desktop_.AskDragTarget(frame_.get(), target))
        target.clear();
    std::snprintf(dragTarget, sizeof dragTarget, "%s", target.c_str());
}

void Client::OnWheel(bool shift, int amount)
{
    if (AnsiWindow* window = ActiveChild())
        window->VScroll(WheelScrollCommand(shift, amount), 0);
}

MenuInputs Client::ReadMenuInputs() const
{
    const Settings& settings = session_.Profile.Settings;
    MenuInputs in;
    in.AutoArrange = settings.AutoArrange != 0;
    in.AutoLog = settings.AutoLog != 0;
    in.LogOpen = session_.SessionLog.IsOpen();
    in.DisplayMode = settings.DisplayMode;
    in.Disconnected = connection_.IsDisconnected();
    in.GameWindowOpen = session_.Windows.GameWindow != nullptr;
    in.ThoughtWindowOpen = session_.Windows.ThoughtWindow != nullptr;
    in.ArrivalWindowOpen = session_.Windows.ArrivalWindow != nullptr;
    ReadEditInputs(in);
    return in;
}

} // namespace steward
