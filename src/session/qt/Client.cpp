// The client's start-up and shutdown, and the frame's queue.
#include "session/qt/Client.h"

#include "base/FrameCommand.h"
#include "base/Trace.h"
#include "commands/Keyboard.h"
#include "commands/qt/CommandLine.h"
#include "commands/qt/KeyFilterQt.h"
#include "panels/qt/StatusPanelView.h"
#include "scripts/qt/ScriptControl.h"
#include "session/CharacterList.h"
#include "session/qt/AutoReconnect.h"
#include "session/qt/CharacterMenu.h"
#include "session/qt/ChildWindowSet.h"
#include "session/qt/ConnectionChoice.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameDialogs.h"
#include "session/qt/FramePlacement.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "session/qt/MenuInputsReader.h"
#include "session/qt/QtKeyboardHost.h"
#include "session/qt/QtProfileHost.h"
#include "session/qt/ReplayPlayer.h"
#include "terminal/AnsiWindow.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCoreApplication>
#include <QThread>

#include <cstdio>

namespace steward {

namespace {

constexpr char PROFILE_NOT_SAVED_TEXT[] =
    "The profile could not be saved: its files keep what they held before.";

} // namespace

Client::Client(ClientOptions options, Desktop& desktop)
    : options_(std::move(options)), desktop_(desktop), sounds_(desktop.Sounds()),
      speech_(voice_, session_.Steward),
      link_({session_.Profile.Settings, session_.SessionLog, highlights_, sounds_, session_.Windows,
             *this, session_.Script, session_.Panel, session_.Words, clock_, nullptr, &speech_},
            session_.PacketDump, socket_),
      socket_(link_), logs_(session_, link_, desktop)
{
    session_.Files = options_.Files;
    session_.Steward = StewardOptions::Load(session_.Files.MainIni);
    voice_.SetFinished([this] { speech_.Spoken(); });
    voice_.SetFailed([this] { KeepSpeakOffWithoutVoice(); });
    EnsureProfileFiles(session_.Files);
    sounds_.SetSoundPath(SoundPath(session_.Files));
    for (std::size_t i = 0; i < PROFILE_GAUGE_COUNT; ++i)
        GaugeFor(session_.Panel, static_cast<ProfileGauge>(i)).SetTimer(&gaugeTimer_);
    FrameWindow::Handlers handlers;
    handlers.Command = [this](int command) { OnCommand(command); };
    handlers.ReadMenuInputs = [this] {
        return ReadMenuInputs({session_, link_, *commandLine_, *windows_, *scripts_});
    };
    handlers.Close = [this] { return OnClose(); };
    handlers.Wheel = [this](bool shift, int amount) { OnWheel(shift, amount); };
    handlers.Resized = [this] {
        if (panelView_)
            panelView_->Place(frame_->Layout().PanelTop, frame_->Layout().ToolButtons);
        windows_->Arrange(false);
    };
    frame_ = std::make_unique<FrameWindow>(std::move(handlers));
    logs_.SetOwner(frame_.get());
    panelView_ = std::make_unique<StatusPanelView>(frame_->Surface(), session_.Panel,
                                                   [this](int command) { OnCommand(command); });
    logs_.SetCommandRoute([this](int command) { OnCommand(command); });
    commandLine_ = new CommandLine;
    windows_ = std::make_unique<ChildWindowSet>(
        ChildWindowSet::Links{frame_->Mdi(), session_.Windows, session_.Profile, session_.Steward,
                              link_.Pipeline(), commandLine_, &logs_});
    frame_->SetCommandLine(commandLine_);
    keyboardHost_ = std::make_unique<QtKeyboardHost>(
        QtKeyboardHost::Links{session_, link_, *windows_, *frame_, desktop_, *commandLine_});
    FrameQueue& queue = *this;
    keyboard_ = std::make_unique<Keyboard>(*commandLine_, link_, queue, *keyboardHost_,
                                           session_.Profile.Settings);
    keyFilter_ = std::make_unique<KeyFilterQt>(keyboard_->Filter, *commandLine_);
    qApp->installEventFilter(keyFilter_.get());
    MakeScriptControl();
    profile_ = std::make_unique<QtProfileHost>(QtProfileHost::Links{
        session_.Files, session_.Profile, session_.Panel, highlights_, keyboard_->Macros,
        keyboard_->History, session_.Steward, *keyFilter_, *windows_, *frame_});
    characters_ = std::make_unique<CharacterMenu>(
        CharacterMenu::Links{session_, *profile_, *windows_, *frame_, desktop_,
                             [this](int command) { OnCommand(command); }});
    dialogs_ = std::make_unique<FrameDialogs>(
        FrameDialogs::Links{*frame_, session_, desktop_, keyboard_->Macros, keyboard_->State,
                            highlights_, sounds_, *profile_, *keyboardHost_, voice_});
    reconnect_ = std::make_unique<AutoReconnect>(link_, session_);
    replay_ = std::make_unique<ReplayPlayer>(
        link_, [this](const char* text) { link_.PrintToGameWindow(text); });
    connect(&timer_, &QTimer::timeout, this, [this] { session_.Rest.OnTimer(*this); });
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            &Client::OnLoopTurn);
    if (!options_.PacketDumpPath.empty())
        session_.PacketDump.OpenNew(options_.PacketDumpPath.c_str());
}

