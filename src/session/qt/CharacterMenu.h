#pragma once

#include "session/CharacterList.h"

#include <QList>
#include <QObject>

#include <array>
#include <functional>
#include <string>

class QAction;
class QMenu;

namespace steward {

class ChildWindowSet;
class Desktop;
class FrameWindow;
class QtProfileHost;
struct Session;

// The "Characters" submenu of the configuration menu, and the change and creation of the
// character while the client runs. Neither touches the connection: nothing is sent.
class CharacterMenu : public QObject {
    Q_OBJECT
  public:
    struct Links {
        Session& State;
        QtProfileHost& Profile;
        ChildWindowSet& Windows;
        FrameWindow& Frame;
        Desktop& Dialogs;
        // The switchboard, which serves the items' commands.
        std::function<void(int)> Command;
    };

    explicit CharacterMenu(const Links& links);

    // Lists the profiles of the data folder above "Create a new Character Profile...".
    void BuildCharacterMenu();
    // Commands 2000 to 2019: saves this character, loads the chosen one, and carries the text
    // of every window that the new layout opens again.
    void SwitchCharacter(int command);
    // Command 897: asks for a name and saves everything now in memory under it.
    void CreateCharacter();

    // The submenu as the position rule finds it; null when the menu bar lacks it.
    QMenu* Submenu() const;

  private:
    // The name typed, trimmed, or empty when the player cancelled or a message refused it.
    std::string AskNewName();
    bool CanWriteProfile(const std::string& name);

    Links links_;
    QList<QAction*> items_;
    // The real file name of each listed command, since the item's text is capitalised.
    std::array<std::string, LISTED_CHARACTERS> fileNames_;
};

} // namespace steward
