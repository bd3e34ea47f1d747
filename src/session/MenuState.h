#pragma once

#include <cstdint>

namespace steward {

// The live state that the menu items follow, read when a menu is about to show.
struct MenuInputs {
    bool AutoArrange = true;
    bool AutoLog = false;
    bool LogOpen = false;
    std::uint8_t DisplayMode = 0;
    bool Disconnected = true;
    bool Replay = false;
    bool CommandLineHasSelection = false;
    bool ActiveChildHasSelection = false;
    bool ClipboardHasText = false;
    bool GameWindowOpen = false;
    bool ThoughtWindowOpen = false;
    bool ArrivalWindowOpen = false;
    bool Recording = false;
    bool ScriptRunning = false;
};

struct MenuItemState {
    bool Enabled = true;
    bool Checked = false;
};

// The state of every menu item that follows live state. Items that no rule names keep their
// state; so does "Stop Script" while recording, which is why the state is kept between updates.
class MenuState {
  public:
    // A menu is about to open: sets each item from the live state.
    void Update(const MenuInputs& inputs);
    // The state of a command's item; commands that no rule names are enabled and unchecked,
    // unless their work comes with a later part of the program.
    MenuItemState Of(int command) const;

  private:
    void Set(int command, bool enabled, bool checked = false);

    static constexpr int TRACKED = 24;
    struct Entry {
        int Command = 0;
        MenuItemState State;
    };
    Entry entries_[TRACKED] = {};
    int count_ = 0;
};

} // namespace steward
