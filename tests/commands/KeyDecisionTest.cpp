#include "commands/KeyDecision.h"

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

constexpr KeyModifiers ALT = KEY_ALT;
constexpr KeyModifiers SHIFT = KEY_SHIFT;
constexpr KeyModifiers CTRL = KEY_CTRL;
constexpr KeyModifiers EXT = KEY_EXTENDED;
constexpr KeyModifiers NUM = KEY_NUMLOCK;
using A = KeyAction;

struct KeyCase {
    const char* name;
    int key;
    KeyModifiers modifiers;
    bool honorNumLock;
    bool lineEmpty;
    KeyAction action;
    bool taken;
    int macroKey; // the key played, for ExpandMacro
    int value;
};

class KeyTableTest : public ::testing::TestWithParam<KeyCase> {};

TEST_P(KeyTableTest, DecidesAsTheTableSays)
{
    const KeyCase& c = GetParam();
    KeyDecision decision = DecideKey(c.key, c.modifiers, c.honorNumLock, c.lineEmpty);
    EXPECT_EQ(decision.Action, c.action);
    EXPECT_EQ(decision.Taken, c.taken);
    if (c.action == A::ExpandMacro) {
        EXPECT_EQ(decision.Key, c.macroKey);
    }
    EXPECT_EQ(decision.Value, c.value);
}

