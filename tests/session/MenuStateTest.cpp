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

TEST(MenuState, ChecksFollowTheOptions)
{
    MenuInputs in;
    in.AutoArrange = false;
    in.AutoLog = true;
    EXPECT_FALSE(After(in, CMD_AUTO_ARRANGE).Checked);
    EXPECT_TRUE(After(in, CMD_AUTO_LOG).Checked);
    in.AutoArrange = true;
    in.AutoLog = false;
    EXPECT_TRUE(After(in, CMD_AUTO_ARRANGE).Checked);
    EXPECT_FALSE(After(in, CMD_AUTO_LOG).Checked);
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

TEST(MenuState, ConnectionItemsFollowTheSocket)
{
    MenuInputs in;
    in.Disconnected = true;
    EXPECT_TRUE(After(in, CMD_CONNECT).Enabled);
    EXPECT_FALSE(After(in, CMD_RESET_STEWARD_MODE).Enabled);
    in.Disconnected = false;
    EXPECT_FALSE(After(in, CMD_CONNECT).Enabled);
    EXPECT_TRUE(After(in, CMD_RESET_STEWARD_MODE).Enabled);
}

TEST(MenuState, LogItemsFollowTheLog)
{
    MenuInputs in;
    EXPECT_TRUE(After(in, CMD_OPEN_LOG).Enabled);
    EXPECT_FALSE(After(in, CMD_CLOSE_LOG).Enabled);
    in.LogOpen = true;
    EXPECT_FALSE(After(in, CMD_OPEN_LOG).Enabled);
    EXPECT_TRUE(After(in, CMD_CLOSE_LOG).Enabled);
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

TEST(MenuState, OpenWindowItemsAreGreyWhileTheirWindowIsOpen)
{
    MenuInputs in;
    in.GameWindowOpen = true;
    in.ArrivalWindowOpen = true;
    EXPECT_FALSE(After(in, CMD_OPEN_GAME_WINDOW).Enabled);
    EXPECT_TRUE(After(in, CMD_OPEN_THOUGHT_WINDOW).Enabled);
    EXPECT_FALSE(After(in, CMD_OPEN_ARRIVAL_WINDOW).Enabled);
    in.ThoughtWindowOpen = true;
    EXPECT_FALSE(After(in, CMD_OPEN_THOUGHT_WINDOW).Enabled);
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
