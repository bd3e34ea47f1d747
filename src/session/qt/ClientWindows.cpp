#include "session/qt/Client.h"

#include "config/CharacterProfile.h"
#include "config/IniStore.h"
#include "session/WindowArrangement.h"
#include "session/qt/FramePlacement.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "terminal/qt/AnsiWindowWidget.h"

namespace steward {

AnsiWindow*& Client::Handle(WindowRow row)
{
    ChildWindows& windows = session_.Windows;
    switch (row) {
    case THOUGHT_ROW:
        return windows.ThoughtWindow;
    case ARRIVAL_ROW:
        return windows.ArrivalWindow;
    default:
        return windows.GameWindow;
    }
}

AnsiWindow* Client::OpenChildWindow(WindowRow row)
{
    MdiClient& mdi = frame_->Mdi();
    int open = 0;
    for (const WindowTableRow& each : WindowTable)
        open += mdi.Exists(each.Row) ? 1 : 0;
    const char* name = WindowTable[row].Name;
    AnsiWindowWidget::Parts parts{session_.Profile.Settings, session_.Profile.ProfilePath.c_str(),
                                  row == GAME_ROW ? &pipeline_.Prompt() : nullptr, nullptr};
    std::unique_ptr<AnsiWindowWidget> widget = AnsiWindowWidget::Create(name, parts);
    if (!widget)
        return nullptr;
    AnsiWindowWidget& view = *widget;
    view.SetCommandLine(frame_->CommandLine());
    mdi.AddChild(row, widget.release(),
                 ChildCreationRect(session_.Profile.Settings.AutoArrange != 0, open));
    ReadPlacement(session_.Profile.ProfilePath, name, "Position", view);
    pipeline_.PrintToWindow(&view.Window(), "\r\n\r\n");
    return &view.Window();
}

void Client::ChildClosed(WindowRow row)
{
    if (AnsiWindow* window = Handle(row))
        window->SaveState(session_.Profile.ProfilePath);
    Handle(row) = nullptr;
    ArrangeWindows(false);
}

void Client::ArrangeWindows(bool force)
{
    steward::ArrangeWindows(frame_->Mdi(), force, session_.Profile.Settings.AutoArrange != 0);
}

void Client::RestoreChildWindows(const std::string& profilePath)
{
    const RestorePlan plan = PlanRestore(ReadOpenWindows(profilePath).c_str());
    for (int i = 0; i < plan.Count; ++i) {
        const WindowRow row = plan.Rows[i];
        Handle(row) = OpenChildWindow(row);
        if (QMdiSubWindow* sub = frame_->Mdi().Child(row))
            sub->show();
    }
    ArrangeWindows(false);
}

void Client::SaveChildWindows(const std::string& profilePath)
{
    MdiClient& mdi = frame_->Mdi();
    std::array<bool, WINDOW_ROWS> open{};
    for (const WindowTableRow& row : WindowTable) {
        AnsiWindow* window = Handle(row.Row);
        open[row.Row] = window != nullptr;
        if (window)
            window->SaveState(profilePath);
    }
    WriteOpenWindows(profilePath, OpenWindowsLetters(open, mdi.ActiveRow()));
    FramePlacement placement(*frame_);
    WritePlacement(profilePath, "Windows", "MainWindow", placement);
}

} // namespace steward
