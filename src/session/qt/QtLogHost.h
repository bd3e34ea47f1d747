#pragma once

#include "config/LogHost.h"
#include "session/LogNames.h"
#include "terminal/TextWindowServices.h"

#include <functional>

#include <string>

class QWidget;

namespace steward {

class Desktop;
class FrameQueue;
class GameLink;
struct Session;

// The log host: the session log and the packet dump with their dialogs and messages, the
// dated logs, and the text files beside the program that the editor opens. It also serves the
// text windows' popup menus: their save dialog, the editor, and the frame commands.
class QtLogHost : public LogHost, public FileProbe, public TextWindowServices {
  public:
    QtLogHost(Session& session, GameLink& link, Desktop& desktop);

    // The parent of the save dialog and the editor's failure message.
    void SetOwner(QWidget* owner) { owner_ = owner; }
    // Where the popup menus' Copy commands go: the frame's switchboard.
    void SetCommandRoute(std::function<void(int)> route) { route_ = std::move(route); }

    // CMD_OPEN_DATED_LOG: today's next free log, with a line in the Game window either way.
    void OpenDatedLog();
    // CMD_AUTO_LOG: switching on also opens a dated log unless one is open.
    void ToggleAutoLog();
    // CMD_OPEN_LOG.
    void OpenLogWithDialog();
    // Each turn of the outer loop writes out the buffers that are full.
    void FlushIfFull();
    // CMD_RUN_NOTEPAD: the notes file, made with its header when missing.
    void RunNotes();
    // Posts CMD_VERSION_NOTES once for each new version of the notes.
    void ShowVersionNotesOnce(FrameQueue& queue);
    // CMD_VERSION_NOTES.
    void RunVersionNotes();

    // LogHost.
    bool AskSaveFileName(const SaveFileRequest& request, char* path, std::size_t capacity) override;
    void ShowMessage(const char* text, const char* title) override;
    void Beep() override;
    void PrintToGameWindow(const char* text) override;
    // FileProbe.
    bool Exists(const char* path) const override;

    // TextWindowServices; an empty path opens no editor.
    void ForwardCommand(int command) override;
    void RunNotepad(const std::string& path) override;
    std::string ProgramFolder() const override;

  private:
    Session& session_;
    GameLink& link_;
    Desktop& desktop_;
    QWidget* owner_ = nullptr;
    std::function<void(int)> route_;
};

} // namespace steward
