#include "KeyboardDoubles.h"
#include "commands/KeyDecision.h"

#include <gtest/gtest.h>

namespace steward::test {
namespace {

using Strings = std::vector<std::string>;

TEST(KeyDecision, DecidesEachKeyAsTheTableSays)
{
    constexpr KeyModifiers ALT = KEY_ALT, SHIFT = KEY_SHIFT, CTRL = KEY_CTRL, EXT = KEY_EXTENDED,
                           NUM = KEY_NUMLOCK;
    using A = KeyAction;
    // number: the key played for ExpandMacro, the Value otherwise.
    const struct {
        int key;
        KeyModifiers modifiers;
        int honorNumLock, lineEmpty;
        KeyAction action;
        int number;
    } rows[] = {{'F', ALT, 0, 0, A::ExpandMacro, 'F'},
                {'Z', CTRL, 0, 0, A::ExpandMacro, 'Z'},
                {'A', 0, 0, 0, A::None, 0},
                {'A', SHIFT, 0, 0, A::None, 0},
                {'1', ALT, 0, 0, A::SelectMacroSet, 0},
                {'9', ALT, 0, 0, A::SelectMacroSet, 8},
                {'0', ALT, 0, 0, A::SelectMacroSet, 9},
                {'5', 0, 0, 0, A::None, 0},
                {'5', CTRL, 0, 0, A::None, 0},
                {VK_F1, 0, 0, 0, A::ExpandMacro, VK_F1},
                {VK_F12, SHIFT, 1, 0, A::ExpandMacro, VK_F12},
                {VK_NUMPAD0 + 8, NUM, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 8},
                {VK_NUMPAD0 + 8, NUM, 1, 0, A::None, 0},
                {VK_MULTIPLY, NUM, 1, 0, A::None, 0},
                {VK_MULTIPLY, 0, 1, 0, A::ExpandMacro, VK_MULTIPLY},
                {VK_INSERT, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0},
                {VK_END, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 1},
                {VK_DOWN, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 2},
                {VK_NEXT, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 3},
                {VK_LEFT, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 4},
                {VK_CLEAR, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 5},
                {VK_RIGHT, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 6},
                {VK_HOME, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 7},
                {VK_UP, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 8},
                {VK_PRIOR, CTRL, 0, 0, A::ExpandMacro, VK_NUMPAD9},
                {VK_DELETE, 0, 0, 0, A::ExpandMacro, VK_DECIMAL},
                {VK_UP, NUM, 1, 0, A::None, 0},
                {VK_UP, 0, 1, 0, A::ExpandMacro, VK_NUMPAD0 + 8},
                {VK_INSERT, EXT | SHIFT, 0, 0, A::None, 0},
                {VK_END, EXT, 0, 0, A::None, 0},
                {VK_LEFT, EXT, 0, 0, A::None, 0},
                {VK_RIGHT, EXT, 0, 0, A::None, 0},
                {VK_HOME, EXT, 0, 0, A::None, 0},
                {VK_DELETE, EXT | SHIFT, 0, 0, A::None, 0},
                {VK_CLEAR, EXT, 0, 0, A::None, 0},
                {VK_UP, EXT, 0, 0, A::HistoryPrevious, 0},
                {VK_DOWN, EXT | NUM, 1, 0, A::HistoryNext, 0},
                {VK_PRIOR, EXT | SHIFT | CTRL, 0, 0, A::Scroll, SB_LINEUP},
                {VK_PRIOR, EXT | CTRL, 0, 0, A::Scroll, SB_TOP},
                {VK_PRIOR, EXT | ALT, 0, 0, A::Scroll, SB_PAGEUP},
                {VK_NEXT, EXT | SHIFT, 0, 0, A::Scroll, SB_LINEDOWN},
                {VK_NEXT, EXT | CTRL, 0, 0, A::Scroll, SB_BOTTOM},
                {VK_NEXT, EXT, 0, 0, A::Scroll, SB_PAGEDOWN},
                {VK_RETURN, ALT | CTRL, 0, 1, A::RepeatCommand, 2},
                {VK_RETURN, CTRL | EXT, 0, 1, A::RepeatCommand, 1},
                {VK_RETURN, EXT, 0, 1, A::RepeatThenEnterKey, 0},
                {VK_RETURN, EXT | NUM, 0, 1, A::RepeatThenEnterKey, 0},
                {VK_RETURN, EXT, 0, 0, A::EnterKey, 0},
                {VK_RETURN, EXT | NUM, 1, 1, A::EnterKey, 0},
                {VK_RETURN, EXT | SHIFT, 0, 1, A::RepeatThenEnterKey, 0},
                {VK_RETURN, 0, 0, 1, A::EnterKey, 0},
                {VK_RETURN, SHIFT, 0, 0, A::EnterKey, 0},
                {VK_TAB, ALT, 0, 0, A::None, 0},
                {VK_TAB, CTRL, 0, 0, A::NextChildWindow, 0},
                {VK_TAB, SHIFT, 0, 0, A::ToggleGameWindow, 0},
                {VK_ESCAPE, ALT, 0, 0, A::Escape, 0},
                {VK_MENU, ALT, 0, 0, A::None, 0},
                {VK_SHIFT, SHIFT, 0, 0, A::None, 0},
                {0x08, 0, 0, 0, A::None, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << "key " << row.key << " with " << row.modifiers);
        const KeyDecision decision =
            DecideKey(row.key, row.modifiers, row.honorNumLock != 0, row.lineEmpty != 0);
        EXPECT_EQ(decision.Action, row.action);
        EXPECT_EQ(decision.Taken, row.action != A::None);
        if (row.action == A::ExpandMacro) {
            EXPECT_EQ(decision.Key, row.number);
        }
        EXPECT_EQ(decision.Value, row.action == A::ExpandMacro ? 0 : row.number);
    }
}

class KeyFilterTest : public ::testing::Test {
  protected:
    KeyFilterTest() { SetDefaultMacros(kb.macros, false); }
    bool Press(int key, KeyModifiers modifiers = 0) { return kb.filter.KeyDown(key, modifiers); }
    KeyboardBench kb;
};

TEST_F(KeyFilterTest, MacroKeysPlayOrSelectTheirSet)
{
    kb.host.rest = true;
    EXPECT_FALSE(Press(VK_SHIFT, KEY_SHIFT));
    EXPECT_FALSE(Press('A'));
    EXPECT_FALSE(kb.host.rest);
    EXPECT_EQ(kb.host.printed, Strings{"\r\nLeaving rest mode.\r\n"}) << "once";
    EXPECT_TRUE(Press('F', KEY_ALT)) << "taken without a macro";
    EXPECT_EQ(kb.line.text, "");
    EXPECT_TRUE(kb.sink.calls.empty());
    EXPECT_TRUE(Press(VK_NUMPAD0 + 8, KEY_NUMLOCK));
    EXPECT_TRUE(Press(VK_UP));
    EXPECT_EQ(kb.sink.sent, (Strings{"n", "n"}));
    kb.macros.SelectMacroSet(2);
    kb.macros.SetMacroSetName("Fight");
    EXPECT_TRUE(Press('3', KEY_ALT));
    EXPECT_EQ(kb.macros.CurrentMacroSet(), 2);
    EXPECT_EQ(kb.host.title, "Thornmere [Ayla]: Current Macro Set: 3 - Fight");
    EXPECT_TRUE(Press('0', KEY_ALT));
    EXPECT_EQ(kb.host.title, "Thornmere [Ayla]: Current Macro Set: 10 - ");
}

TEST_F(KeyFilterTest, EnterKeysSendRepeatOrPostARememberedEnter)
{
    kb.options.MinCommandLength = 0;
    kb.Type("n");
    EXPECT_TRUE(Press(VK_RETURN));
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_ENTER_KEY});
    kb.ServeQueue();
    EXPECT_STREQ(kb.history.EntryAt(0), "n");
    kb.history.RememberCommand("kill rat", 4);
    EXPECT_TRUE(Press(VK_RETURN, KEY_EXTENDED));
    kb.ServeQueue();
    EXPECT_EQ(kb.sink.sent, (Strings{"n", "kill rat", ""})) << "keypad Enter on an empty line";
    EXPECT_EQ(kb.history.Count(), 2);
    kb.sink = {};
    kb.Type("typed");
    Press(VK_RETURN, KEY_CTRL);
    Press(VK_RETURN, KEY_ALT);
    EXPECT_EQ(kb.sink.sent, (Strings{"kill rat", "n"}));
    EXPECT_EQ(kb.line.text, "typed");
    EXPECT_TRUE(kb.queue.commands.empty());
}

