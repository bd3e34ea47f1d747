#include "session/qt/Client.h"

#include "commands/Keyboard.h"
#include "session/Trace.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "terminal/AnsiWindow.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace steward {

namespace {

// A pause of a macro or script waits at least one second and at most 29.
constexpr int SHORTEST_PUMP_SECONDS = 1;
constexpr int LONGEST_PUMP_SECONDS = 29;

} // namespace

void Client::EchoCommand(const char* text)
{
    pipeline_.EchoCommand(text);
}

void Client::SetEchoPending()
{
    pipeline_.Prompt().EchoPending = true;
}

void Client::SendLine(const char* text)
{
    connection_.SendLine(text);
}

void Client::RecordCommand(const char*) {}

bool Client::RestMode() const
{
    return session_.Rest.RestMode;
}

void Client::SetRestMode(bool on)
{
    if (on)
        session_.Rest.Enter(session_.Rest.RestSilent);
    else
        session_.Rest.Leave();
}

void Client::ScrollActiveChild(int scrollCode)
{
    if (AnsiWindow* child = ActiveChild())
        child->VScroll(scrollCode, 0);
}

void Client::NextChildWindow()
{
    frame_->Mdi().activateNextSubWindow();
}

void Client::ToggleGameWindowMaximized()
{
    MdiClient& mdi = frame_->Mdi();
    if (!mdi.Exists(GAME_ROW))
        return;
    if (mdi.IsMaximised(GAME_ROW))
        mdi.Restore(GAME_ROW);
    else
        mdi.Maximise(GAME_ROW);
}

bool Client::ScriptRunning() const
{
    return false;
}

void Client::AbortScript() {}

void Client::EndScrollback()
{
    for (const WindowTableRow& row : WindowTable)
        if (AnsiWindow* window = Handle(row.Row))
            window->EndScrollback();
}

void Client::SetFrameTitle(const char* title)
{
    frame_->setWindowTitle(QString::fromLatin1(title));
}

const char* Client::CurrentCharacter() const
{
    return session_.Profile.CurrentCharacter;
}

void Client::CopyFromActiveChild() {}

void Client::PostClose()
{
    QMetaObject::invokeMethod(frame_.get(), &QWidget::close, Qt::QueuedConnection);
}

bool Client::AskString(const char* title, char* answer, std::size_t capacity)
{
    return desktop_.AskString(frame_.get(), title, answer, capacity);
}

void Client::PumpFor(int seconds)
{
    QEventLoop loop;
    QTimer::singleShot(std::clamp(seconds, SHORTEST_PUMP_SECONDS, LONGEST_PUMP_SECONDS) * 1000,
                       &loop, &QEventLoop::quit);
    loop.exec();
}

void Client::Trace(const char* line)
{
    steward::Trace("%s", line);
}

} // namespace steward
