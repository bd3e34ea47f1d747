#include "session/MenuState.h"
#include "base/FrameCommand.h"
#include "session/CommandTable.h"
#include "session/MenuBar.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

namespace steward {
namespace {

MenuItemState After(const MenuInputs& inputs, int command)
{
    MenuState state;
    state.Update(inputs);
    return state.Of(command);
}

// Each flag of the live state, off and on, sets the check or the grey of its items.
TEST(MenuState, ItemsFollowTheirFlag)
{
    const struct {
        bool MenuInputs::*flag;
        int command;
        bool MenuItemState::*shown;
        bool whenOn;
    } cases[] = {
        {&MenuInputs::AutoArrange, CMD_AUTO_ARRANGE, &MenuItemState::Checked, true},
        {&MenuInputs::AutoLog, CMD_AUTO_LOG, &MenuItemState::Checked, true},
        {&MenuInputs::Disconnected, CMD_CONNECT, &MenuItemState::Enabled, true},
        {&MenuInputs::Disconnected, CMD_RESET_STEWARD_MODE, &MenuItemState::Enabled, false},
        {&MenuInputs::LogOpen, CMD_OPEN_LOG, &MenuItemState::Enabled, false},
        {&MenuInputs::LogOpen, CMD_CLOSE_LOG, &MenuItemState::Enabled, true},
        {&MenuInputs::GameWindowOpen, CMD_OPEN_GAME_WINDOW, &MenuItemState::Enabled, false},
        {&MenuInputs::ThoughtWindowOpen, CMD_OPEN_THOUGHT_WINDOW, &MenuItemState::Enabled, false},
        {&MenuInputs::ArrivalWindowOpen, CMD_OPEN_ARRIVAL_WINDOW, &MenuItemState::Enabled, false},
    };
    for (const auto& c : cases) {
        for (bool on : {false, true}) {
            MenuInputs in;
            in.*c.flag = on;
            EXPECT_EQ(After(in, c.command).*c.shown, on == c.whenOn) << c.command << " " << on;
        }
    }
}

TEST(MenuState, OneDisplayModeIsChecked)
{
    const int items[] = {CMD_GRAPHICS_AT_TOP, CMD_GRAPHICS_AT_BOTTOM, CMD_FULL_SCREEN};
    for (std::uint8_t mode = 0; mode < 3; ++mode) {
        MenuInputs in;
        in.DisplayMode = mode;
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(After(in, items[i]).Checked, i == mode) << int(mode) << " " << items[i];
    }
}

struct EditCase {
    bool lineSelection;
    bool childSelection;
    bool clipboard;
    bool cut;
    bool copy;
    bool paste;
};

TEST(MenuState, EditItemsFollowSelectionsAndClipboard)
{
    const EditCase cases[] = {
        {false, false, false, false, false, false}, {true, false, false, true, true, false},
        {false, true, false, false, true, false},   {false, false, true, false, false, true},
        {true, true, true, true, true, true},
    };
    for (const EditCase& c : cases) {
        MenuInputs in;
        in.CommandLineHasSelection = c.lineSelection;
        in.ActiveChildHasSelection = c.childSelection;
        in.ClipboardHasText = c.clipboard;
        EXPECT_EQ(After(in, CMD_CUT).Enabled, c.cut);
        EXPECT_EQ(After(in, CMD_CLEAR).Enabled, c.cut);
        EXPECT_EQ(After(in, CMD_COPY).Enabled, c.copy);
        EXPECT_EQ(After(in, CMD_PASTE).Enabled, c.paste);
    }
}

struct ScriptMenuCase {
    bool recording;
    bool running;
    bool start; // 951, 952 and 953
    bool stopScript;
    bool stopRecording;
};

TEST(MenuState, ScriptItemsKeepARunningScriptAndARecordingApart)
{
    const ScriptMenuCase cases[] = {
        {false, false, true, false, false},
        {true, false, false, false, true},
        {false, true, false, true, false},
    };
    MenuState state;
    for (const ScriptMenuCase& c : cases) {
        MenuInputs in;
        in.Recording = c.recording;
        in.ScriptRunning = c.running;
        state.Update(in);
        for (int command : {CMD_EXECUTE_SCRIPT, CMD_RECORD_SCRIPT, CMD_EDIT_SCRIPT})
            EXPECT_EQ(state.Of(command).Enabled, c.start) << command;
        EXPECT_EQ(state.Of(CMD_STOP_SCRIPT).Enabled, c.stopScript);
        EXPECT_EQ(state.Of(CMD_STOP_RECORDING).Enabled, c.stopRecording);
        EXPECT_TRUE(state.Of(CMD_CREATE_SCRIPT).Enabled);
    }
}

TEST(MenuState, ItemsWithoutARuleAreEnabled)
{
    MenuInputs in;
    for (int command : {CMD_HIGHLIGHT_STRINGS, CMD_MACRO_KEYS, CMD_COPY_TO_COMMAND_LINE, CMD_ABOUT,
                        CMD_OPTIONS, CMD_NEW_CHARACTER, CMD_HOME_PAGE, CMD_INFO_GENERAL, CMD_EXIT})
        EXPECT_TRUE(After(in, command).Enabled) << command;
}

// The Info menu's items send their words as if typed; any other command sends nothing.
TEST(FindFixedText, InfoItemsSendTheirWords)
{
    const auto infoItem = [](const char* text) -> int {
        for (const MenuItem& item : MainMenu()[3].Items)
            if (item.Text && std::strcmp(item.Text, text) == 0)
                return item.Command;
        return CMD_CONNECT;
    };
    const std::pair<const char*, const char*> cases[] = {
        {"&General", "info"}, {"&Magick", "info magick"}, {"W&orld", "world"}, {"none", nullptr}};
    for (const auto& [item, words] : cases)
        EXPECT_STREQ(FindFixedText(infoItem(item)), words) << item;
}

} // namespace
} // namespace steward
