#pragma once

#include "analysis/SpeechQueue.h"
#include "analysis/qt/QtLocalClock.h"
#include "analysis/qt/QtSpeech.h"
#include "base/FrameQueue.h"
#include "connection/qt/QtGameSocket.h"
#include "highlights/HighlightSound.h"
#include "highlights/HighlightStore.h"
#include "panels/qt/QtGaugeTimer.h"
#include "session/GameLink.h"
#include "session/RestMode.h"
#include "session/Session.h"
#include "session/qt/QtLogHost.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <string>

namespace steward {

class AutoReconnect;
class CharacterMenu;
class FrameDialogs;
class ChildWindowSet;
class CommandLine;
class Desktop;
class FrameWindow;
class Keyboard;
class KeyFilterQt;
class QtKeyboardHost;
class QtProfileHost;
class ReplayPlayer;
class ScriptControl;
class StatusPanelView;

// What the process was started with.
struct ClientOptions {
    ConfigFiles Files;
    // The connection string of the command line; empty asks with the connect dialog.
    std::string ConnectionString;
    // --packet-dump FILE.
    std::string PacketDumpPath;
    // --character NAME: the profile to start with instead of LastChar.
    std::string Character;
    // --replay FILE: a recorded session plays instead of a connection, at --speed X.
    std::string ReplayPath;
    double ReplaySpeed = 1;
};

// The client: start-up and shutdown, the switchboard of frame commands and the frame's queue.
// It owns the game link and the hosts that serve the rest: the child windows, the keyboard,
// the profile and the logs.
class Client : public QObject, private FrameQueue, private RestSender {
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

    FrameWindow& Frame() { return *frame_; }
    ChildWindowSet& Windows() { return *windows_; }
    Session& State() { return session_; }
    bool IsDisconnected() const { return link_.IsDisconnected(); }
    void PrintToGameWindow(const char* text) { link_.PrintToGameWindow(text); }

  private:
    // The frame's messages.
    bool OnClose();
    void OnDropped();
    void OnWheel(bool shift, int amount);
    void MakeScriptControl();
    void KeepSpeakOffWithoutVoice();
    void OnLoopTurn();

    // Commands.
    bool ServeFixedCommand(int command);
    void ConnectByHand();
    void ResetStewardMode();
    void EnterRestMode(bool silent);
    void SetDisplayMode(std::uint8_t mode);
    void ToggleAutoArrange();

    struct CommandEntry {
        int Command;
        void (*Serve)(Client&);
    };
    static const CommandEntry COMMANDS[];

    // FrameQueue.
    void PostCommand(int command) override;
    void PostDropped() override;

    ClientOptions options_;
    Desktop& desktop_;
    Session session_;
    QtGaugeTimer gaugeTimer_;
    QtLocalClock clock_;
    HighlightStore highlights_;
    SoundFolder sounds_;
    // The voice of the "Speak" option, fed by the line analysis.
    QtSpeech voice_;
    SpeechQueue speech_;
    GameLink link_;
    // Reports every received block straight to the link.
    QtGameSocket socket_;
    QtLogHost logs_;
    std::unique_ptr<FrameWindow> frame_;
    std::unique_ptr<StatusPanelView> panelView_;
    // The command line belongs to the frame; the keyboard works on it.
    CommandLine* commandLine_ = nullptr;
    std::unique_ptr<ChildWindowSet> windows_;
    std::unique_ptr<QtKeyboardHost> keyboardHost_;
    std::unique_ptr<Keyboard> keyboard_;
    std::unique_ptr<KeyFilterQt> keyFilter_;
    std::unique_ptr<QtProfileHost> profile_;
    std::unique_ptr<CharacterMenu> characters_;
    std::unique_ptr<FrameDialogs> dialogs_;
    std::unique_ptr<ScriptControl> scripts_;
    std::unique_ptr<AutoReconnect> reconnect_;
    std::unique_ptr<ReplayPlayer> replay_;
    QTimer timer_;
    // A start that ended before the loop leaves LastChar as it was.
    bool started_ = false;
    bool terminating_ = false;
    bool closed_ = false;
};

} // namespace steward
