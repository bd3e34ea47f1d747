#include "session/MenuBar.h"

#include <array>

namespace steward {

namespace {

constexpr MenuItem Item(int command, const char* text)
{
    return {MenuItemKind::Command, command, text};
}
constexpr MenuItem SEPARATOR = {MenuItemKind::Separator, 0, nullptr};
constexpr MenuItem Sub(const char* text)
{
    return {MenuItemKind::Submenu, 0, text};
}
constexpr MenuItem END_SUB = {MenuItemKind::EndSubmenu, 0, nullptr};

constexpr std::array FILE_MENU = {
    Item(998, "Open Log File..."),
    Item(999, "Close Log File"),
    SEPARATOR,
    Item(874, "Auto-Log Each Session"),
    SEPARATOR,
    Item(601, "Run Notepad..."),
    SEPARATOR,
    Item(40003, "Connect to the Game"),
    Item(844, "Reset Steward Mode"),
    SEPARATOR,
    Item(110, "Exit"),
};

constexpr std::array EDIT_MENU = {
    Item(1100, "Cut\tShift-Delete"),
    Item(1101, "Copy\tCtrl-Insert"),
    Item(1102, "Clear\tCtrl-Delete"),
    Item(1103, "Paste\tShift-Insert"),
    SEPARATOR,
    Sub("Copy Special"),
    Item(1104, "to String Highlights"),
    Item(1105, "to Name Highlights"),
    SEPARATOR,
    Item(1106, "to Command Line"),
    END_SUB,
};

constexpr std::array CONFIGURATION_MENU = {
    Item(619, "&Options..."),
    Item(620, "&Macro Keys..."),
    Item(605, "&Highlight Strings..."),
    SEPARATOR,
    Item(40044, "Graphics at Top of Screen"),
    Item(40043, "Graphics at Bottom of Screen"),
    Item(40045, "Full-Screen Mode"),
    SEPARATOR,
    Sub("Characters"),
    Item(897, "Create a new Character Profile..."),
    END_SUB,
};

constexpr std::array INFO_MENU = {
    Item(40006, "&General"),
    Item(40007, "&Crimes"),
    Item(40008, "&Inventory"),
    Item(40009, "&Languages"),
    Item(40010, "&Magick"),
    Item(40011, "M&artial Arts"),
    Item(40012, "M&oney"),
    Item(40013, "&Psionics"),
    Item(40014, "&Religion"),
    Item(40015, "R&unespells"),
    Item(40016, "&Skills"),
    Item(40017, "S&pells"),
    Item(40018, "&Visualizations"),
    SEPARATOR,
    Sub("Room Descrip&tions"),
    Item(40019, "&Full"),
    Item(40020, "&Brief"),
    Item(40021, "&SuperBrief"),
    END_SUB,
    Sub("Ot&her"),
    Item(40022, "&Time"),
    Item(40023, "&Weather"),
    Item(40024, "W&orld"),
    END_SUB,
};

constexpr std::array DRAGGING_MENU = {
    Item(40025, "&Drag Someone..."),
    SEPARATOR,
    Item(40026, "&Stop Dragging"),
};

constexpr std::array SCRIPTS_MENU = {
    Item(951, "E&xecute a Script..."),
    Item(942, "&Stop Script"),
    SEPARATOR,
    Item(952, "&Record a Script..."),
    Item(954, "S&top Recording"),
    SEPARATOR,
    Item(953, "&Edit a Script..."),
    Item(947, "&Create a New Script..."),
};

constexpr std::array WINDOW_MENU = {
    Item(781, "Open a Game Window"),
    Item(782, "Open a Thoughts Window"),
    Item(843, "Open an Arrival Window"),
    SEPARATOR,
    Item(787, "Arrange"),
    Item(784, "Tile Horizontally"),
    Item(785, "Tile Vertically"),
    Item(786, "Cascade"),
    SEPARATOR,
    Item(768, "Auto-arrange Windows"),
    MenuItem{MenuItemKind::WindowList, 0, nullptr},
};

constexpr std::array INTERNET_MENU = {
    Item(40001, "Thornmere Home Page"),
    SEPARATOR,
    Item(40002, "Thornmere Message Board"),
};

constexpr std::array HELP_MENU = {
    Item(618, "About..."),
};

constexpr std::array<Menu, 9> MENUS = {{
    {"File", FILE_MENU},
    {"Edit", EDIT_MENU},
    {"Configuration", CONFIGURATION_MENU},
    {"Info", INFO_MENU},
    {"Dragging", DRAGGING_MENU},
    {"Scripts", SCRIPTS_MENU},
    {"Window", WINDOW_MENU},
    {"Internet", INTERNET_MENU},
    {"Help", HELP_MENU},
}};

static_assert(MENUS[CONFIGURATION_MENU_POSITION].Title[0] == 'C');
static_assert(MENUS[WINDOW_MENU_POSITION].Title[0] == 'W');

} // namespace

std::span<const Menu> MainMenu()
{
    return MENUS;
}

} // namespace steward
