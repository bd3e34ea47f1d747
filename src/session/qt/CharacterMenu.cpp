#include "session/qt/CharacterMenu.h"

#include "base/ByteText.h"
#include "base/Trace.h"
#include "config/CharacterProfile.h"
#include "session/Session.h"
#include "session/qt/ChildWindowSet.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/MdiClient.h"
#include "session/qt/QtProfileHost.h"
#include "terminal/TextBuffer.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <fstream>

namespace steward {

namespace {

constexpr char NEW_NAME_TITLE[] = "Enter New Character Name";
constexpr char NAME_ERROR_TITLE[] = "Character Profile";
constexpr char NOT_SAVED_TEXT[] = "The profile of this character could not be saved, so the "
                                  "character was not changed.";
constexpr char NEW_NOT_SAVED_TEXT[] =
    "The new character's profile could not be written whole; it is in use, and the next save "
    "tries again.";
constexpr char UNWRITABLE_TEXT[] =
    "The new character's profile cannot be written in the data folder. Nothing was changed.";

} // namespace

CharacterMenu::CharacterMenu(const Links& links) : links_(links) {}

QMenu* CharacterMenu::Submenu() const
{
    const QList<QAction*> bar = links_.Frame.menuBar()->actions();
    const int position = ConfigurationMenuPosition(static_cast<int>(bar.size()));
    if (position >= bar.size() || !bar[position]->menu())
        return nullptr;
    const QList<QAction*> items = bar[position]->menu()->actions();
    if (CHARACTERS_MENU_POSITION >= items.size())
        return nullptr;
    return items[CHARACTERS_MENU_POSITION]->menu();
}

void CharacterMenu::BuildCharacterMenu()
{
    QMenu* menu = Submenu();
    if (!menu)
        return;
    for (QAction* item : items_) {
        menu->removeAction(item);
        item->deleteLater();
    }
    items_.clear();
    fileNames_ = {};
    // The fixed items (separator and "Create a new Character Profile...") stay at the end.
    QAction* fixed = menu->actions().value(0);
    const Session& state = links_.State;
    for (const CharacterItem& entry :
         steward::BuildCharacterMenu(state.Files.ProgramFolder, state.Profile.CurrentCharacter)) {
        auto* item = new QAction(QString::fromLatin1(entry.Text.c_str()), menu);
        item->setCheckable(true);
        item->setChecked(entry.Checked);
        const int command = entry.Command;
        fileNames_[command - CMD_FIRST_CHARACTER] = entry.FileName;
        connect(item, &QAction::triggered, this, [this, command] { links_.Command(command); });
        menu->insertAction(fixed, item);
        items_.append(item);
    }
}

void CharacterMenu::SwitchCharacter(int command)
{
    if (command < CMD_FIRST_CHARACTER || command > CMD_LAST_CHARACTER)
        return;
    const std::string name = fileNames_[command - CMD_FIRST_CHARACTER];
    if (name.empty())
        return;
    Trace("\n\nSwitching to character \"%s\"\n", name.c_str());
    // Saved first, while its windows are open, since the open window list is part of it; a
    // character whose profile cannot be saved is kept, so that nothing of it is lost.
    if (!links_.Profile.Save()) {
        links_.Dialogs.ShowMessage(&links_.Frame, NOT_SAVED_TEXT, NAME_ERROR_TITLE);
        return;
    }
    ChildWindowSet::SavedBuffers saved = links_.Windows.CloneAndClose();
    links_.Profile.Load(name.c_str(), false);
    // SetDisplayMode lays the frame out anew, since the new character's mode may differ.
    links_.Frame.SetDisplayMode(links_.State.Profile.Settings.DisplayMode);
    links_.Frame.update();
    BuildCharacterMenu();
    links_.Windows.RestoreBuffers(saved);
    links_.Frame.Mdi().viewport()->update();
}

void CharacterMenu::CreateCharacter()
{
    const std::string name = AskNewName();
    if (name.empty())
        return;
    Trace("Saving NEW profile as %s\n", name.c_str());
    if (!links_.Profile.Save()) {
        links_.Dialogs.ShowMessage(&links_.Frame, NOT_SAVED_TEXT, NAME_ERROR_TITLE);
        return;
    }
    links_.Profile.Load(name.c_str(), true);
    if (!links_.Profile.Save())
        links_.Dialogs.ShowMessage(&links_.Frame, NEW_NOT_SAVED_TEXT, NAME_ERROR_TITLE);
    links_.Profile.RefreshTitle();
    BuildCharacterMenu();
}

std::string CharacterMenu::AskNewName()
{
    char answer[NEW_CHARACTER_LIMIT + 1] = {};
    if (!links_.Dialogs.AskString(&links_.Frame, NEW_NAME_TITLE, answer, sizeof answer))
        return {};
    TrimTrailingBlanks(answer);
    const std::string name = answer;
    if (const char* problem = CheckCharacterName(links_.State.Files, name.c_str())) {
        links_.Dialogs.ShowMessage(&links_.Frame, problem, NAME_ERROR_TITLE);
        return {};
    }
    if (!CanWriteProfile(name)) {
        links_.Dialogs.ShowMessage(&links_.Frame, UNWRITABLE_TEXT, NAME_ERROR_TITLE);
        return {};
    }
    return name;
}

// Makes the new .Dat empty, which the save then replaces; a folder that refuses it is found
// before anything of the current character changes.
bool CharacterMenu::CanWriteProfile(const std::string& name)
{
    const std::string path = ProfileFilePath(links_.State.Files, name, PROFILE_EXTENSION);
    return std::ofstream(path, std::ios::binary).is_open();
}

} // namespace steward
