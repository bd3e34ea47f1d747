#pragma once

#include "config/LogHost.h"
#include "session/LogNames.h"

#include <string>

class QWidget;

namespace steward {

class Desktop;
class FrameQueue;
class GameLink;
struct Session;

// The log host: the session log and the packet dump with their dialogs and messages, the
// dated logs, and the text files beside the program that the editor opens.
class QtLogHost : public LogHost, public FileProbe {
  public:
    QtLogHost(Session& session, GameLink& link, Desktop& desktop);

    // The parent of the save dialog and the editor's failure message.
    void SetOwner(QWidget* owner) { owner_ = owner; }

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

    // Opens the file in the text editor, or says that none started; an empty path opens none.
    void RunNotepad(const std::string& path);

  private:

    Session& session_;
    GameLink& link_;
    Desktop& desktop_;
    QWidget* owner_ = nullptr;
};

} // namespace steward
