#include "panels/qt/MultiControlWidget.h"

#include "panels/qt/QtPanelCanvas.h"

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
    setAttribute(Qt::WA_OpaquePaintEvent);
    scratch_.reserve(SCRATCH_CAPACITY);
}

void MultiControl::Repaint()
{
    if (handler_->NeedsPaint())
        update();
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

} // namespace steward
