#include "commands/MacroStore.h"

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

struct LookupCase {
    const char* name;
    KeyModifiers setWith;
    KeyModifiers pressed;
    int key;
    bool found;
};

class LookupTest : public ::testing::TestWithParam<LookupCase> {};

// Each case stores "x" under one set of modifiers and presses with another.
TEST_P(LookupTest, FindsTheSlotByPrecedence)
{
    const LookupCase& c = GetParam();
    MacroStore store;
    store.SetMacro(c.setWith, c.key, "x");
    const char* text = store.LookupMacro(c.pressed, c.key);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(std::string(text) == "x", c.found);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, LookupTest,
    ::testing::Values(
        LookupCase{"AltShiftF1PlaysAlt", KEY_ALT, KEY_ALT | KEY_SHIFT, VK_F1, true},
        LookupCase{"CtrlShiftF1PlaysShift", KEY_SHIFT, KEY_CTRL | KEY_SHIFT, VK_F1, true},
        LookupCase{"CtrlShiftF1SkipsCtrl", KEY_CTRL, KEY_CTRL | KEY_SHIFT, VK_F1, false},
        LookupCase{"PlainF12", 0, KEY_EXTENDED | KEY_NUMLOCK, VK_F12, true},
        LookupCase{"AltCtrlLetterPlaysAlt", KEY_ALT, KEY_ALT | KEY_CTRL, 'Q', true},
        LookupCase{"CtrlShiftLetterPlaysCtrl", KEY_CTRL, KEY_CTRL | KEY_SHIFT, 'Q', true},
        LookupCase{"KeypadShiftBeforeCtrl", KEY_SHIFT, KEY_SHIFT | KEY_CTRL, VK_ADD, true},
        LookupCase{"KeypadAltBeforeShift", KEY_ALT, KEY_ALT | KEY_SHIFT, VK_DIVIDE, true},
        LookupCase{"PlainKeypad", 0, KEY_NUMLOCK, VK_NUMPAD0 + 7, true}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(MacroStoreKeys, KeysWithoutASlot)
{
    MacroStore store;
    EXPECT_EQ(store.LookupMacro(0, 'A'), nullptr);
    EXPECT_EQ(store.LookupMacro(KEY_SHIFT, 'A'), nullptr);
    EXPECT_EQ(store.LookupMacro(KEY_ALT, VK_RETURN), nullptr);
    EXPECT_EQ(store.LookupMacro(KEY_ALT, '1'), nullptr);
    store.SetMacro(0, 'A', "x");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'A'), "");
}

TEST(MacroStoreKeys, SetMacroIgnoresTextsOf201Characters)
{
    MacroStore store;
    std::string held(200, 'a');
    store.SetMacro(KEY_ALT, 'B', held.c_str());
    EXPECT_EQ(store.LookupMacro(KEY_ALT, 'B'), held);
    store.SetMacro(KEY_ALT, 'B', std::string(201, 'b').c_str());
    EXPECT_EQ(store.LookupMacro(KEY_ALT, 'B'), held);
}

TEST(MacroStoreSets, FunctionKeysBelongToTheCurrentSetOnly)
{
    MacroStore store;
    store.SetMacro(0, VK_F1, "set one");
    store.SetMacro(KEY_ALT, 'Z', "letter");
    store.SelectMacroSet(3);
    EXPECT_STREQ(store.LookupMacro(0, VK_F1), "");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'Z'), "letter");
    store.SelectMacroSet(0);
    EXPECT_STREQ(store.LookupMacro(0, VK_F1), "set one");
}

TEST(MacroStoreSets, SelectIgnoresOutOfRangeAndStepsWrap)
{
    MacroStore store;
    store.SelectMacroSet(10);
    store.SelectMacroSet(-1);
    EXPECT_EQ(store.CurrentMacroSet(), 0);
    store.PreviousMacroSet();
    EXPECT_EQ(store.CurrentMacroSet(), 9);
    store.NextMacroSet();
    EXPECT_EQ(store.CurrentMacroSet(), 0);
}

TEST(MacroStoreSets, NamesUpTo64Characters)
{
    MacroStore store;
    store.SelectMacroSet(2);
    store.SetMacroSetName(std::string(64, 'n').c_str());
    EXPECT_EQ(std::string(store.MacroSetName(2)), std::string(64, 'n'));
    store.SetMacroSetName(std::string(65, 'm').c_str());
    EXPECT_EQ(std::string(store.MacroSetName(2)), std::string(64, 'n'));
    EXPECT_STREQ(store.MacroSetName(11), "");
}

TEST(MacroDefaults, FillTheKeypadAndTheClipboardKeys)
{
    MacroStore store;
    store.SetMacro(0, VK_NUMPAD0 + 8, "mine");
    SetDefaultMacros(store, false);
    EXPECT_STREQ(store.LookupMacro(0, VK_NUMPAD0 + 8), "mine");
    EXPECT_STREQ(store.LookupMacro(0, VK_NUMPAD0 + 5), "\\xgo gate\\r");
    EXPECT_STREQ(store.LookupMacro(0, VK_ADD), "\\xlook\\r");
    EXPECT_STREQ(store.LookupMacro(0, VK_SUBTRACT), "");
    EXPECT_STREQ(store.LookupMacro(KEY_CTRL, 'X'), "{cut}");
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'A'), "");
    SetDefaultMacros(store, true);
    EXPECT_STREQ(store.LookupMacro(KEY_ALT, 'A'), "attack\\r");
}

} // namespace
} // namespace steward
