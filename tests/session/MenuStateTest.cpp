#include "session/MenuState.h"
#include "base/FrameCommand.h"
#include "session/CommandTable.h"
#include "session/MenuBar.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <set>
#include <utility>

namespace steward {
namespace {

// A seeded walk over the live state: each item follows its inputs, and "Stop Script" keeps what
// it showed while a recording runs; items that no rule names stay enabled and unchecked.
TEST(MenuState, ItemsFollowTheLiveStateStepByStep)
{
    bool MenuInputs::*const flags[] = {&MenuInputs::AutoArrange,
                                       &MenuInputs::AutoLog,
                                       &MenuInputs::LogOpen,
                                       &MenuInputs::Disconnected,
                                       &MenuInputs::Replay,
                                       &MenuInputs::CommandLineHasSelection,
                                       &MenuInputs::ActiveChildHasSelection,
                                       &MenuInputs::ClipboardHasText,
                                       &MenuInputs::GameWindowOpen,
                                       &MenuInputs::ThoughtWindowOpen,
                                       &MenuInputs::ArrivalWindowOpen,
                                       &MenuInputs::Recording,
                                       &MenuInputs::ScriptRunning};
    std::mt19937 random(11);
    MenuState state;
    bool stopScript = true;
    for (int step = 0; step < 3000; ++step) {
        SCOPED_TRACE(::testing::Message() << "seed 11 step " << step);
        MenuInputs in;
        for (bool MenuInputs::*flag : flags)
            in.*flag = random() % 2 != 0;
        in.DisplayMode = static_cast<std::uint8_t>(random() % 4);
        state.Update(in);
        stopScript = in.Recording ? stopScript : in.ScriptRunning;
        const bool idle = !in.Recording && !in.ScriptRunning;
        const struct {
            int command;
            bool enabled;
            bool checked;
        } items[] = {
            {CMD_AUTO_ARRANGE, true, in.AutoArrange},
            {CMD_AUTO_LOG, true, in.AutoLog},
            {CMD_OPEN_LOG, !in.LogOpen, false},
            {CMD_CLOSE_LOG, in.LogOpen, false},
            {CMD_GRAPHICS_AT_TOP, true, in.DisplayMode == 0},
            {CMD_GRAPHICS_AT_BOTTOM, true, in.DisplayMode == 1},
            {CMD_FULL_SCREEN, true, in.DisplayMode == 2},
            {CMD_CONNECT, in.Disconnected && !in.Replay, false},
            {CMD_RESET_STEWARD_MODE, !in.Disconnected, false},
            {CMD_CUT, in.CommandLineHasSelection, false},
            {CMD_CLEAR, in.CommandLineHasSelection, false},
            {CMD_COPY, in.CommandLineHasSelection || in.ActiveChildHasSelection, false},
            {CMD_PASTE, in.ClipboardHasText, false},
            {CMD_OPEN_GAME_WINDOW, !in.GameWindowOpen, false},
            {CMD_OPEN_THOUGHT_WINDOW, !in.ThoughtWindowOpen, false},
            {CMD_OPEN_ARRIVAL_WINDOW, !in.ArrivalWindowOpen, false},
            {CMD_EXECUTE_SCRIPT, idle, false},
            {CMD_RECORD_SCRIPT, idle, false},
            {CMD_EDIT_SCRIPT, idle, false},
            {CMD_STOP_SCRIPT, stopScript, false},
            {CMD_STOP_RECORDING, in.Recording && !in.ScriptRunning, false},
            {CMD_CREATE_SCRIPT, true, false},
            {CMD_HIGHLIGHT_STRINGS, true, false},
            {CMD_MACRO_KEYS, true, false},
            {CMD_COPY_TO_COMMAND_LINE, true, false},
            {CMD_ABOUT, true, false},
            {CMD_OPTIONS, true, false},
            {CMD_NEW_CHARACTER, true, false},
            {CMD_HOME_PAGE, true, false},
            {CMD_INFO_GENERAL, true, false},
            {CMD_EXIT, true, false},
        };
        for (const auto& item : items) {
            EXPECT_EQ(state.Of(item.command).Enabled, item.enabled) << item.command;
            EXPECT_EQ(state.Of(item.command).Checked, item.checked) << item.command;
        }
    }
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
    // No two items share a command, and each Info item sends words of its own.
    std::set<int> commands;
    std::set<std::string> sent;
    for (const Menu& menu : MainMenu())
        for (const MenuItem& item : menu.Items)
            if (item.Kind == MenuItemKind::Command) {
                EXPECT_TRUE(commands.insert(item.Command).second) << item.Text;
            }
    for (const MenuItem& item : MainMenu()[3].Items)
        if (item.Kind == MenuItemKind::Command) {
            const char* words = FindFixedText(item.Command);
            EXPECT_TRUE(words && sent.insert(words).second) << item.Text;
        }
}

} // namespace
} // namespace steward
