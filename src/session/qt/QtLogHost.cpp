#include "session/qt/QtLogHost.h"

#include "base/FrameCommand.h"
#include "base/FrameQueue.h"
#include "base/Trace.h"
#include "config/FileHandle.h"
#include "config/IniStore.h"
#include "config/SessionLog.h"
#include "session/GameLink.h"
#include "session/Session.h"
#include "session/qt/Desktop.h"

#include <QDate>

#include <cstdio>

namespace steward {

namespace {

constexpr char NOTES_FILE[] = "Thornmere Notes.Txt";
constexpr char NOTES_HEADER[] =
    "--------------------\nThornmere Notes:\n--------------------\n\n\n";
constexpr char VERSION_NOTES_FILE[] = "Version Notes.Txt";
// The version whose notes were last shown; notes appear once when it is below this.
constexpr std::int32_t NOTES_VERSION = 0x68;
constexpr char VERSION_SECTION[] = "Version Info";
constexpr char EDITOR_FAILED_TEXT[] = "Unable to run the text editor!";
constexpr char LOG_OPENED_TEXT[] = "\r\nLog file auto-opened successfully.\r\n\r\n";
constexpr char LOG_FAILED_TEXT[] = "\r\nError auto-opening log file!\r\n\r\n";

} // namespace

QtLogHost::QtLogHost(Session& session, GameLink& link, Desktop& desktop)
    : session_(session), link_(link), desktop_(desktop)
{
}

void QtLogHost::OpenDatedLog()
{
    const QDate today = QDate::currentDate();
    const std::string path = DatedLogName(session_.Files.ProgramFolder,
                                          {today.year(), today.month(), today.day()}, *this);
    const bool opened = session_.SessionLog.OpenAppend(path.c_str());
    PrintToGameWindow(opened ? LOG_OPENED_TEXT : LOG_FAILED_TEXT);
}

void QtLogHost::ToggleAutoLog()
{
    Settings& settings = session_.Profile.Settings;
    if (settings.AutoLog) {
        settings.AutoLog = 0;
        return;
    }
    settings.AutoLog = 1;
    if (!session_.SessionLog.IsOpen())
        OpenDatedLog();
}

void QtLogHost::OpenLogWithDialog()
{
    OpenWithDialog(session_.SessionLog, session_.Files.ProgramFolder.c_str(), *this);
}

void QtLogHost::FlushIfFull()
{
    FlushLogIfFull(session_.SessionLog, *this);
    FlushLogIfFull(session_.PacketDump, *this);
}

void QtLogHost::RunNotes()
{
    const std::string path = session_.Files.ProgramFolder + "/" + NOTES_FILE;
    if (!Exists(path.c_str())) {
        if (File file{std::fopen(path.c_str(), "wb")})
            std::fputs(NOTES_HEADER, file.get());
    }
    RunNotepad(path);
}

void QtLogHost::ShowVersionNotesOnce(FrameQueue& queue)
{
    const std::string& ini = session_.Files.MainIni;
    if (ReadInt(ini, VERSION_SECTION, "Version", 0) >= NOTES_VERSION)
        return;
    // Unremembered, the notes show again at the next start, which is all a failed write costs.
    if (!WriteInt(ini, VERSION_SECTION, "Version", NOTES_VERSION))
        Trace("Could not remember the notes' version in \"%s\"\n", ini.c_str());
    queue.PostCommand(CMD_VERSION_NOTES);
}

void QtLogHost::RunVersionNotes()
{
    RunNotepad(session_.Files.ProgramFolder + "/" + VERSION_NOTES_FILE);
}

void QtLogHost::RunNotepad(const std::string& path)
{
    if (path.empty())
        return;
    if (!desktop_.RunEditor(path))
        desktop_.ShowMessage(owner_, EDITOR_FAILED_TEXT, nullptr);
}

bool QtLogHost::AskSaveFileName(const SaveFileRequest& request, char* path, std::size_t capacity)
{
    return desktop_.AskSaveFileName(owner_, request, path, capacity);
}

void QtLogHost::ShowMessage(const char* text, const char* title)
{
    desktop_.ShowMessage(nullptr, text, title);
}

void QtLogHost::Beep()
{
    desktop_.Beep();
}

void QtLogHost::PrintToGameWindow(const char* text)
{
    link_.PrintToGameWindow(text);
}

bool QtLogHost::Exists(const char* path) const
{
    return File(std::fopen(path, "rb")) != nullptr;
}

void QtLogHost::ForwardCommand(int command)
{
    if (route_)
        route_(command);
}

std::string QtLogHost::ProgramFolder() const
{
    return session_.Files.ProgramFolder;
}

} // namespace steward
