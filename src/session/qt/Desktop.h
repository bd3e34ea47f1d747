#pragma once

#include "base/qt/MessageBoxes.h"
#include "config/LogHost.h"
#include "highlights/SoundPlayer.h"
#include "highlights/qt/HighlightDialogs.h"
#include "highlights/qt/QtSoundPlayer.h"
#include "scripts/qt/ScriptDialogs.h"
#include "services/qt/DesktopBrowser.h"
#include "session/qt/ConnectDialog.h"

#include <cstddef>
#include <string>

class QWidget;

namespace steward {

// Everything the program asks of the person and of the desktop: dialogs, message boxes and
// the text editor, the highlight sheet's questions among them. Tests give a recording double,
// so that no dialog waits and no program opens on the desktop.
class Desktop : public MessageBoxes, public ScriptFileDialogs, public HighlightDialogs {
  public:
    virtual ~Desktop() = default;

    // GET_HOST; host and port come back as the player left them.
    virtual ConnectChoice AskConnection(QWidget* parent, std::string& host, int& port) = 0;
    // The question before leaving: true to leave.
    virtual bool AskExit(QWidget* parent) = 0;
    // Opens the file in the desktop's text editor without waiting; false when none started.
    virtual bool RunEditor(const std::string& path) = 0;
    virtual bool AskSaveFileName(QWidget* parent, const SaveFileRequest& request, char* path,
                                 std::size_t capacity) = 0;
    // Asks whom to drag, the field filled with the target: true with the new target on OK, false
    // when the player chose "Stop Dragging".
    virtual bool AskDragTarget(QWidget* parent, std::string& target) = 0;
    // The player of the highlight and start-up sounds.
    virtual SoundPlayer& Sounds() = 0;
    // The browser of the web addresses.
    virtual Browser& WebBrowser() = 0;
    // The folder picker: a folder, or empty on Cancel.
    virtual std::string PickFolder(QWidget* parent, const char* title) = 0;
};

// The real dialogs and the desktop's own editor.
class QtDesktop : public Desktop {
  public:
    ConnectChoice AskConnection(QWidget* parent, std::string& host, int& port) override;
    bool AskExit(QWidget* parent) override;
    void ShowMessage(QWidget* parent, const char* text, const char* title) override;
    bool RunEditor(const std::string& path) override;
    bool AskSaveFileName(QWidget* parent, const SaveFileRequest& request, char* path,
                         std::size_t capacity) override;
    void Beep() override;
    bool AskString(QWidget* parent, const char* title, char* answer, std::size_t capacity) override;
    bool AskDragTarget(QWidget* parent, std::string& target) override;
    SoundPlayer& Sounds() override { return sounds_; }
    Browser& WebBrowser() override { return browser_; }
    std::string PickFolder(QWidget* parent, const char* title) override;
    std::string ChooseScriptFile(QWidget* parent, const std::string& folder,
                                 bool forEditing) override;
    std::string AskRecordFile(QWidget* parent, const std::string& folder) override;
    std::string CreateScript(QWidget* parent, const std::string& folder) override;
    std::string ChooseSoundFile(QWidget* parent, const std::string& folder) override;

  private:
    QtSoundPlayer sounds_;
    DesktopBrowser browser_;
};

} // namespace steward
