#pragma once

#include <span>

namespace steward {

enum class MenuItemKind {
    Command,
    Separator,
    Submenu, // opens a submenu with this text; the items up to its EndSubmenu belong to it
    EndSubmenu,
    WindowList, // the list of open child windows that the window system keeps
};

struct MenuItem {
    MenuItemKind Kind;
    int Command;
    const char* Text;
};

struct Menu {
    const char* Title;
    std::span<const MenuItem> Items;
};

// Positions that other code relies on.
constexpr int CONFIGURATION_MENU_POSITION = 2;
constexpr int WINDOW_MENU_POSITION = 6;

// The frame's menu bar, in order.
std::span<const Menu> MainMenu();

} // namespace steward
