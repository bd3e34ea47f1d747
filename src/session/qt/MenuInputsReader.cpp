#include "session/qt/MenuInputsReader.h"

#include "commands/qt/CommandLine.h"
#include "scripts/qt/ScriptControl.h"
#include "session/GameLink.h"
#include "session/Session.h"
#include "session/qt/ChildWindowSet.h"
#include "terminal/AnsiWindow.h"

#include <QClipboard>
#include <QGuiApplication>

namespace steward {

MenuInputs ReadMenuInputs(const MenuSources& sources)
{
    const Session& session = sources.State;
    const Settings& settings = session.Profile.Settings;
    MenuInputs in;
    in.AutoArrange = settings.AutoArrange != 0;
    in.AutoLog = settings.AutoLog != 0;
    in.LogOpen = session.SessionLog.IsOpen();
    in.DisplayMode = settings.DisplayMode;
    in.Disconnected = sources.Link.IsDisconnected();
    in.Replay = session.Replay;
    in.GameWindowOpen = session.Windows.GameWindow != nullptr;
    in.ThoughtWindowOpen = session.Windows.ThoughtWindow != nullptr;
    in.ArrivalWindowOpen = session.Windows.ArrivalWindow != nullptr;
    in.CommandLineHasSelection = sources.Line.hasSelectedText();
    const AnsiWindow* child = sources.Windows.ActiveWindow();
    in.ActiveChildHasSelection = child && child->HasSelection();
    in.ClipboardHasText = !QGuiApplication::clipboard()->text().isEmpty();
    in.Recording = sources.Scripts.Recording();
    in.ScriptRunning = sources.Scripts.Running();
    return in;
}

} // namespace steward