TEST_F(KeyFilterTest, UpUpThenCtrlEnterSendsTheEntryBeforeTheOneShown)
{
    for (const char* text : {"look", "kill rat", "inventory"})
        kb.history.RememberCommand(text, 4);
    Press(VK_UP, KEY_EXTENDED);
    Press(VK_UP, KEY_EXTENDED);
    EXPECT_EQ(kb.line.text, "kill rat");
    Press(VK_RETURN, KEY_CTRL);
    EXPECT_EQ(kb.sink.sent, Strings{"look"});
    Press(VK_DOWN, KEY_EXTENDED);
    EXPECT_EQ(kb.line.text, "inventory");
}

TEST_F(KeyFilterTest, EscapeAndWindowKeysReachTheFrame)
{
    kb.host.script = true;
    kb.Type("half");
    EXPECT_TRUE(Press(VK_ESCAPE));
    EXPECT_EQ(kb.line.text, "");
    EXPECT_EQ(kb.host.printed, Strings{"\r\n[Script aborted.]\r\n"});
    Press(VK_ESCAPE);
    Press(VK_TAB, KEY_CTRL);
    Press(VK_TAB);
    EXPECT_FALSE(Press(VK_TAB, KEY_ALT));
    Press(VK_PRIOR, KEY_EXTENDED | KEY_CTRL);
    Press(VK_NEXT, KEY_EXTENDED | KEY_SHIFT);
    EXPECT_EQ(kb.host.calls,
              (Strings{"abort", "endscrollback", "mdinext", "toggle", "scroll 6", "scroll 1"}));
}

} // namespace
} // namespace steward::test
