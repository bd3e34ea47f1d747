#include "session/qt/MdiClient.h"

#include <QEvent>
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

QMdiSubWindow* MdiClient::AddChild(WindowRow row, QWidget* widget, const Area& place)
{
    auto* sub = new QMdiSubWindow(nullptr);
    sub->setWidget(widget);
    sub->installEventFilter(this);
    sub->setWindowTitle(QString::fromLatin1(WindowTable[row].Name));
    sub->setWindowIcon(QIcon(QStringLiteral(":/AppIcon.png")));
    addSubWindow(sub);
    sub->setGeometry(place.X, place.Y, place.Width, place.Height);
    sub->show();
    rows_[row] = sub;
    connect(widget, &QObject::destroyed, this, [this, row] { ChildClosed(row); });
    return sub;
}

int MdiClient::ActiveRow() const
{
    QMdiSubWindow* active = activeSubWindow();
    for (const WindowTableRow& row : WindowTable)
        if (active && rows_[row.Row] == active)
            return row.Row;
    return -1;
}

void MdiClient::SetChildClosedHandler(std::function<void(WindowRow)> handler)
{
    childClosed_ = std::move(handler);
}

bool MdiClient::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Close)
        return QMdiArea::eventFilter(watched, event);
    for (const WindowTableRow& row : WindowTable) {
        QMdiSubWindow* sub = rows_[row.Row];
        if (sub != watched)
            continue;
        // The row is told while its window still lives, so nothing reaches a freed window and
        // no arrangement runs inside a destructor.
        QWidget* widget = sub->widget();
        disconnect(widget, &QObject::destroyed, this, nullptr);
        rows_[row.Row] = nullptr;
        if (childClosed_)
            childClosed_(row.Row);
        delete widget;
        sub->deleteLater();
    }
    return QMdiArea::eventFilter(watched, event);
}

void MdiClient::ChildClosed(WindowRow row)
{
    rows_[row] = nullptr;
    if (!dying_ && childClosed_)
        childClosed_(row);
}

void MdiClient::TileHorizontally()
{
    Tile(true);
}

void MdiClient::TileVertically()
{
    Tile(false);
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

bool MdiClient::Exists(WindowRow row) const
{
    return rows_[row] != nullptr;
}

bool MdiClient::IsMinimised(WindowRow row) const
{
    return rows_[row] && rows_[row]->isMinimized();
}

bool MdiClient::IsMaximised(WindowRow row) const
{
    return rows_[row] && rows_[row]->isMaximized();
}

void MdiClient::Restore(WindowRow row)
{
    if (rows_[row])
        rows_[row]->showNormal();
}

void MdiClient::Maximise(WindowRow row)
{
    if (rows_[row])
        rows_[row]->showMaximized();
}

void MdiClient::Move(WindowRow row, const Area& place)
{
    if (rows_[row])
        rows_[row]->setGeometry(place.X, place.Y, place.Width, place.Height);
}

void MdiClient::Activate(WindowRow row)
{
    if (rows_[row])
        setActiveSubWindow(rows_[row]);
}

Area MdiClient::ClientArea() const
{
    // The viewport follows a move of the area only at its next resize event.
    const QRect inner = contentsRect();
    return {0, 0, inner.width(), inner.height()};
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
