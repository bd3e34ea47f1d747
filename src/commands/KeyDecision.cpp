#include "commands/KeyDecision.h"

#include "commands/MacroStore.h"

namespace steward {

namespace {

// The keypad's keys as they arrive with NumLock off, in the order of keypad 0 to 9 and ".".
constexpr int KEYPAD_NAVIGATION_KEYS[] = {
    VK_INSERT, VK_END,  VK_DOWN, VK_NEXT,  VK_LEFT,   VK_CLEAR,
    VK_RIGHT,  VK_HOME, VK_UP,   VK_PRIOR, VK_DELETE,
};

KeyDecision Taken(KeyAction action, int key = 0, int value = 0)
{
    return {action, true, key, value};
}

constexpr KeyDecision NOT_TAKEN{};

// Keypad 0 to 9, then VK_DECIMAL, for a navigation key; -1 for any other key.
int KeypadKeyOfNavigation(int virtualKey)
{
    for (int i = 0; i < 11; ++i) {
        if (KEYPAD_NAVIGATION_KEYS[i] == virtualKey)
            return i < 10 ? VK_NUMPAD0 + i : VK_DECIMAL;
    }
    return -1;
}

KeyDecision DecideScroll(bool down, KeyModifiers modifiers)
{
    if (modifiers & KEY_SHIFT)
        return Taken(KeyAction::Scroll, 0, down ? SB_LINEDOWN : SB_LINEUP);
    if (modifiers & KEY_CTRL)
        return Taken(KeyAction::Scroll, 0, down ? SB_BOTTOM : SB_TOP);
    return Taken(KeyAction::Scroll, 0, down ? SB_PAGEDOWN : SB_PAGEUP);
}

KeyDecision DecideEnter(KeyModifiers modifiers, bool numLockHonoured, bool commandLineEmpty)
{
    if (modifiers & KEY_ALT)
        return Taken(KeyAction::RepeatCommand, 0, 2);
    if (modifiers & KEY_CTRL)
        return Taken(KeyAction::RepeatCommand, 0, 1);
    if ((modifiers & KEY_EXTENDED) && !numLockHonoured && commandLineEmpty)
        return Taken(KeyAction::RepeatThenEnterKey);
    return Taken(KeyAction::EnterKey);
}

KeyDecision DecideTab(KeyModifiers modifiers)
{
    if (modifiers & KEY_ALT)
        return NOT_TAKEN;
    if (modifiers & KEY_CTRL)
        return Taken(KeyAction::NextChildWindow);
    return Taken(KeyAction::ToggleGameWindow);
}

// The keys whose meaning depends on Extended: the navigation block and the keypad without
// NumLock arrive with the same virtual keys.
KeyDecision DecideNavigation(int virtualKey, KeyModifiers modifiers, bool numLockHonoured)
{
    if (!(modifiers & KEY_EXTENDED)) {
        int keypad = KeypadKeyOfNavigation(virtualKey);
        if (keypad < 0 || numLockHonoured)
            return NOT_TAKEN;
        return Taken(KeyAction::ExpandMacro, keypad);
    }
    switch (virtualKey) {
    case VK_UP:
        return Taken(KeyAction::HistoryPrevious);
    case VK_DOWN:
        return Taken(KeyAction::HistoryNext);
    case VK_PRIOR:
        return DecideScroll(false, modifiers);
    case VK_NEXT:
        return DecideScroll(true, modifiers);
    default:
        return NOT_TAKEN;
    }
}

} // namespace

KeyDecision DecideKey(int virtualKey, KeyModifiers modifiers, bool honorNumLock,
                      bool commandLineEmpty)
{
    bool numLockHonoured = honorNumLock && (modifiers & KEY_NUMLOCK);
    bool altOrCtrl = modifiers & (KEY_ALT | KEY_CTRL);
    if (IsLetterKey(virtualKey))
        return altOrCtrl ? Taken(KeyAction::ExpandMacro, virtualKey) : NOT_TAKEN;
    if (IsDigitKey(virtualKey)) {
        if (!(modifiers & KEY_ALT))
            return NOT_TAKEN;
        int set = virtualKey == '0' ? 9 : virtualKey - '1';
        return Taken(KeyAction::SelectMacroSet, virtualKey, set);
    }
    if (IsFunctionKey(virtualKey))
        return Taken(KeyAction::ExpandMacro, virtualKey);
    if (KeypadIndex(virtualKey) >= 0)
        return numLockHonoured ? NOT_TAKEN : Taken(KeyAction::ExpandMacro, virtualKey);
    switch (virtualKey) {
    case VK_RETURN:
        return DecideEnter(modifiers, numLockHonoured, commandLineEmpty);
    case VK_TAB:
        return DecideTab(modifiers);
    case VK_ESCAPE:
        return Taken(KeyAction::Escape);
    default:
        return DecideNavigation(virtualKey, modifiers, numLockHonoured);
    }
}

} // namespace steward
