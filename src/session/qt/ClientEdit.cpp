#include "session/qt/Client.h"

#include "commands/qt/CommandLine.h"
#include "highlights/qt/QtClipboardReader.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "terminal/AnsiWindow.h"

#include <QClipboard>
#include <QGuiApplication>

namespace steward {

namespace {

bool HasSelection(const CommandLineEdit& line)
{
    int start = 0;
    int end = 0;
    line.GetSelection(start, end);
    return start != end;
}

} // namespace

AnsiWindow* Client::ActiveChild() const
{
    const int row = frame_->Mdi().ActiveRow();
    if (row < 0)
        return nullptr;
    return const_cast<Client*>(this)->Handle(static_cast<WindowRow>(row));
}

void Client::CopyCommand()
{
    if (HasSelection(*commandLine_))
        commandLine_->Copy();
}

void Client::CopyToHighlights(int command)
{
    QtClipboardReader clipboard;
    highlights_.CopyToHighlights(command, clipboard);
}

void Client::ReadEditInputs(MenuInputs& in) const
{
    in.CommandLineHasSelection = HasSelection(*commandLine_);
    AnsiWindow* child = ActiveChild();
    in.ActiveChildHasSelection = child && child->HasSelection();
    in.ClipboardHasText = !QGuiApplication::clipboard()->text().isEmpty();
}

} // namespace steward
