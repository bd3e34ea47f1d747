#pragma once

#include "analysis/LinePipeline.h"
#include "analysis/LocalClock.h"
#include "commands/CommandSink.h"
#include "commands/KeyboardHost.h"
#include "config/LogHost.h"
#include "config/ProfileParts.h"
#include "connection/Connection.h"
#include "connection/GameSocket.h"
#include "connection/StreamDecoder.h"
#include "connection/qt/QtGameSocket.h"
#include "highlights/HighlightLists.h"
#include "highlights/HighlightSound.h"
#include "panels/qt/QtGaugeTimer.h"
#include "session/FrameQueue.h"
#include "session/LogNames.h"
#include "session/MenuState.h"
#include "session/RestMode.h"
#include "session/Session.h"
#include "session/WindowTable.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <string>

namespace steward {

class CommandLine;
class Desktop;
class FrameWindow;
class Keyboard;
class KeyFilterQt;
class MdiClient;

// What the process was started with.
struct ClientOptions {
    ConfigFiles Files;
    // The connection string of the command line; empty asks with the connect dialog.
    std::string ConnectionString;
    // --packet-dump FILE.
    std::string PacketDumpPath;
};

// The whole client: the session's state, the frame, the connection and the road of every
// line between them. It serves the frame's commands through one switchboard.
class Client : public QObject,
               private SocketListener,
               private FrameQueue,
               private LocalClock,
               private ProfileParts,
               private LogHost,
               private RestSender,
               private FileProbe,
               private CommandSink,
               private KeyboardHost {
    Q_OBJECT
  public:
    Client(ClientOptions options, Desktop& desktop);
    ~Client() override;

    // Start-up from the profile to the frame's timer; false when the program ends here, after
    // a cancelled dialog or a failed connect.
    bool Start();
    // After the loop: the frame's windows, the connection, LastChar, the timer and the logs.
    void Finish();
    // SIGTERM: the way of a close, without the question.
    void Terminate();
    // True once the frame was let close; the loop then has nothing left to do.
    bool Closed() const { return closed_; }

    // The switchboard: every frame command ends here.
    void OnCommand(int command);
    // The full road of a text to the game, with its echo.
    void SendCommand(const char* text) override;
    void PrintToGameWindow(const char* text) override;

    FrameWindow& Frame() { return *frame_; }
    Session& State() { return session_; }
    bool IsDisconnected() const { return connection_.IsDisconnected(); }

  private:
    // Pause enters rest mode, Shift+Pause rests without snoring.
    void AddRestKeys();
    // Start-up steps.
    void PlaceFrame();
    void ShowVersionNotesOnce();
    // The connection string of the command line, or the dialog's choice; false on Cancel.
    bool ChooseConnection(char (&connection)[CONNECTION_STRING_SIZE], std::string& host, int& port);
    bool ChooseAndConnect();

    // The frame's messages.
    bool OnClose();
    void OnDropped();
    void OnTimer();
    void OnWheel(bool shift, int amount);
    void OnLoopTurn();
    MenuInputs ReadMenuInputs() const;
    void ReadEditInputs(MenuInputs& in) const;

    // Commands.
    bool ServeFixedCommand(int command);
    void RunNotes();
    void RunNotepad(const std::string& path);
    void OpenDatedLog();
    void ToggleAutoLog();
    void Reconnect();
    void ResetStewardMode();
    void EnterRestMode(bool silent);
    void SetDisplayMode(std::uint8_t mode);
    void OpenWindowCommand(WindowRow row);
    void ToggleAutoArrange();
    void TileCommand(void (MdiClient::*tile)());
    void OpenLogWithDialog();
    void RunVersionNotes();
    void CopyCommand();
    // Copy Special: the clipboard's lines go to the string or the name highlights.
    void CopyToHighlights(int command);
    // DRAG_DIALOG: OK takes the field as DragTarget, "Stop Dragging" empties it.
    void AskDragTarget();

    struct CommandEntry {
        int Command;
        void (*Serve)(Client&);
    };
    static const CommandEntry COMMANDS[];

    // Child windows.
    AnsiWindow*& Handle(WindowRow row);
    AnsiWindow* OpenChildWindow(WindowRow row);
    void ChildClosed(WindowRow row);
    void ArrangeWindows(bool force);
    AnsiWindow* ActiveChild() const;

    // SocketListener.
    std::size_t BlockSize() const override;
    void ReceiveBlock(const char* bytes, std::size_t length) override;
    void ConnectionClosed() override;
    // FrameQueue.
    void PostCommand(int command) override;
    void PostDropped() override;
    // LocalClock.
    TimeOfDay Now() const override;
    // ProfileParts.
    void Trace(const std::string& line) override;
    GaugeColors GetGaugeColors(ProfileGauge gauge) override;
    void SetGaugeColors(ProfileGauge gauge, const GaugeColors& colors) override;
    void SetNumLockOff() override;
    void RestoreChildWindows(const std::string& profilePath) override;
    void SaveChildWindows(const std::string& profilePath) override;
    void LoadMacros(const std::string& macrosPath) override;
    void SaveMacros(const std::string& macrosPath) override;
    void LoadHighlights(const std::string& highlightsPath, const std::string& namesPath) override;
    void SaveHighlights(const std::string& highlightsPath, const std::string& namesPath) override;
    void SetDefaultMacros(bool newProfile) override;
    void UpdateTitle() override;
    // LogHost.
    bool AskSaveFileName(const SaveFileRequest& request, char* path, std::size_t capacity) override;
    void ShowMessage(const char* text, const char* title) override;
    void Beep() override;
    // FileProbe.
    bool Exists(const char* path) const override;
    // CommandSink.
    void EchoCommand(const char* text) override;
    void SetEchoPending() override;
    void SendLine(const char* text) override;
    void RecordCommand(const char* text) override;
    // KeyboardHost.
    bool RestMode() const override;
    void SetRestMode(bool on) override;
    void ScrollActiveChild(int scrollCode) override;
    void NextChildWindow() override;
    void ToggleGameWindowMaximized() override;
    bool ScriptRunning() const override;
    void AbortScript() override;
    void EndScrollback() override;
    void SetFrameTitle(const char* title) override;
    const char* CurrentCharacter() const override;
    void CopyFromActiveChild() override;
    void PostClose() override;
    bool AskString(const char* title, char* answer, std::size_t capacity) override;
    void PumpFor(int seconds) override;
    void Trace(const char* line) override;

    ClientOptions options_;
    Desktop& desktop_;
    Session session_;
    QtGaugeTimer gaugeTimer_;
    HighlightLists highlights_;
    SoundFolder sounds_;
    LinePipeline pipeline_;
    StreamDecoder decoder_;
    QtGameSocket socket_;
    Connection connection_;
    std::unique_ptr<FrameWindow> frame_;
    // The command line belongs to the frame; the keyboard works on it.
    CommandLine* commandLine_ = nullptr;
    std::unique_ptr<Keyboard> keyboard_;
    std::unique_ptr<KeyFilterQt> keyFilter_;
    QTimer timer_;
    // A start that ended before the loop leaves LastChar as it was.
    bool started_ = false;
    bool terminating_ = false;
    bool closed_ = false;
};

} // namespace steward
