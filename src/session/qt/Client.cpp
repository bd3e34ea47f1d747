#include "session/qt/Client.h"

#include "commands/Keyboard.h"
#include "commands/qt/CommandLine.h"
#include "commands/qt/KeyFilterQt.h"
#include "config/FileHandle.h"
#include "config/IniStore.h"
#include "config/SessionLog.h"
#include "session/FrameCommand.h"
#include "session/Trace.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameMenu.h"
#include "session/qt/FramePlacement.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "terminal/AnsiWindow.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCoreApplication>
#include <QScreen>
#include <QShortcut>
#include <QThread>
#include <QTime>

#include <cstdio>

namespace steward {

namespace {

// The version whose notes were last shown; notes appear once when it is below this.
constexpr std::int32_t NOTES_VERSION = 0x68;
constexpr char OFFLINE_TEXT[] = "\r\n\r\n*** Operating in an Offline mode.\r\n\r\n";
// The stored host holds up to 255 characters.
constexpr std::size_t HOST_VALUE_SIZE = 256;
constexpr char CONNECTION_SECTION[] = "Connection";
constexpr char VERSION_SECTION[] = "Version Info";

} // namespace

Client::Client(ClientOptions options, Desktop& desktop)
    : options_(std::move(options)), desktop_(desktop), sounds_(desktop.Sounds()),
      pipeline_({session_.Profile.Settings, session_.SessionLog, highlights_, sounds_,
                 session_.Windows, *this, session_.Script, session_.Panel, session_.Words, *this,
                 nullptr}),
      decoder_(pipeline_, session_.PacketDump, session_.Profile.Settings), socket_(*this),
      connection_(socket_, decoder_)
{
    session_.Files = options_.Files;
    sounds_.SetSoundPath(SoundPath(session_.Files));
    for (std::size_t i = 0; i < PROFILE_GAUGE_COUNT; ++i)
        GaugeFor(session_.Panel, static_cast<ProfileGauge>(i)).SetTimer(&gaugeTimer_);
    FrameWindow::Handlers handlers;
    handlers.Command = [this](int command) { OnCommand(command); };
    handlers.ReadMenuInputs = [this] { return ReadMenuInputs(); };
    handlers.Close = [this] { return OnClose(); };
    handlers.Wheel = [this](bool shift, int amount) { OnWheel(shift, amount); };
    handlers.Resized = [this] { ArrangeWindows(false); };
    frame_ = std::make_unique<FrameWindow>(std::move(handlers));
    commandLine_ = new CommandLine;
    frame_->SetCommandLine(commandLine_);
    CommandSink& sink = *this;
    FrameQueue& queue = *this;
    KeyboardHost& host = *this;
    keyboard_ =
        std::make_unique<Keyboard>(*commandLine_, sink, queue, host, session_.Profile.Settings);
    keyFilter_ = std::make_unique<KeyFilterQt>(keyboard_->Filter, *commandLine_);
    qApp->installEventFilter(keyFilter_.get());
    AddRestKeys();
    frame_->Mdi().SetChildClosedHandler([this](WindowRow row) { ChildClosed(row); });
    connect(&timer_, &QTimer::timeout, this, &Client::OnTimer);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            &Client::OnLoopTurn);
    if (!options_.PacketDumpPath.empty())
        session_.PacketDump.OpenNew(options_.PacketDumpPath.c_str());
}

Client::~Client()
{
    Finish();
}

void Client::AddRestKeys()
{
    auto* rest = new QShortcut(QKeySequence(Qt::Key_Pause), frame_.get());
    auto* silent = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_Pause), frame_.get());
    rest->setContext(Qt::ApplicationShortcut);
    silent->setContext(Qt::ApplicationShortcut);
    connect(rest, &QShortcut::activated, this, [this] { OnCommand(CMD_REST_MODE); });
    connect(silent, &QShortcut::activated, this, [this] { OnCommand(CMD_REST_MODE_SILENT); });
}

bool Client::Start()
{
    LoadProfile(session_.Files, session_.Profile, *this, nullptr, false);
    frame_->SetDisplayMode(session_.Profile.Settings.DisplayMode);
    PlaceFrame();
    ShowVersionNotesOnce();
    if (!ChooseAndConnect())
        return false;
    timer_.start(FRAME_TIMER_MS);
    if (AnsiWindow* game = session_.Windows.GameWindow) {
        session_.Profile.Settings.DefaultTextColor = game->GetTextColor();
        session_.Profile.Settings.DefaultBackColor = game->GetBkColor();
    }
    if (!connection_.IsDisconnected() && session_.Profile.Settings.AutoLog)
        OnCommand(CMD_OPEN_DATED_LOG);
    AnnouncePacketDump(session_.PacketDump, *this);
    PlayStartMusic(sounds_, session_.Profile.Settings.SquelchSounds != 0);
    frame_->activateWindow();
    frame_->FocusCommandLine();
    started_ = true;
    return true;
}

