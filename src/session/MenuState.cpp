#include "session/MenuState.h"

#include "base/FrameCommand.h"
#include "config/Settings.h"

namespace steward {

void MenuState::Update(const MenuInputs& in)
{
    Set(CMD_AUTO_ARRANGE, true, in.AutoArrange);
    Set(CMD_AUTO_LOG, true, in.AutoLog);
    Set(CMD_OPEN_LOG, !in.LogOpen);
    Set(CMD_CLOSE_LOG, in.LogOpen);
    Set(CMD_GRAPHICS_AT_TOP, true, in.DisplayMode == DISPLAY_GRAPHICS_TOP);
    Set(CMD_GRAPHICS_AT_BOTTOM, true, in.DisplayMode == DISPLAY_GRAPHICS_BOTTOM);
    Set(CMD_FULL_SCREEN, true, in.DisplayMode == DISPLAY_FULL_SCREEN);
    Set(CMD_CONNECT, in.Disconnected && !in.Replay);
    Set(CMD_RESET_STEWARD_MODE, !in.Disconnected);
    Set(CMD_CUT, in.CommandLineHasSelection);
    Set(CMD_CLEAR, in.CommandLineHasSelection);
    Set(CMD_COPY, in.CommandLineHasSelection || in.ActiveChildHasSelection);
    Set(CMD_PASTE, in.ClipboardHasText);
    Set(CMD_OPEN_GAME_WINDOW, !in.GameWindowOpen);
    Set(CMD_OPEN_THOUGHT_WINDOW, !in.ThoughtWindowOpen);
    Set(CMD_OPEN_ARRIVAL_WINDOW, !in.ArrivalWindowOpen);

    bool busy = in.Recording || in.ScriptRunning;
    Set(CMD_EXECUTE_SCRIPT, !busy);
    Set(CMD_RECORD_SCRIPT, !busy);
    Set(CMD_EDIT_SCRIPT, !busy);
    if (!in.Recording)
        Set(CMD_STOP_SCRIPT, in.ScriptRunning);
    Set(CMD_STOP_RECORDING, in.Recording && !in.ScriptRunning);
}

MenuItemState MenuState::Of(int command) const
{
    MenuItemState state;
    for (int i = 0; i < count_; ++i)
        if (entries_[i].Command == command)
            state = entries_[i].State;
    return state;
}

void MenuState::Set(int command, bool enabled, bool checked)
{
    for (int i = 0; i < count_; ++i)
        if (entries_[i].Command == command) {
            entries_[i].State = {enabled, checked};
            return;
        }
    if (count_ < TRACKED)
        entries_[count_++] = {command, {enabled, checked}};
}

} // namespace steward