Client::~Client()
{
    Finish();
}

bool Client::Start()
{
    profile_->Load(options_.Character.empty() ? nullptr : options_.Character.c_str());
    frame_->SetDisplayMode(session_.Profile.Settings.DisplayMode);
    PlaceFrame(*frame_, session_.Profile.ProfilePath);
    logs_.ShowVersionNotesOnce(*this);
    session_.Replay = !options_.ReplayPath.empty();
    if (session_.Replay)
        replay_->Start(options_.ReplayPath, options_.ReplaySpeed);
    else if (!ConnectAtStart(options_.ConnectionString, session_, link_, desktop_, frame_.get()))
        return false;
    timer_.start(FRAME_TIMER_MS);
    if (AnsiWindow* game = session_.Windows.GameWindow) {
        session_.Profile.Settings.DefaultTextColor = game->GetTextColor();
        session_.Profile.Settings.DefaultBackColor = game->GetBkColor();
    }
    if (!link_.IsDisconnected() && session_.Profile.Settings.AutoLog)
        OnCommand(CMD_OPEN_DATED_LOG);
    AnnouncePacketDump(session_.PacketDump, logs_);
    KeepSpeakOffWithoutVoice();
    PlayStartMusic(sounds_, session_.Profile.Settings.SquelchSounds != 0);
    frame_->activateWindow();
    characters_->BuildCharacterMenu();
    frame_->FocusCommandLine();
    started_ = true;
    return true;
}

bool Client::OnClose()
{
    if (closed_)
        return true;
    if (!link_.IsDisconnected()) {
        if (!terminating_ && !desktop_.AskExit(frame_.get()))
            return false;
        SendCommand("quit");
    }
    reconnect_->Stop();
    if (!profile_->Save() && !terminating_)
        desktop_.ShowMessage(frame_.get(), PROFILE_NOT_SAVED_TEXT, nullptr);
    closed_ = true;
    QCoreApplication::quit();
    return true;
}

void Client::Terminate()
{
    terminating_ = true;
    if (frame_)
        frame_->close();
    if (!closed_)
        OnClose();
}

void Client::Finish()
{
    if (!frame_)
        return;
    keyFilter_.reset();
    panelView_.reset();
    frame_.reset();
    link_.ShutdownConnection();
    if (started_ && !WriteLastChar(session_.Files, session_.Profile))
        Trace("Could not write LastChar to \"%s\"\n", session_.Files.MainIni.c_str());
    timer_.stop();
    session_.SessionLog.Close();
    session_.PacketDump.Close();
}

void Client::OnDropped()
{
    link_.ShutdownConnection();
    link_.PrintToGameWindow(DROPPED_TEXT);
    if (!closed_)
        reconnect_->Dropped();
}

// The main ini keeps "Speak" on for a machine that has a voice; here it is off for this run.
void Client::KeepSpeakOffWithoutVoice()
{
    if (!session_.Steward.IsOn(SPEAK) || voice_.Available())
        return;
    session_.Steward.Set(SPEAK, 0);
    char text[sizeof NO_VOICE_TEXT + 16];
    std::snprintf(text, sizeof text, "\r\n*** %s\r\n", NO_VOICE_TEXT);
    link_.PrintToGameWindow(text);
}

void Client::OnLoopTurn()
{
    if (QThread::currentThread()->loopLevel() != 1)
        return;
    logs_.FlushIfFull();
    if (scripts_->Running())
        scripts_->ScriptStep();
}

void Client::PostCommand(int command)
{
    QMetaObject::invokeMethod(
        this, [this, command] { OnCommand(command); }, Qt::QueuedConnection);
}

void Client::PostDropped()
{
    QMetaObject::invokeMethod(
        this, [this] { OnDropped(); }, Qt::QueuedConnection);
}

} // namespace steward
