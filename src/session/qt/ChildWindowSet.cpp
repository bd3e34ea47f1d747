#include "session/qt/ChildWindowSet.h"

#include "analysis/LinePipeline.h"
#include "base/Trace.h"
#include "config/CharacterProfile.h"
#include "config/IniStore.h"
#include "session/qt/MdiClient.h"
#include "terminal/TextBuffer.h"
#include "terminal/qt/AnsiWindowWidget.h"

#include <QEvent>
#include <QMdiSubWindow>

namespace steward {

namespace {

// The name of each row's window in ChildWindows, in WindowTable order.
constexpr AnsiWindow* ChildWindows::*PUBLISHED_NAMES[WINDOW_ROWS] = {
    &ChildWindows::GameWindow, &ChildWindows::ThoughtWindow, &ChildWindows::ArrivalWindow};

} // namespace

ChildWindowSet::ChildWindowSet(const Links& links) : links_(links) {}

AnsiWindow* ChildWindowSet::Open(WindowRow row)
{
    int open = 0;
    for (const WindowTableRow& each : WindowTable)
        open += Exists(each.Row) ? 1 : 0;
    const char* name = WindowTable[row].Name;
    const Settings& settings = links_.Profile.Settings;
    AnsiWindowWidget::Parts parts{settings,
                                  links_.Profile.ProfilePath.c_str(),
                                  row == GAME_ROW ? &links_.Pipeline.Prompt() : nullptr,
                                  nullptr,
                                  links_.Services,
                                  &links_.Steward,
                                  ScrollbackBytes(links_.Steward.Get(WindowTable[row].Scrollback))};
    std::unique_ptr<AnsiWindowWidget> widget = AnsiWindowWidget::Create(name, parts);
    Published(row) = widget ? &widget->Window() : nullptr;
    if (!widget)
        return nullptr;
    AnsiWindowWidget& view = *widget;
    view.SetCommandLine(links_.CommandLine);
    AddChild(row, widget.release(), ChildCreationRect(settings.AutoArrange != 0, open));
    ReadPlacement(links_.Profile.ProfilePath, name, "Position", view);
    links_.Pipeline.PrintToWindow(&view.Window(), "\r\n\r\n");
    return &view.Window();
}

void ChildWindowSet::OpenCommand(WindowRow row)
{
    Open(row);
    Arrange(false);
    FocusCommandLine();
}

QMdiSubWindow* ChildWindowSet::AddChild(WindowRow row, AnsiWindowWidget* view, const Rect& place)
{
    auto* sub = new QMdiSubWindow(nullptr);
    sub->setWidget(view);
    sub->installEventFilter(this);
    sub->setWindowTitle(QString::fromLatin1(WindowTable[row].Name));
    sub->setWindowIcon(QIcon(QStringLiteral(":/AppIcon.png")));
    links_.Area.addSubWindow(sub);
    sub->setGeometry(place.left, place.top, place.Width(), place.Height());
    sub->show();
    rows_[row] = {sub};
    connect(view, &QObject::destroyed, this, [this, row] { Forget(row); });
    return sub;
}

void ChildWindowSet::Restore(const std::string& profilePath)
{
    const RestorePlan plan = PlanRestore(ReadOpenWindows(profilePath).c_str());
    for (int i = 0; i < plan.Count; ++i) {
        const WindowRow row = plan.Rows[i];
        Open(row);
        if (QMdiSubWindow* sub = Child(row))
            sub->show();
    }
    Arrange(false);
}

bool ChildWindowSet::Save(const std::string& profilePath)
{
    std::array<bool, WINDOW_ROWS> open{};
    bool saved = true;
    for (const WindowTableRow& row : WindowTable) {
        AnsiWindow* window = Published(row.Row);
        open[row.Row] = window != nullptr;
        if (window)
            saved = window->SaveState(profilePath) && saved;
    }
    return WriteOpenWindows(profilePath, OpenWindowsLetters(open, ActiveRow())) && saved;
}

ChildWindowSet::SavedBuffers ChildWindowSet::CloneAndClose()
{
    SavedBuffers saved;
    for (const WindowTableRow& row : WindowTable)
        if (AnsiWindow* window = Window(row.Row)) {
            saved[row.Row] = window->CloneBuffer();
            Child(row.Row)->close();
        }
    return saved;
}

void ChildWindowSet::RestoreBuffers(SavedBuffers& saved)
{
    for (const WindowTableRow& row : WindowTable) {
        if (AnsiWindow* window = Window(row.Row))
            window->RestoreBuffer(std::move(saved[row.Row]));
        saved[row.Row].reset();
    }
}

void ChildWindowSet::Arrange(bool force)
{
    ArrangeWindows(*this, force, links_.Profile.Settings.AutoArrange != 0);
}

AnsiWindow* ChildWindowSet::Window(WindowRow row) const
{
    return links_.Windows.*PUBLISHED_NAMES[row];
}

int ChildWindowSet::ActiveRow() const
{
    QMdiSubWindow* active = links_.Area.activeSubWindow();
    for (const WindowTableRow& row : WindowTable)
        if (active && rows_[row.Row].Sub == active)
            return row.Row;
    return -1;
}

AnsiWindow* ChildWindowSet::ActiveWindow() const
{
    const int row = ActiveRow();
    return row < 0 ? nullptr : Window(static_cast<WindowRow>(row));
}

void ChildWindowSet::FindInActiveWindow()
{
    const int active = ActiveRow();
    QMdiSubWindow* sub = Child(active < 0 ? GAME_ROW : static_cast<WindowRow>(active));
    if (auto* view = sub ? qobject_cast<AnsiWindowWidget*>(sub->widget()) : nullptr)
        view->OpenFindBar();
}

void ChildWindowSet::EndScrollback()
{
    for (const WindowTableRow& row : WindowTable)
        if (AnsiWindow* window = Window(row.Row))
            window->EndScrollback();
}

bool ChildWindowSet::IsMinimised(WindowRow row) const
{
    return Exists(row) && Child(row)->isMinimized();
}

bool ChildWindowSet::IsMaximised(WindowRow row) const
{
    return Exists(row) && Child(row)->isMaximized();
}

void ChildWindowSet::Restore(WindowRow row)
{
    if (Exists(row))
        Child(row)->showNormal();
}

void ChildWindowSet::Maximise(WindowRow row)
{
    if (Exists(row))
        Child(row)->showMaximized();
}

void ChildWindowSet::Move(WindowRow row, const Rect& place)
{
    if (Exists(row))
        Child(row)->setGeometry(place.left, place.top, place.Width(), place.Height());
}

void ChildWindowSet::Activate(WindowRow row)
{
    if (Exists(row))
        links_.Area.setActiveSubWindow(Child(row));
}

Rect ChildWindowSet::ClientArea() const
{
    return links_.Area.ClientArea();
}

void ChildWindowSet::FocusCommandLine()
{
    links_.Area.FocusCommandLine();
}

bool ChildWindowSet::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    for (const WindowTableRow& row : WindowTable) {
        QMdiSubWindow* sub = Child(row.Row);
        if (sub != watched)
            continue;
        // The row is let go while its window still lives, so nothing reaches a freed window
        // and no arrangement runs inside a destructor.
        QWidget* view = sub->widget();
        disconnect(view, &QObject::destroyed, this, nullptr);
        AnsiWindow* window = Window(row.Row);
        if (window && !window->SaveState(links_.Profile.ProfilePath))
            Trace("Could not save the state of the %s\n", window->GetSectionName());
        Forget(row.Row);
        delete view;
        sub->deleteLater();
    }
    return QObject::eventFilter(watched, event);
}

void ChildWindowSet::Forget(WindowRow row)
{
    rows_[row] = {};
    Published(row) = nullptr;
    if (!links_.Area.Dying())
        Arrange(false);
}

AnsiWindow*& ChildWindowSet::Published(WindowRow row)
{
    return links_.Windows.*PUBLISHED_NAMES[row];
}

} // namespace steward