INSTANTIATE_TEST_SUITE_P(
    Letters, KeyTableTest,
    ::testing::Values(KeyCase{"AltF", 'F', ALT, false, false, A::ExpandMacro, true, 'F', 0},
                      KeyCase{"CtrlZ", 'Z', CTRL, false, false, A::ExpandMacro, true, 'Z', 0},
                      KeyCase{"PlainA", 'A', 0, false, false, A::None, false, 0, 0},
                      KeyCase{"ShiftA", 'A', SHIFT, false, false, A::None, false, 0, 0}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Digits, KeyTableTest,
    ::testing::Values(KeyCase{"Alt1", '1', ALT, false, false, A::SelectMacroSet, true, 0, 0},
                      KeyCase{"Alt9", '9', ALT, false, false, A::SelectMacroSet, true, 0, 8},
                      KeyCase{"Alt0", '0', ALT, false, false, A::SelectMacroSet, true, 0, 9},
                      KeyCase{"Plain5", '5', 0, false, false, A::None, false, 0, 0},
                      KeyCase{"Ctrl5", '5', CTRL, false, false, A::None, false, 0, 0}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(FunctionKeys, KeyTableTest,
                         ::testing::Values(KeyCase{"F1", VK_F1, 0, false, false, A::ExpandMacro,
                                                   true, VK_F1, 0},
                                           KeyCase{"ShiftF12", VK_F12, SHIFT, true, false,
                                                   A::ExpandMacro, true, VK_F12, 0}),
                         [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Keypad, KeyTableTest,
    ::testing::Values(
        KeyCase{"DigitNumLockOn", VK_NUMPAD0 + 8, NUM, false, false, A::ExpandMacro, true,
                VK_NUMPAD0 + 8, 0},
        KeyCase{"DigitHonoured", VK_NUMPAD0 + 8, NUM, true, false, A::None, false, 0, 0},
        KeyCase{"StarHonoured", VK_MULTIPLY, NUM, true, false, A::None, false, 0, 0},
        KeyCase{"StarHonourOnNumLockOff", VK_MULTIPLY, 0, true, false, A::ExpandMacro, true,
                VK_MULTIPLY, 0},
        KeyCase{"InsertIsKeypad0", VK_INSERT, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0, 0},
        KeyCase{"EndIs1", VK_END, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0 + 1, 0},
        KeyCase{"DownIs2", VK_DOWN, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0 + 2, 0},
        KeyCase{"PageDownIs3", VK_NEXT, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0 + 3, 0},
        KeyCase{"LeftIs4", VK_LEFT, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0 + 4, 0},
        KeyCase{"ClearIs5", VK_CLEAR, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0 + 5, 0},
        KeyCase{"RightIs6", VK_RIGHT, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0 + 6, 0},
        KeyCase{"HomeIs7", VK_HOME, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0 + 7, 0},
        KeyCase{"UpIs8", VK_UP, 0, false, false, A::ExpandMacro, true, VK_NUMPAD0 + 8, 0},
        KeyCase{"PageUpIs9", VK_PRIOR, CTRL, false, false, A::ExpandMacro, true, VK_NUMPAD9, 0},
        KeyCase{"DeleteIsDecimal", VK_DELETE, 0, false, false, A::ExpandMacro, true, VK_DECIMAL, 0},
        KeyCase{"NavigationHonoured", VK_UP, NUM, true, false, A::None, false, 0, 0},
        KeyCase{"NavigationHonourOnNumLockOff", VK_UP, 0, true, false, A::ExpandMacro, true,
                VK_NUMPAD0 + 8, 0}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Navigation, KeyTableTest,
    ::testing::Values(
        KeyCase{"ExtendedInsert", VK_INSERT, EXT | SHIFT, false, false, A::None, false, 0, 0},
        KeyCase{"ExtendedEnd", VK_END, EXT, false, false, A::None, false, 0, 0},
        KeyCase{"ExtendedLeft", VK_LEFT, EXT, false, false, A::None, false, 0, 0},
        KeyCase{"ExtendedRight", VK_RIGHT, EXT, false, false, A::None, false, 0, 0},
        KeyCase{"ExtendedHome", VK_HOME, EXT, false, false, A::None, false, 0, 0},
        KeyCase{"ExtendedDelete", VK_DELETE, EXT | SHIFT, false, false, A::None, false, 0, 0},
        KeyCase{"ExtendedClear", VK_CLEAR, EXT, false, false, A::None, false, 0, 0},
        KeyCase{"Up", VK_UP, EXT, false, false, A::HistoryPrevious, true, 0, 0},
        KeyCase{"Down", VK_DOWN, EXT | NUM, true, false, A::HistoryNext, true, 0, 0},
        KeyCase{"ShiftPageUp", VK_PRIOR, EXT | SHIFT | CTRL, false, false, A::Scroll, true, 0,
                SB_LINEUP},
        KeyCase{"CtrlPageUp", VK_PRIOR, EXT | CTRL, false, false, A::Scroll, true, 0, SB_TOP},
        KeyCase{"PageUp", VK_PRIOR, EXT | ALT, false, false, A::Scroll, true, 0, SB_PAGEUP},
        KeyCase{"ShiftPageDown", VK_NEXT, EXT | SHIFT, false, false, A::Scroll, true, 0,
                SB_LINEDOWN},
        KeyCase{"CtrlPageDown", VK_NEXT, EXT | CTRL, false, false, A::Scroll, true, 0, SB_BOTTOM},
        KeyCase{"PageDown", VK_NEXT, EXT, false, false, A::Scroll, true, 0, SB_PAGEDOWN}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Enter, KeyTableTest,
    ::testing::Values(
        KeyCase{"AltEnter", VK_RETURN, ALT | CTRL, false, true, A::RepeatCommand, true, 0, 2},
        KeyCase{"CtrlEnter", VK_RETURN, CTRL | EXT, false, true, A::RepeatCommand, true, 0, 1},
        KeyCase{"KeypadEnterEmpty", VK_RETURN, EXT, false, true, A::RepeatThenEnterKey, true, 0, 0},
        KeyCase{"KeypadEnterEmptyNumLockNotHonoured", VK_RETURN, EXT | NUM, false, true,
                A::RepeatThenEnterKey, true, 0, 0},
        KeyCase{"KeypadEnterWithText", VK_RETURN, EXT, false, false, A::EnterKey, true, 0, 0},
        KeyCase{"KeypadEnterHonoured", VK_RETURN, EXT | NUM, true, true, A::EnterKey, true, 0, 0},
        KeyCase{"ShiftKeypadEnterEmpty", VK_RETURN, EXT | SHIFT, false, true, A::RepeatThenEnterKey,
                true, 0, 0},
        KeyCase{"EnterEmpty", VK_RETURN, 0, false, true, A::EnterKey, true, 0, 0},
        KeyCase{"ShiftEnter", VK_RETURN, SHIFT, false, false, A::EnterKey, true, 0, 0}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Others, KeyTableTest,
    ::testing::Values(KeyCase{"AltTab", VK_TAB, ALT, false, false, A::None, false, 0, 0},
                      KeyCase{"CtrlTab", VK_TAB, CTRL, false, false, A::NextChildWindow, true, 0,
                              0},
                      KeyCase{"Tab", VK_TAB, SHIFT, false, false, A::ToggleGameWindow, true, 0, 0},
                      KeyCase{"Escape", VK_ESCAPE, ALT, false, false, A::Escape, true, 0, 0},
                      KeyCase{"AltAlone", VK_MENU, ALT, false, false, A::None, false, 0, 0},
                      KeyCase{"Shift", VK_SHIFT, SHIFT, false, false, A::None, false, 0, 0},
                      KeyCase{"Backspace", 0x08, 0, false, false, A::None, false, 0, 0}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace steward
