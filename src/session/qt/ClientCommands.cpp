#include "session/qt/Client.h"

#include "commands/Keyboard.h"
#include "config/IniStore.h"
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

void Client::OnCommand(int command)
{
    if (ServeFixedCommand(command))
        return;
    if (command >= CMD_FIRST_CHARACTER && command <= CMD_LAST_CHARACTER)
        return;
    switch (command) {
    case CMD_EXIT:
        frame_->close();
        break;
    case CMD_RUN_NOTEPAD:
        RunNotes();
        break;
    case CMD_REST_MODE:
    case CMD_REST_MODE_SILENT:
        EnterRestMode(command == CMD_REST_MODE_SILENT);
        break;
    case CMD_AUTO_ARRANGE:
        session_.Profile.Settings.AutoArrange = !session_.Profile.Settings.AutoArrange;
        ArrangeWindows(false);
        break;
    case CMD_OPEN_GAME_WINDOW:
        OpenWindowCommand(GAME_ROW);
        break;
    case CMD_OPEN_THOUGHT_WINDOW:
        OpenWindowCommand(THOUGHT_ROW);
        break;
    case CMD_OPEN_ARRIVAL_WINDOW:
        OpenWindowCommand(ARRIVAL_ROW);
        break;
    case CMD_TILE_HORIZONTALLY:
        frame_->Mdi().TileHorizontally();
        frame_->FocusCommandLine();
        break;
    case CMD_TILE_VERTICALLY:
        frame_->Mdi().TileVertically();
        frame_->FocusCommandLine();
        break;
    case CMD_CASCADE:
        frame_->Mdi().cascadeSubWindows();
        frame_->FocusCommandLine();
        break;
    case CMD_ARRANGE:
        ArrangeCommand();
        break;
    case MM_ENTER_KEY:
        keyboard_->Road.EnterKey();
        break;
    case CMD_RESET_STEWARD_MODE:
        ResetStewardMode();
        break;
    case CMD_AUTO_LOG:
        ToggleAutoLog();
        break;
    case CMD_OPEN_DATED_LOG:
        OpenDatedLog();
        break;
    case CMD_OPEN_LOG:
        OpenWithDialog(session_.SessionLog, session_.Files.ProgramFolder.c_str(), *this);
        break;
    case CMD_CLOSE_LOG:
        session_.SessionLog.Close();
        break;
    case CMD_VERSION_NOTES:
        RunNotepad(session_.Files.ProgramFolder + "/" + VERSION_NOTES_FILE);
        break;
    case CMD_EQUIP_WEAPON:
    case CMD_UNEQUIP_WEAPON:
    case CMD_EQUIP_SHIELD:
    case CMD_UNEQUIP_SHIELD:
        SendEquipment(command);
        break;
    case CMD_CONNECT:
        Reconnect();
        break;
    case CMD_GRAPHICS_AT_TOP:
        SetDisplayMode(DISPLAY_GRAPHICS_TOP);
        break;
    case CMD_GRAPHICS_AT_BOTTOM:
        SetDisplayMode(DISPLAY_GRAPHICS_BOTTOM);
        break;
    case CMD_FULL_SCREEN:
        SetDisplayMode(DISPLAY_FULL_SCREEN);
        break;
    default:
        EditCommand(command);
        break;
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
        if (std::FILE* file = std::fopen(path.c_str(), "wb")) {
            std::fputs(NOTES_HEADER, file);
            std::fclose(file);
        }
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
    char path[PATH_SIZE];
    const bool named = DatedLogName(session_.Files.ProgramFolder.c_str(),
                                    {today.year(), today.month(), today.day()}, *this, path);
    const bool opened = named && session_.SessionLog.OpenAppend(path);
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
        desktop_.ShowMessage(frame_.get(), failure, "Fatal Error");
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

void Client::ArrangeCommand()
{
    MdiClient& mdi = frame_->Mdi();
    for (const WindowTableRow& row : WindowTable)
        if (mdi.IsMinimised(row.Row) || mdi.IsMaximised(row.Row))
            mdi.Restore(row.Row);
    ArrangeWindows(true);
}

void Client::SendEquipment(int command)
{
    const CharacterProfile& profile = session_.Profile;
    switch (command) {
    case CMD_EQUIP_WEAPON:
        SendCommand(profile.EquipWeapon);
        break;
    case CMD_UNEQUIP_WEAPON:
        SendCommand(profile.UnequipWeapon);
        break;
    case CMD_EQUIP_SHIELD:
        SendCommand(profile.EquipShield);
        break;
    default:
        SendCommand(profile.UnequipShield);
        break;
    }
}

void Client::OnWheel(bool shift, int amount)
{
    const int row = frame_->Mdi().ActiveRow();
    if (row < 0)
        return;
    if (AnsiWindow* window = Handle(static_cast<WindowRow>(row)))
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
