#include "session/qt/QtKeyboardHost.h"

#include "commands/qt/CommandLine.h"
#include "scripts/qt/ScriptControl.h"
#include "session/GameLink.h"
#include "session/Session.h"
#include "session/qt/ChildWindowSet.h"
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

bool QtKeyboardHost::RestMode() const
{
    return links_.State.Rest.RestMode;
}

void QtKeyboardHost::SetRestMode(bool on)
{
    if (on)
        links_.State.Rest.Enter(links_.State.Rest.RestSilent);
    else
        links_.State.Rest.Leave();
}

void QtKeyboardHost::PrintToGameWindow(const char* text)
{
    links_.Link.PrintToGameWindow(text);
}

void QtKeyboardHost::ScrollActiveChild(int scrollCode)
{
    if (AnsiWindow* child = links_.Windows.ActiveWindow())
        child->VScroll(scrollCode, 0);
}

void QtKeyboardHost::NextChildWindow()
{
    links_.Frame.Mdi().activateNextSubWindow();
}

void QtKeyboardHost::ToggleGameWindowMaximized()
{
    ChildWindowSet& windows = links_.Windows;
    if (!windows.Exists(GAME_ROW))
        return;
    if (windows.IsMaximised(GAME_ROW))
        windows.Restore(GAME_ROW);
    else
        windows.Maximise(GAME_ROW);
}

void QtKeyboardHost::EndScrollback()
{
    links_.Windows.EndScrollback();
}

void QtKeyboardHost::CopyFromActiveChild()
{
    if (AnsiWindow* child = links_.Windows.ActiveWindow())
        child->Copy();
}

void QtKeyboardHost::Copy()
{
    if (links_.Line.hasSelectedText())
        links_.Line.Copy();
    else
        CopyFromActiveChild();
}

void QtKeyboardHost::CopyToCommandLine()
{
    if (links_.Windows.ActiveWindow())
        WithSelectionCopied([this] { links_.Line.Paste(); });
}

void QtKeyboardHost::WithSelectionCopied(const std::function<void()>& take)
{
    AnsiWindow* child = links_.Windows.ActiveWindow();
    if (child)
        child->Copy();
    take();
    if (child)
        child->Clear();
}

void QtKeyboardHost::SetFrameTitle(const char* title)
{
    links_.Frame.setWindowTitle(QString::fromLatin1(title));
}

const char* QtKeyboardHost::CurrentCharacter() const
{
    return links_.State.Profile.CurrentCharacter;
}

void QtKeyboardHost::PostClose()
{
    QMetaObject::invokeMethod(&links_.Frame, &QWidget::close, Qt::QueuedConnection);
}

bool QtKeyboardHost::AskString(const char* title, char* answer, std::size_t capacity)
{
    return links_.Dialogs.AskString(&links_.Frame, title, answer, capacity);
}

void QtKeyboardHost::PumpFor(int seconds)
{
    steward::PumpFor(seconds);
}

void PumpFor(int seconds)
{
    QEventLoop loop;
    QTimer::singleShot(std::clamp(seconds, SHORTEST_PUMP_SECONDS, LONGEST_PUMP_SECONDS) * 1000,
                       &loop, &QEventLoop::quit);
    loop.exec();
}

bool QtKeyboardHost::ScriptRunning() const
{
    return scripts_ && scripts_->Running();
}

void QtKeyboardHost::AbortScript()
{
    if (scripts_)
        scripts_->AbortScript();
}

} // namespace steward
