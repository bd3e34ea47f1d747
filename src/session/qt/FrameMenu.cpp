#include "session/qt/FrameMenu.h"

#include "base/FrameCommand.h"
#include "session/MenuBar.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

#include <vector>

namespace steward {

namespace {

// Commands whose items carry a check mark.
bool IsCheckable(int command)
{
    switch (command) {
    case CMD_AUTO_ARRANGE:
    case CMD_AUTO_LOG:
    case CMD_GRAPHICS_AT_BOTTOM:
    case CMD_GRAPHICS_AT_TOP:
    case CMD_FULL_SCREEN:
        return true;
    default:
        return false;
    }
}

} // namespace

FrameMenu::FrameMenu(QMenuBar& bar, QMdiArea& mdi, CommandHandler onCommand, InputsSource inputs)
    : QObject(&bar), mdi_(mdi), onCommand_(std::move(onCommand)), inputs_(std::move(inputs))
{
    for (const Menu& menu : MainMenu()) {
        QMenu* top = bar.addMenu(QString::fromLatin1(menu.Title));
        connect(top, &QMenu::aboutToShow, this, &FrameMenu::Refresh);
        std::vector<QMenu*> open{top};
        for (const MenuItem& item : menu.Items) {
            QMenu* current = open.back();
            switch (item.Kind) {
            case MenuItemKind::Command: {
                QAction* action = current->addAction(QString::fromLatin1(item.Text));
                action->setCheckable(IsCheckable(item.Command));
                const int command = item.Command;
                connect(action, &QAction::triggered, this,
                        [this, command] { onCommand_(command); });
                actions_.insert(command, action);
                break;
            }
            case MenuItemKind::Separator:
                current->addSeparator();
                break;
            case MenuItemKind::Submenu:
                open.push_back(current->addMenu(QString::fromLatin1(item.Text)));
                break;
            case MenuItemKind::EndSubmenu:
                open.pop_back();
                break;
            case MenuItemKind::WindowList:
                AddWindowList(*current);
                break;
            }
        }
    }
}

void FrameMenu::Refresh()
{
    state_.Update(inputs_());
    for (auto it = actions_.cbegin(); it != actions_.cend(); ++it) {
        MenuItemState item = state_.Of(it.key());
        it.value()->setEnabled(item.Enabled);
        if (it.value()->isCheckable())
            it.value()->setChecked(item.Checked);
    }
}

void FrameMenu::AddWindowList(QMenu& menu)
{
    windowMenu_ = &menu;
    connect(&menu, &QMenu::aboutToShow, this, &FrameMenu::FillWindowList);
}

void FrameMenu::FillWindowList()
{
    for (QAction* action : windowListActions_) {
        windowMenu_->removeAction(action);
        action->deleteLater();
    }
    windowListActions_.clear();
    const QList<QMdiSubWindow*> windows = mdi_.subWindowList();
    if (windows.isEmpty())
        return;
    windowListActions_.append(windowMenu_->addSeparator());
    int n = 1;
    for (QMdiSubWindow* sub : windows) {
        QAction* action =
            windowMenu_->addAction(QStringLiteral("&%1 %2").arg(n++).arg(sub->windowTitle()));
        action->setCheckable(true);
        action->setChecked(sub == mdi_.activeSubWindow());
        connect(action, &QAction::triggered, &mdi_, [this, target = QPointer<QMdiSubWindow>(sub)] {
            if (target)
                mdi_.setActiveSubWindow(target);
        });
        windowListActions_.append(action);
    }
}

} // namespace steward
