#include "session/qt/MdiClient.h"

#include <QMdiSubWindow>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace steward {

MdiClient::MdiClient(QWidget* parent)
    : QMdiArea(parent), background_(QStringLiteral(":/Background.png"))
{
    setBackground(Qt::black);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

MdiClient::~MdiClient()
{
    dying_ = true;
    for (QMdiSubWindow* sub : subWindowList()) {
        delete sub->widget();
        delete sub;
    }
}

void MdiClient::TileHorizontally()
{
    Tile(true);
    FocusCommandLine();
}

void MdiClient::TileVertically()
{
    Tile(false);
    FocusCommandLine();
}

// The sub-windows that are not minimised, each brought back to its normal state.
QList<QMdiSubWindow*> MdiClient::ShownNormal()
{
    QList<QMdiSubWindow*> shown;
    for (QMdiSubWindow* sub : subWindowList())
        if (!sub->isMinimized()) {
            sub->showNormal();
            shown.append(sub);
        }
    return shown;
}

void MdiClient::Cascade()
{
    Step();
    FocusCommandLine();
}

void MdiClient::Step()
{
    const QList<QMdiSubWindow*> shown = ShownNormal();
    if (shown.isEmpty())
        return;
    const int step = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, shown.front());
    const int count = static_cast<int>(shown.size());
    const QRect area = viewport()->rect();
    const int width = std::max(area.width() - (count - 1) * step, area.width() / 2);
    const int height = std::max(area.height() - (count - 1) * step, area.height() / 2);
    for (int i = 0; i < count; ++i) {
        shown[i]->setGeometry(i * step, i * step, width, height);
        shown[i]->raise();
    }
}

void MdiClient::Tile(bool stacked)
{
    const QList<QMdiSubWindow*> shown = ShownNormal();
    if (shown.isEmpty())
        return;
    const int count = static_cast<int>(shown.size());
    const QRect area = viewport()->rect();
    for (int i = 0; i < count; ++i) {
        if (stacked) {
            int h = area.height() / count;
            shown[i]->setGeometry(0, i * h, area.width(), h);
        } else {
            int w = area.width() / count;
            shown[i]->setGeometry(i * w, 0, w, area.height());
        }
    }
}

Rect MdiClient::ClientArea() const
{
    // The viewport follows a move of the area only at its next resize event.
    const QRect inner = contentsRect();
    return RectAt(0, 0, inner.width(), inner.height());
}

void MdiClient::FocusCommandLine()
{
    if (commandLine_)
        commandLine_->setFocus();
}

void MdiClient::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), Qt::black);
    if (background_.isNull())
        return;
    QPoint corner((viewport()->width() - background_.width()) / 2,
                  (viewport()->height() - background_.height()) / 2);
    painter.drawImage(corner, background_);
}

} // namespace steward
