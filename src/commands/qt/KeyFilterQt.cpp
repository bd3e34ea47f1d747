#include "commands/qt/KeyFilterQt.h"

#include "base/qt/OwnKeys.h"
#include "commands/CommandLineEdit.h"
#include "commands/KeyFilter.h"
#include "commands/qt/KeyMapQt.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace steward {

namespace {

bool IsKeyEvent(QEvent::Type type)
{
    return type == QEvent::ShortcutOverride || type == QEvent::KeyPress ||
           type == QEvent::KeyRelease;
}

// A key event travels from the window to the focus widget and on to its parents; only the
// focus widget's delivery counts, or the active window's when nothing has the focus.
bool IsFocusDelivery(QObject* watched)
{
    QWidget* focus = QApplication::focusWidget();
    if (focus)
        return watched == focus;
    return watched == QApplication::activeWindow();
}

} // namespace

KeyFilterQt::KeyFilterQt(KeyFilter& filter, CommandLineEdit& line, QObject* parent)
    : QObject(parent), filter_(filter), line_(line)
{
}

bool KeyFilterQt::eventFilter(QObject* watched, QEvent* event)
{
    if (!IsKeyEvent(event->type()) || !IsFocusDelivery(watched))
        return false;
    // Modal dialogs and popup menus run their own keys, as their loops are not filtered; a
    // field such as a window's find bar types its own.
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
        watched->property(OWN_KEYS_PROPERTY).toBool())
        return false;
    auto* keyEvent = static_cast<QKeyEvent*>(event);
    const int qtKey = PhysicalKey(keyEvent->key(), keyEvent->modifiers(),
                                  keyEvent->nativeScanCode(), keyEvent->nativeVirtualKey());
    TranslatedKey key = TranslateKey(qtKey, keyEvent->modifiers(), numLockOn_);
    // Alt is taken both ways, so the menu bar never arms its keyboard navigation.
    bool alt = key.VirtualKey == VK_MENU;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (!alt && !filter_.WouldTake(key.VirtualKey, key.Modifiers))
            return false;
        event->accept();
        return true;
    case QEvent::KeyRelease:
        if (!alt)
            return false;
        line_.SetFocus();
        return true;
    default:
        return filter_.KeyDown(key.VirtualKey, key.Modifiers) || alt;
    }
}

} // namespace steward
