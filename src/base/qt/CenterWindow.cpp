#include "base/qt/CenterWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace steward {

void CenterWindow(QWidget& window)
{
    if (!window.isVisible())
        window.adjustSize();
    const QScreen* screen = window.screen() ? window.screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect whole = screen->geometry();
    const QSize size = window.frameGeometry().size();
    window.move(whole.x() + (whole.width() - size.width()) / 2,
                whole.y() + (whole.height() - size.height()) / 2);
}

} // namespace steward
