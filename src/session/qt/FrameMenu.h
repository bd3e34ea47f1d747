#pragma once

#include "session/MenuState.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class QAction;
class QMdiArea;
class QMenu;
class QMenuBar;

namespace steward {

// The frame's menu bar built from the table of menus: every item triggers its command number,
// and the states follow MenuState each time a menu is about to show.
class FrameMenu : public QObject {
    Q_OBJECT
  public:
    using CommandHandler = std::function<void(int)>;
    using InputsSource = std::function<MenuInputs()>;

    FrameMenu(QMenuBar& bar, QMdiArea& mdi, CommandHandler onCommand, InputsSource inputs);

    QAction* Action(int command) const { return actions_.value(command); }
    // Reads the live state into every item; each menu does it before it shows.
    void Refresh();

  private:
    void AddWindowList(QMenu& menu);
    void FillWindowList();

    QMdiArea& mdi_;
    CommandHandler onCommand_;
    InputsSource inputs_;
    MenuState state_;
    QHash<int, QAction*> actions_;
    QPointer<QMenu> windowMenu_;
    QList<QAction*> windowListActions_;
};

} // namespace steward
