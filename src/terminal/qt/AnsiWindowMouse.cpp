#include "base/FrameCommand.h"
#include "terminal/qt/AnsiWindowWidget.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMouseEvent>

#include <cstring>

namespace steward {

namespace {

void AddItem(QMenu& menu, const char* text, int id)
{
    menu.addAction(QString::fromLatin1(text))->setData(id);
}

} // namespace

void AnsiWindowWidget::MenuCommand(int id)
{
    switch (id) {
    case CMD_COPY:
    case CMD_COPY_TO_STRING_HIGHLIGHTS:
    case CMD_COPY_TO_NAME_HIGHLIGHTS:
    case CMD_COPY_TO_COMMAND_LINE:
        if (services_)
            services_->ForwardCommand(id);
        break;
    case IDM_CHANGE_FONT:
        window_->ChangeFont();
        break;
    case IDM_CHANGE_BACKGROUND:
        window_->ChangeBackgroundColor();
        break;
    case IDM_CHANGE_FOREGROUND:
        window_->ChangeForegroundColor();
        break;
    case IDM_COPY_ALL_TO_CLIPBOARD:
        window_->CopyAllToClipboard();
        break;
    case IDM_COPY_ALL_TO_FILE:
        window_->CopyAllToFile();
        break;
    case IDM_EDIT:
        window_->EditAll();
        break;
    case IDM_FIND:
        OpenFindBar();
        break;
    case IDM_RESTORE:
        Frame()->showNormal();
        break;
    case IDM_MAXIMIZE:
        Frame()->showMaximized();
        break;
    case IDM_CLOSE:
        // Queued, since the close deletes this widget, whose menu is still returning.
        if (subWindow_)
            QMetaObject::invokeMethod(subWindow_, &QWidget::close, Qt::QueuedConnection);
        break;
    default:
        break;
    }
}

void AnsiWindowWidget::FillPopupMenu(QMenu& menu)
{
    if (window_->HasSelection()) {
        AddItem(menu, "Copy", CMD_COPY);
        QMenu* special = menu.addMenu(QStringLiteral("Copy Special"));
        AddItem(*special, "to &String Highlights", CMD_COPY_TO_STRING_HIGHLIGHTS);
        AddItem(*special, "to &Name Highlights", CMD_COPY_TO_NAME_HIGHLIGHTS);
        special->addSeparator();
        AddItem(*special, "to &Command Line", CMD_COPY_TO_COMMAND_LINE);
        menu.addSeparator();
    }
    if (Frame()->isMaximized())
        AddItem(menu, "Restore", IDM_RESTORE);
    else
        AddItem(menu, "Maximize", IDM_MAXIMIZE);
    AddItem(menu, "Close", IDM_CLOSE);
    // The Game window cannot be closed.
    if (std::strncmp(window_->GetWindowName(), "Ga", 2) == 0)
        menu.actions().constLast()->setEnabled(false);
    QMenu* appearance = menu.addMenu(QStringLiteral("Appearance"));
    AddItem(*appearance, "Change Foreground Color...", IDM_CHANGE_FOREGROUND);
    AddItem(*appearance, "Change Background Color...", IDM_CHANGE_BACKGROUND);
    AddItem(*appearance, "Change Font...", IDM_CHANGE_FONT);
    menu.addSeparator();
    AddItem(menu, "Copy All to Clipboard", IDM_COPY_ALL_TO_CLIPBOARD);
    AddItem(menu, "Copy All to File...", IDM_COPY_ALL_TO_FILE);
    menu.addSeparator();
    AddItem(menu, "Edit", IDM_EDIT);
    AddItem(menu, "Find...", IDM_FIND);
}

void AnsiWindowWidget::ShowPopupMenu(const QPoint& at)
{
    if (subWindow_ && subWindow_->mdiArea())
        subWindow_->mdiArea()->setActiveSubWindow(subWindow_);
    QMenu menu(this);
    FillPopupMenu(menu);
    if (const QAction* chosen = menu.exec(at))
        MenuCommand(chosen->data().toInt());
}

void AnsiWindowWidget::SetClipboardText(const std::string& text)
{
    QGuiApplication::clipboard()->setText(
        QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
}

void AnsiWindowWidget::DropCommandLineSelection()
{
    auto* line = qobject_cast<QLineEdit*>(commandLine_.data());
    if (line && line->hasSelectedText())
        line->setCursorPosition(line->selectionEnd());
}

void AnsiWindowWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint at = event->position().toPoint();
    if (window_->CurrentSplit().TailRows > 0 && at.y() >= window_->SplitBarTop()) {
        // The bar moves the split; the live tail below it takes no selection.
        draggingSplit_ = OnSplitBar(at.y());
        if (draggingSplit_)
            setCursor(Qt::SplitVCursor);
        return;
    }
    window_->LButtonDown(at.x(), at.y(), event->modifiers() & Qt::ShiftModifier);
}

bool AnsiWindowWidget::OnSplitBar(int y) const
{
    const int top = window_->SplitBarTop();
    return y >= top && y < top + window_->GetLineHeight();
}

void AnsiWindowWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (draggingSplit_) {
        const int bottom = window_->GetTextTop() + window_->GetRows() * window_->GetLineHeight();
        const int y = static_cast<int>(event->position().y());
        window_->SetTailRows((bottom - y) / std::max(1, window_->GetLineHeight()));
        return;
    }
    if (!window_->IsDragging())
        return;
    dragPoint_ = event->position().toPoint();
    DragStep();
}

// One step of a drag at the last pointer position; outside the window above or below, the
// step scrolls, and the timer repeats it until the pointer comes back.
void AnsiWindowWidget::DragStep()
{
    if (!window_->IsDragging()) {
        dragScrollTimer_.stop();
        return;
    }
    window_->MouseMove(dragPoint_.x(), dragPoint_.y());
    const bool outside = dragPoint_.y() < 0 || dragPoint_.y() > window_->ViewBottom();
    if (!outside)
        dragScrollTimer_.stop();
    else if (!dragScrollTimer_.isActive())
        dragScrollTimer_.start();
}

void AnsiWindowWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        if (draggingSplit_) {
            draggingSplit_ = false;
            setCursor(Qt::IBeamCursor);
        }
        window_->EndDrag();
        dragScrollTimer_.stop();
    } else if (event->button() == Qt::RightButton) {
        ShowPopupMenu(event->globalPosition().toPoint());
    }
}

void AnsiWindowWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint at = event->position().toPoint();
    window_->LButtonDblClk(at.x(), at.y());
}

} // namespace steward
