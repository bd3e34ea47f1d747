#include "terminal/qt/AnsiWindowWidget.h"

#include "base/Trace.h"
#include "base/qt/QtColor.h"
#include "terminal/Wheel.h"
#include "terminal/qt/AnsiWindowAccessible.h"
#include "terminal/qt/FontRecord.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace steward {

std::unique_ptr<AnsiWindowWidget> AnsiWindowWidget::Create(const char* name, const Parts& parts)
{
    InstallAnsiWindowAccessibility();
    std::unique_ptr<AnsiWindowWidget> widget(new AnsiWindowWidget(parts));
    widget->setWindowTitle(QString::fromLatin1(name));
    widget->window_ = AnsiWindow::Create(
        name, AnsiWindowParts{*widget, parts.Options, parts.ProfilePath, parts.Prompt,
                              parts.Services, parts.Steward, parts.ScrollbackBytes});
    if (!widget->window_)
        return nullptr;
    widget->layer_.SetCharWidths(&widget->window_->GetCharWidth());
    return widget;
}

AnsiWindowWidget::AnsiWindowWidget(const Parts& parts)
    : dialogs_(parts.Dialogs ? parts.Dialogs : &qtDialogs_), services_(parts.Services),
      scrollBar_(new QScrollBar(Qt::Vertical, this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::IBeamCursor);
    scrollBar_->setFocusPolicy(Qt::NoFocus);
    connect(scrollBar_, &QScrollBar::actionTriggered, this, &AnsiWindowWidget::ScrollBarAction);
    repaintTimer_.setSingleShot(true);
    repaintTimer_.setInterval(REPAINT_INTERVAL_MS);
    // A coarse timer may fire up to 5% early, which would paint more often than once a frame.
    repaintTimer_.setTimerType(Qt::PreciseTimer);
    // Only the rows: the scroll bar and the find bar beside them repaint when they change.
    connect(&repaintTimer_, &QTimer::timeout, this, [this] {
        repaintPending_ = false;
        paintRequested_ = true;
        const Rect text = GetClientRect();
        update(0, 0, text.right, text.bottom);
    });
    dragScrollTimer_.setInterval(DRAG_SCROLL_INTERVAL_MS);
    connect(&dragScrollTimer_, &QTimer::timeout, this, &AnsiWindowWidget::DragStep);
}

Rect AnsiWindowWidget::GetClientRect() const
{
    const int bar = scrollBar_->sizeHint().width();
    const int finder = findBar_ && findBar_->isVisible() ? findBar_->sizeHint().height() : 0;
    return Rect{0, 0, std::max(0, width() - bar), std::max(0, height() - finder)};
}

void AnsiWindowWidget::InvalidateRect(bool)
{
    ++textVersion_;
    repaintPending_ = true;
    if (!paintRequested_ && !repaintTimer_.isActive())
        repaintTimer_.start();
}

// Nothing is made for a screen reader unless one listens.
void AnsiWindowWidget::TextAppended(TextBuffer::Position from)
{
    ++textVersion_;
    if (QAccessible::isActive())
        AnnounceAppendedText(*this, from);
}

void AnsiWindowWidget::UpdateWindow()
{
    if (!repaintPending_)
        return;
    repaintTimer_.stop();
    repaintPending_ = false;
    repaint();
}

void AnsiWindowWidget::SetScrollRange(std::int32_t minimum, std::int32_t maximum, bool)
{
    scrollBar_->setRange(minimum, std::max(minimum, maximum));
    scrollPos_ = scrollBar_->value();
}

void AnsiWindowWidget::SetScrollPos(std::int32_t position, bool)
{
    scrollBar_->setValue(position);
    scrollPos_ = scrollBar_->value();
}

bool AnsiWindowWidget::IsActiveChild() const
{
    if (!subWindow_)
        return true;
    const QMdiArea* area = subWindow_->mdiArea();
    return area && area->activeSubWindow() == subWindow_;
}

// While the find bar is typed in, it keeps the focus that the window would hand on.
void AnsiWindowWidget::FocusCommandLine()
{
    if (findBar_ && findBar_->Field()->hasFocus())
        return;
    if (commandLine_)
        commandLine_->setFocus();
}

void AnsiWindowWidget::OpenFindBar()
{
    if (!findBar_) {
        FindBar::Handlers handlers;
        handlers.Find = [this](const std::string& needle, SearchDirection direction,
                               bool matchCase) {
            if (subWindow_ && subWindow_->mdiArea())
                subWindow_->mdiArea()->setActiveSubWindow(subWindow_);
            return window_->Find(needle, direction, matchCase);
        };
        handlers.Closed = [this] { CloseFindBar(); };
        findBar_ = new FindBar(std::move(handlers), this);
    }
    findBar_->show();
    LayOutAroundFindBar();
    findBar_->Open();
}

// The bar takes rows from the text or gives them back, so the rows move: all is painted anew.
void AnsiWindowWidget::LayOutAroundFindBar()
{
    resizeEvent(nullptr);
    update();
}

void AnsiWindowWidget::CloseFindBar()
{
    LayOutAroundFindBar();
    if (commandLine_)
        commandLine_->setFocus();
}

void AnsiWindowWidget::ClearTitle()
{
    setWindowTitle(QString());
    if (subWindow_)
        subWindow_->setWindowTitle(QString());
}

void AnsiWindowWidget::SelectFont(const LogFontRecord* record, LogFontRecord& inUse,
                                  FontMeasure& measure)
{
    font_ = record ? FontFromRecord(*record) : SystemFixedFont();
    layer_.SetFont(font_);
    inUse = RecordFromFont(font_);
    measure.Height = layer_.Height();
    measure.Overhang = 0;
    layer_.MeasureWidths(measure.Widths);
}