void Client::PlaceFrame()
{
    FramePlacement placement(*frame_);
    if (ReadPlacement(session_.Profile.ProfilePath, "Windows", "MainWindow", placement))
        return;
    // Without a window manager a maximise does nothing, so the frame takes the screen first.
    if (QScreen* screen = frame_->screen())
        frame_->setGeometry(screen->availableGeometry());
    frame_->showMaximized();
    frame_->update();
}

void Client::ShowVersionNotesOnce()
{
    const std::string& ini = session_.Files.MainIni;
    if (ReadInt(ini, VERSION_SECTION, "Version", 0) >= NOTES_VERSION)
        return;
    WriteInt(ini, VERSION_SECTION, "Version", NOTES_VERSION);
    PostCommand(CMD_VERSION_NOTES);
}

bool Client::ChooseConnection(char (&connection)[CONNECTION_STRING_SIZE], std::string& host,
                              int& port)
{
    if (!options_.ConnectionString.empty()) {
        std::snprintf(connection, sizeof connection, "%s", options_.ConnectionString.c_str());
        return true;
    }
    const std::string& ini = session_.Files.MainIni;
    char stored[HOST_VALUE_SIZE];
    ReadString(ini, CONNECTION_SECTION, "Host", stored, sizeof stored, DEFAULT_HOST);
    host = stored;
    port = ReadInt(ini, CONNECTION_SECTION, "Port", DEFAULT_PORT);
    ConnectChoice choice = desktop_.AskConnection(frame_.get(), host, port);
    // Connecting to no host is the offline choice.
    if (choice == ConnectChoice::Connect && host.empty())
        choice = ConnectChoice::Offline;
    switch (choice) {
    case ConnectChoice::Cancel:
        return false;
    case ConnectChoice::Offline:
        host = DEFAULT_HOST;
        port = DEFAULT_PORT;
        return true;
    case ConnectChoice::Connect:
        break;
    }
    FormatConnectionString(connection, host.c_str(), port);
    WriteString(ini, CONNECTION_SECTION, "Host", host.c_str());
    WriteInt(ini, CONNECTION_SECTION, "Port", port);
    return true;
}

bool Client::ChooseAndConnect()
{
    char connection[CONNECTION_STRING_SIZE] = {};
    std::string host = DEFAULT_HOST;
    int port = DEFAULT_PORT;
    if (!ChooseConnection(connection, host, port))
        return false;
    SetConnectionString(session_, connection);
    const int result = connection_.ConnectToGame(session_.ConnectionString);
    if (result == CONNECT_OFFLINE) {
        FormatConnectionString(session_.ConnectionString, host.c_str(), port);
        PrintToGameWindow(OFFLINE_TEXT);
        return true;
    }
    if (const char* failure = ConnectFailureText(result)) {
        desktop_.ShowMessage(frame_.get(), failure, CONNECT_FAILURE_TITLE);
        return false;
    }
    return true;
}

bool Client::OnClose()
{
    if (closed_)
        return true;
    if (!connection_.IsDisconnected()) {
        if (!terminating_ && !desktop_.AskExit(frame_.get()))
            return false;
        SendCommand("quit");
    }
    SaveProfile(session_.Files, session_.Profile, *this, session_.Profile.CurrentCharacter);
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
    frame_.reset();
    connection_.ShutdownConnection();
    if (started_)
        WriteLastChar(session_.Files, session_.Profile);
    timer_.stop();
    session_.SessionLog.Close();
    session_.PacketDump.Close();
}

void Client::OnDropped()
{
    connection_.ShutdownConnection();
    PrintToGameWindow(DROPPED_TEXT);
}

void Client::OnTimer()
{
    session_.Rest.OnTimer(*this);
}

void Client::OnLoopTurn()
{
    if (QThread::currentThread()->loopLevel() != 1)
        return;
    FlushLogIfFull(session_.SessionLog, *this);
    FlushLogIfFull(session_.PacketDump, *this);
}

std::size_t Client::BlockSize() const
{
    return decoder_.ReceiveChunkSize();
}

void Client::ReceiveBlock(const char* bytes, std::size_t length)
{
    decoder_.HandleSocketEvent(bytes, length);
}

void Client::ConnectionClosed()
{
    PostDropped();
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

TimeOfDay Client::Now() const
{
    const QTime now = QTime::currentTime();
    return {now.hour(), now.minute()};
}

void Client::Trace(const std::string& line)
{
    steward::Trace("%s", line.c_str());
}

bool Client::AskSaveFileName(const SaveFileRequest& request, char* path, std::size_t capacity)
{
    return desktop_.AskSaveFileName(frame_.get(), request, path, capacity);
}

void Client::ShowMessage(const char* text, const char* title)
{
    desktop_.ShowMessage(nullptr, text, title);
}

void Client::Beep()
{
    desktop_.Beep();
}

bool Client::Exists(const char* path) const
{
    return File(std::fopen(path, "rb")) != nullptr;
}

} // namespace steward
