#include "session/MenuBar.h"

#include "base/FrameCommand.h"

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
    Item(CMD_OPEN_LOG, "Open Log File..."),
    Item(CMD_CLOSE_LOG, "Close Log File"),
    SEPARATOR,
    Item(CMD_AUTO_LOG, "Auto-Log Each Session"),
    SEPARATOR,
    Item(CMD_RUN_NOTEPAD, "Run Notepad..."),
    SEPARATOR,
    Item(CMD_CONNECT, "Connect to the Game"),
    Item(CMD_RESET_STEWARD_MODE, "Reset Steward Mode"),
    SEPARATOR,
    Item(CMD_EXIT, "Exit"),
};

constexpr std::array EDIT_MENU = {
    Item(CMD_CUT, "Cut\tShift-Delete"),
    Item(CMD_COPY, "Copy\tCtrl-Insert"),
    Item(CMD_CLEAR, "Clear\tCtrl-Delete"),
    Item(CMD_PASTE, "Paste\tShift-Insert"),
    SEPARATOR,
    Item(CMD_FIND, "Find..."),
    SEPARATOR,
    Sub("Copy Special"),
    Item(CMD_COPY_TO_STRING_HIGHLIGHTS, "to String Highlights"),
    Item(CMD_COPY_TO_NAME_HIGHLIGHTS, "to Name Highlights"),
    SEPARATOR,
    Item(CMD_COPY_TO_COMMAND_LINE, "to Command Line"),
    END_SUB,
};

constexpr std::array CONFIGURATION_MENU = {
    Item(CMD_OPTIONS, "&Options..."),
    Item(CMD_MACRO_KEYS, "&Macro Keys..."),
    Item(CMD_HIGHLIGHT_STRINGS, "&Highlight Strings..."),
    SEPARATOR,
    Item(CMD_GRAPHICS_AT_TOP, "Graphics at Top of Screen"),
    Item(CMD_GRAPHICS_AT_BOTTOM, "Graphics at Bottom of Screen"),
    Item(CMD_FULL_SCREEN, "Full-Screen Mode"),
    SEPARATOR,
    Sub("Characters"),
    SEPARATOR,
    Item(CMD_NEW_CHARACTER, "Create a new Character Profile..."),
    END_SUB,
};

constexpr std::array INFO_MENU = {
    Item(CMD_INFO_GENERAL, "&General"),
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
    Item(CMD_INFO_VISUALIZATIONS, "&Visualizations"),
    SEPARATOR,
    Sub("Room Descrip&tions"),
    Item(CMD_ROOM_FULL, "&Full"),
    Item(40020, "&Brief"),
    Item(CMD_ROOM_SUPERBRIEF, "&SuperBrief"),
    END_SUB,
    Sub("Ot&her"),
    Item(CMD_OTHER_TIME, "&Time"),
    Item(40023, "&Weather"),
    Item(CMD_OTHER_WORLD, "W&orld"),
    END_SUB,
};

constexpr std::array DRAGGING_MENU = {
    Item(CMD_DRAG_SOMEONE, "&Drag Someone..."),
    SEPARATOR,
    Item(CMD_STOP_DRAGGING, "&Stop Dragging"),
};

constexpr std::array SCRIPTS_MENU = {
    Item(CMD_EXECUTE_SCRIPT, "E&xecute a Script..."),
    Item(CMD_STOP_SCRIPT, "&Stop Script"),
    SEPARATOR,
    Item(CMD_RECORD_SCRIPT, "&Record a Script..."),
    Item(CMD_STOP_RECORDING, "S&top Recording"),
    SEPARATOR,
    Item(CMD_EDIT_SCRIPT, "&Edit a Script..."),
    Item(CMD_CREATE_SCRIPT, "&Create a New Script..."),
};

constexpr std::array WINDOW_MENU = {
    Item(CMD_OPEN_GAME_WINDOW, "Open a Game Window"),
    Item(CMD_OPEN_THOUGHT_WINDOW, "Open a Thoughts Window"),
    Item(CMD_OPEN_ARRIVAL_WINDOW, "Open an Arrival Window"),
    SEPARATOR,
    Item(CMD_ARRANGE, "Arrange"),
    Item(CMD_TILE_HORIZONTALLY, "Tile Horizontally"),
    Item(CMD_TILE_VERTICALLY, "Tile Vertically"),
    Item(CMD_CASCADE, "Cascade"),
    SEPARATOR,
    Item(CMD_AUTO_ARRANGE, "Auto-arrange Windows"),
    MenuItem{MenuItemKind::WindowList, 0, nullptr},
};

constexpr std::array INTERNET_MENU = {
    Item(CMD_HOME_PAGE, "Thornmere Home Page"),
    SEPARATOR,
    Item(CMD_MESSAGE_BOARD, "Thornmere Message Board"),
};

constexpr std::array HELP_MENU = {
    Item(CMD_ABOUT, "About..."),
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