QWidget* AnsiWindowWidget::Frame()
{
    return subWindow_ ? static_cast<QWidget*>(subWindow_) : this;
}

bool AnsiWindowWidget::GetWindowPlacement(WindowPlacementRecord& placement)
{
    const QWidget* frame = Frame();
    placement = WindowPlacementRecord{};
    if (frame->isMinimized())
        placement.showCmd = SW_SHOWMINIMIZED;
    else if (frame->isMaximized())
        placement.showCmd = SW_SHOWMAXIMIZED;
    const QRect area = frame->geometry();
    placement.rcNormalPosition = {area.left(), area.top(), area.left() + area.width(),
                                  area.top() + area.height()};
    return true;
}

void AnsiWindowWidget::SetWindowPlacement(const WindowPlacementRecord& placement)
{
    const RectRecord& area = placement.rcNormalPosition;
    QWidget* frame = Frame();
    frame->setGeometry(area.left, area.top, area.right - area.left, area.bottom - area.top);
    ShowWindow(placement.showCmd);
}

void AnsiWindowWidget::ShowWindow(std::uint32_t showCmd)
{
    QWidget* frame = Frame();
    if (showCmd == SW_SHOWMINIMIZED)
        frame->showMinimized();
    else if (showCmd == SW_SHOWMAXIMIZED)
        frame->showMaximized();
    else
        frame->showNormal();
}

bool AnsiWindowWidget::PickColor(COLORREF& color, bool foregroundRule)
{
    QColor chosen = ToQColor(color);
    if (!dialogs_->PickColor(this, chosen, foregroundRule))
        return false;
    color = FromQColor(chosen);
    return true;
}

bool AnsiWindowWidget::PickFont(const LogFontRecord&, LogFontRecord& record)
{
    QFont chosen = font_;
    if (!dialogs_->PickFont(this, chosen))
        return false;
    record = RecordFromFont(chosen);
    return true;
}

void AnsiWindowWidget::Beep()
{
    QApplication::beep();
}

bool AnsiWindowWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ParentChange)
        FollowSubWindow();
    return QWidget::event(event);
}

void AnsiWindowWidget::paintEvent(QPaintEvent*)
{
    if (!window_)
        return;
    // What came in since the request is painted now as well; what comes later waits a frame.
    if (paintRequested_) {
        paintRequested_ = false;
        repaintPending_ = false;
    }
    QPainter painter(this);
    layer_.Begin(&painter);
    // Qt keeps no erase request, so every paint fills the bands beside the rows as well.
    window_->Paint(layer_, true);
    layer_.End();
    // One line per paint, so that a soak run can count the paint rate of each window.
    Trace("PAINT: %s\n", window_->GetSectionName());
}

void AnsiWindowWidget::resizeEvent(QResizeEvent*)
{
    const int bar = scrollBar_->sizeHint().width();
    const Rect text = GetClientRect();
    scrollBar_->setGeometry(std::max(0, width() - bar), 0, bar, text.bottom);
    if (findBar_)
        findBar_->setGeometry(0, text.bottom, width(), findBar_->sizeHint().height());
    if (window_)
        window_->Size(subWindow_ && subWindow_->isMinimized());
}

void AnsiWindowWidget::wheelEvent(QWheelEvent* event)
{
    const QPoint delta = event->angleDelta();
    const int amount = delta.y() != 0 ? delta.y() : delta.x();
    if (amount != 0 && window_) {
        const bool shift = event->modifiers() & Qt::ShiftModifier;
        window_->VScroll(WheelScrollCommand(shift, amount), 0);
    }
    event->accept();
}

// The text window never keeps the focus: it goes on to the command line, or to the find bar
// while that is open.
void AnsiWindowWidget::focusInEvent(QFocusEvent*)
{
    if (findBar_ && findBar_->isVisible())
        findBar_->Field()->setFocus();
    else
        FocusCommandLine();
}

// Qt moves the slider by itself; the window decides where it stands, as the core set it.
void AnsiWindowWidget::ScrollBarAction(int action)
{
    int command = -1;
    std::int32_t thumb = 0;
    switch (action) {
    case QAbstractSlider::SliderSingleStepSub:
        command = SB_LINEUP;
        break;
    case QAbstractSlider::SliderSingleStepAdd:
        command = SB_LINEDOWN;
        break;
    case QAbstractSlider::SliderPageStepSub:
        command = SB_PAGEUP;
        break;
    case QAbstractSlider::SliderPageStepAdd:
        command = SB_PAGEDOWN;
        break;
    case QAbstractSlider::SliderToMinimum:
        command = SB_TOP;
        break;
    case QAbstractSlider::SliderToMaximum:
        command = SB_BOTTOM;
        break;
    case QAbstractSlider::SliderMove:
        command = SB_THUMBTRACK;
        thumb = scrollBar_->sliderPosition();
        break;
    default:
        return;
    }
    window_->VScroll(command, thumb);
    scrollBar_->setSliderPosition(scrollPos_);
}

void AnsiWindowWidget::FollowSubWindow()
{
    disconnect(subWindowConnection_);
    subWindow_ = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (subWindow_)
        subWindowConnection_ = connect(subWindow_, &QMdiSubWindow::windowStateChanged, this,
                                       &AnsiWindowWidget::SubWindowStateChanged);
}

void AnsiWindowWidget::SubWindowStateChanged(Qt::WindowStates before, Qt::WindowStates now)
{
    if (window_ && ((before ^ now) & Qt::WindowActive))
        window_->MdiActivate();
}

} // namespace steward
