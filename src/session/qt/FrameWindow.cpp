#include "session/qt/FrameWindow.h"

#include "base/FrameCommand.h"
#include "base/qt/OwnKeys.h"
#include "config/Settings.h"
#include "session/qt/FrameMenu.h"
#include "session/qt/MdiClient.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QPainter>
#include <QShortcut>
#include <QWheelEvent>

namespace steward {

namespace {

const QColor SURFACE_COLOR(0x5F, 0x5F, 0x5F);
// The sunken edge drawn around the text area.
constexpr int EDGE = 2;

} // namespace

FrameSurface::FrameSurface(QWidget* parent) : QWidget(parent)
{
    setAutoFillBackground(false);
}

void FrameSurface::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), SURFACE_COLOR);
    if (edge_.isEmpty())
        return;
    QRect outer = edge_.adjusted(-EDGE, -EDGE, EDGE, EDGE);
    painter.setPen(SURFACE_COLOR.darker(200));
    painter.drawLine(outer.topLeft(), outer.topRight());
    painter.drawLine(outer.topLeft(), outer.bottomLeft());
    painter.setPen(SURFACE_COLOR.lighter(160));
    painter.drawLine(outer.bottomLeft(), outer.bottomRight());
    painter.drawLine(outer.topRight(), outer.bottomRight());
}

FrameWindow::FrameWindow(Handlers handlers, QWidget* parent)
    : QMainWindow(parent), handlers_(std::move(handlers)), surface_(new FrameSurface(this)),
      mdi_(new MdiClient(surface_)), menu_(nullptr)
{
    setWindowTitle(QStringLiteral("Thornmere Steward"));
    setWindowIcon(QIcon(QStringLiteral(":/AppIcon.png")));
    setMinimumSize(MIN_TRACK_SIZE, MIN_TRACK_SIZE);
    setCentralWidget(surface_);
    menu_ = new FrameMenu(*menuBar(), *mdi_, handlers_.Command, handlers_.ReadMenuInputs);
    // Every window that closes, ours or Qt's, is seen here, so a new dialog needs nothing.
    qApp->installEventFilter(this);
    AddRestKeys();
}

void FrameWindow::AddRestKeys()
{
    auto* rest = new QShortcut(QKeySequence(Qt::Key_Pause), this);
    auto* silent = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_Pause), this);
    rest->setContext(Qt::ApplicationShortcut);
    silent->setContext(Qt::ApplicationShortcut);
    connect(rest, &QShortcut::activated, this, [this] { handlers_.Command(CMD_REST_MODE); });
    connect(silent, &QShortcut::activated, this,
            [this] { handlers_.Command(CMD_REST_MODE_SILENT); });
}

FrameWindow::~FrameWindow() = default;

void FrameWindow::SetCommandLine(QWidget* commandLine)
{
    commandLine_ = commandLine;
    commandLine->setParent(surface_);
    commandLine->show();
    mdi_->SetCommandLine(commandLine);
    LayoutFrame();
}

void FrameWindow::SetDisplayMode(std::uint8_t mode)
{
    displayMode_ = mode;
    LayoutFrame();
}

int FrameWindow::CommandLineHeight() const
{
    if (!commandLine_)
        return fontMetrics().height() + 4;
    return commandLine_->sizeHint().height();
}

void FrameWindow::LayoutFrame()
{
    const int h = CommandLineHeight();
    layout_ = steward::LayoutFrame(surface_->width(), surface_->height(), h, displayMode_);
    const Rect& mdi = layout_.MdiClient;
    mdi_->setGeometry(mdi.left, mdi.top, mdi.Width(), mdi.Height());
    if (displayMode_ == DISPLAY_GRAPHICS_BOTTOM)
        layout_.PanelTop = PanelTopBelow(mdi_->contentsRect().height());
    surface_->SetEdge(mdi_->geometry());
    if (commandLine_) {
        const Rect& line = layout_.CommandLine;
        commandLine_->setGeometry(line.left, line.top, line.Width(), line.Height());
    }
    surface_->update();
    if (handlers_.Resized)
        handlers_.Resized();
}

void FrameWindow::FocusCommandLine()
{
    if (commandLine_)
        commandLine_->setFocus();
}

void FrameWindow::closeEvent(QCloseEvent* event)
{
    if (handlers_.Close && !handlers_.Close()) {
        event->ignore();
        return;
    }
    event->accept();
}

void FrameWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    LayoutFrame();
}

void FrameWindow::wheelEvent(QWheelEvent* event)
{
    const int amount = event->angleDelta().y();
    if (amount == 0 || !handlers_.Wheel) {
        event->ignore();
        return;
    }
    handlers_.Wheel((event->modifiers() & Qt::ShiftModifier) != 0, amount);
    event->accept();
}

void FrameWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !FieldKeepsFocus())
        FocusCommandLine();
}

bool FrameWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && watched != this && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->isWindow())
        // Queued, because Qt moves the focus after the hide: Escape on a menu hands it to
        // the menu bar, a closed dialog to the widget that had it before.
        QMetaObject::invokeMethod(this, &FrameWindow::ReturnFocus, Qt::QueuedConnection);
    return false;
}

// A field that types its own keys, such as a window's find bar, keeps the focus that a closed
// menu or a reactivated frame would otherwise hand back to the command line.
bool FrameWindow::FieldKeepsFocus() const
{
    const QWidget* focus = focusWidget();
    return focus && focus->isVisible() && focus->property(OWN_KEYS_PROPERTY).toBool();
}

void FrameWindow::ReturnFocus()
{
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() || FieldKeepsFocus())
        return;
    QWidget* active = QApplication::activeWindow();
    if (!active || active == this)
        FocusCommandLine();
}

} // namespace steward
