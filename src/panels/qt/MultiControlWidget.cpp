#include "panels/qt/MultiControlWidget.h"

#include "base/qt/QtColor.h"
#include "panels/qt/ControlAccessible.h"
#include "panels/qt/QtPanelCanvas.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace steward {

namespace {

// The longest text a box holds.
constexpr int SCRATCH_CAPACITY = 256;

} // namespace

MultiControl::MultiControl(QWidget* parent, std::unique_ptr<ControlHandler> handler,
                           PanelResources& resources, const char* pictureName)
    : QWidget(parent), handler_(std::move(handler)), resources_(resources),
      picture_(pictureName, true), id_(NextControlId())
{
    InstallControlAccessibility();
    setAttribute(Qt::WA_OpaquePaintEvent);
    scratch_.reserve(SCRATCH_CAPACITY);
    clock_.start();
    repaintTimer_.setSingleShot(true);
    repaintTimer_.setTimerType(Qt::PreciseTimer);
    connect(&repaintTimer_, &QTimer::timeout, this, [this] {
        gate_.Drawn(clock_.elapsed());
        update();
    });
}

// A flood of status records changes the gauges many times per turn of the loop; the picture
// follows once per frame.
void MultiControl::Repaint()
{
    // A waiting draw shows the latest values anyway, and reading the clock costs more than the
    // rest of the request.
    if (gate_.Waiting() || !handler_->NeedsPaint())
        return;
    const std::int64_t wait = gate_.Request(clock_.elapsed());
    if (wait == 0)
        update();
    else if (wait > 0)
        repaintTimer_.start(static_cast<int>(wait));
}

void MultiControl::Repaint(bool)
{
    Repaint();
}

void MultiControl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QtPanelCanvas canvas(painter, resources_, picture_.Empty() ? nullptr : &picture_, scratch_);
    handler_->Paint(canvas, width(), height());
}

void MultiControl::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton || !handler_->MenuGauge()) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    QMenu menu(this);
    menu.addAction(tr("Change Bar Color"))->setData(GAUGE_MENU_BAR_COLOR);
    menu.addAction(tr("Change Background Color"))->setData(GAUGE_MENU_BACK_COLOR);
    if (QAction* chosen = menu.exec(event->globalPosition().toPoint()))
        MenuCommand(chosen->data().toInt());
}

bool MultiControl::MenuCommand(int command)
{
    Gauge* gauge = handler_->MenuGauge();
    return gauge && gauge->MenuCommand(command, [this](std::uint32_t& color) {
        QColor chosen = ToQColor(color);
        if (!dialogs_->PickColor(this, chosen, false))
            return false;
        color = FromQColor(chosen);
        return true;
    });
}

} // namespace steward
