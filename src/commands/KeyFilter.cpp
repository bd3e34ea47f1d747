#include "commands/KeyFilter.h"

#include "commands/CommandHistory.h"
#include "commands/CommandLineEdit.h"
#include "commands/CommandSender.h"
#include "commands/KeyDecision.h"
#include "commands/KeyboardHost.h"
#include "commands/MacroPlayer.h"
#include "commands/MacroStore.h"
#include "config/Settings.h"

#include <cstdio>

namespace steward {

namespace {

constexpr char REST_LEAVE_TEXT[] = "\r\nLeaving rest mode.\r\n";

} // namespace

void MacroSetTitle(char* out, std::size_t capacity, const char* character, const MacroStore& store)
{
    int set = store.CurrentMacroSet();
    std::snprintf(out, capacity, "Thornmere [%s]: Current Macro Set: %d - %s", character, set + 1,
                  store.MacroSetName(set));
}

KeyFilter::KeyFilter(const CommandParts& parts, CommandSender& sender, MacroPlayer& player)
    : parts_(parts), sender_(sender), player_(player)
{
}

bool KeyFilter::KeyDown(int virtualKey, KeyModifiers modifiers)
{
    if (parts_.Host.RestMode())
        parts_.Host.PrintToGameWindow(REST_LEAVE_TEXT);
    parts_.Host.SetRestMode(false);
    KeyDecision decision = Decide(virtualKey, modifiers);
    Act(decision, modifiers);
    return decision.Taken;
}

bool KeyFilter::WouldTake(int virtualKey, KeyModifiers modifiers) const
{
    return Decide(virtualKey, modifiers).Taken;
}

KeyDecision KeyFilter::Decide(int virtualKey, KeyModifiers modifiers) const
{
    char first[2];
    bool empty = parts_.Line.GetText(first, sizeof first) == 0;
    return DecideKey(virtualKey, modifiers, parts_.Options.HonorNumLock != 0, empty);
}

void KeyFilter::Act(const KeyDecision& decision, KeyModifiers modifiers)
{
    switch (decision.Action) {
    case KeyAction::None:
        break;
    case KeyAction::ExpandMacro:
        player_.ExpandMacro(modifiers, decision.Key);
        break;
    case KeyAction::SelectMacroSet:
        SelectMacroSet(decision.Value);
        break;
    case KeyAction::HistoryPrevious:
        parts_.History.HistoryPrevious(parts_.Line);
        break;
    case KeyAction::HistoryNext:
        parts_.History.HistoryNext(parts_.Line);
        break;
    case KeyAction::Scroll:
        parts_.Host.ScrollActiveChild(decision.Value);
        break;
    case KeyAction::RepeatCommand:
        parts_.History.RepeatCommand(decision.Value, parts_.Sink);
        break;
    case KeyAction::RepeatThenEnterKey:
        parts_.History.RepeatCommand(1, parts_.Sink);
        sender_.PostEnterKey(false);
        break;
    case KeyAction::EnterKey:
        sender_.PostEnterKey(true);
        break;
    case KeyAction::NextChildWindow:
        parts_.Host.NextChildWindow();
        break;
    case KeyAction::ToggleGameWindow:
        parts_.Host.ToggleGameWindowMaximized();
        break;
    case KeyAction::Escape:
        Escape();
        break;
    }
}

void KeyFilter::SelectMacroSet(int index)
{
    parts_.Macros.SelectMacroSet(index);
    char title[FRAME_TITLE_SIZE];
    MacroSetTitle(title, sizeof title, parts_.Host.CurrentCharacter(), parts_.Macros);
    parts_.Host.SetFrameTitle(title);
}

void KeyFilter::Escape()
{
    parts_.Line.SetText("");
    if (parts_.Host.ScriptRunning()) {
        parts_.Host.AbortScript();
        parts_.Host.PrintToGameWindow("\r\n[Script aborted.]\r\n");
        return;
    }
    parts_.Host.EndScrollback();
}

} // namespace steward
