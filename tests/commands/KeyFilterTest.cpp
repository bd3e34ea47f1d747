#include "KeyboardDoubles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward::test {
namespace {

using Strings = std::vector<std::string>;

class KeyFilterTest : public ::testing::Test {
  protected:
    KeyFilterTest() { SetDefaultMacros(kb.macros, false); }
    bool Press(int key, KeyModifiers modifiers = 0) { return kb.filter.KeyDown(key, modifiers); }
    KeyboardBench kb;
};

TEST_F(KeyFilterTest, AnyKeyLeavesRestModeOnce)
{
    kb.host.rest = true;
    EXPECT_FALSE(Press(VK_SHIFT, KEY_SHIFT));
    EXPECT_FALSE(Press('A'));
    EXPECT_FALSE(kb.host.rest);
    EXPECT_EQ(kb.host.printed, Strings{"\r\nLeaving rest mode.\r\n"});
}

TEST_F(KeyFilterTest, AltLetterWithoutMacroIsTakenAndDoesNothing)
{
    EXPECT_TRUE(Press('F', KEY_ALT));
    EXPECT_EQ(kb.line.text, "");
    EXPECT_TRUE(kb.sink.calls.empty());
}

TEST_F(KeyFilterTest, KeypadPlaysItsMacroWithNumLockOnAndOff)
{
    EXPECT_TRUE(Press(VK_NUMPAD0 + 8, KEY_NUMLOCK));
    EXPECT_TRUE(Press(VK_UP));
    EXPECT_EQ(kb.sink.sent, (Strings{"n", "n"}));
}

TEST_F(KeyFilterTest, AltDigitSelectsTheSetAndRetitlesTheFrame)
{
    kb.macros.SelectMacroSet(2);
    kb.macros.SetMacroSetName("Fight");
    EXPECT_TRUE(Press('3', KEY_ALT));
    EXPECT_EQ(kb.macros.CurrentMacroSet(), 2);
    EXPECT_EQ(kb.host.title, "Thornmere [Ayla]: Current Macro Set: 3 - Fight");
    EXPECT_TRUE(Press('0', KEY_ALT));
    EXPECT_EQ(kb.host.title, "Thornmere [Ayla]: Current Macro Set: 10 - ");
}

TEST_F(KeyFilterTest, EnterPostsARememberedEnterKey)
{
    kb.options.MinCommandLength = 0;
    kb.Type("n");
    EXPECT_TRUE(Press(VK_RETURN));
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_ENTER_KEY});
    kb.ServeQueue();
    EXPECT_EQ(kb.sink.sent, Strings{"n"});
    EXPECT_STREQ(kb.history.EntryAt(0), "n");
}

TEST_F(KeyFilterTest, KeypadEnterOnAnEmptyLineRepeatsThenSendsAnEmptyLine)
{
    kb.history.RememberCommand("kill rat", 4);
    EXPECT_TRUE(Press(VK_RETURN, KEY_EXTENDED));
    kb.ServeQueue();
    EXPECT_EQ(kb.sink.sent, (Strings{"kill rat", ""}));
    EXPECT_EQ(kb.history.Count(), 1);
}

TEST_F(KeyFilterTest, CtrlAndAltEnterRepeatWithoutTouchingTheLine)
{
    kb.history.RememberCommand("look", 4);
    kb.history.RememberCommand("kill rat", 4);
    kb.Type("typed");
    Press(VK_RETURN, KEY_CTRL);
    Press(VK_RETURN, KEY_ALT);
    EXPECT_EQ(kb.sink.sent, (Strings{"kill rat", "look"}));
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

TEST_F(KeyFilterTest, EscapeAbortsAScriptFirstThenLeavesScrollback)
{
    kb.host.script = true;
    kb.Type("half");
    EXPECT_TRUE(Press(VK_ESCAPE));
    EXPECT_EQ(kb.line.text, "");
    EXPECT_EQ(kb.host.calls, Strings{"abort"});
    EXPECT_EQ(kb.host.printed, Strings{"\r\n[Script aborted.]\r\n"});
    Press(VK_ESCAPE);
    EXPECT_EQ(kb.host.calls, (Strings{"abort", "endscrollback"}));
}

TEST_F(KeyFilterTest, WindowKeysReachTheFrame)
{
    Press(VK_TAB, KEY_CTRL);
    Press(VK_TAB);
    EXPECT_FALSE(Press(VK_TAB, KEY_ALT));
    Press(VK_PRIOR, KEY_EXTENDED | KEY_CTRL);
    Press(VK_NEXT, KEY_EXTENDED | KEY_SHIFT);
    EXPECT_EQ(kb.host.calls, (Strings{"mdinext", "toggle", "scroll 6", "scroll 1"}));
}

} // namespace
} // namespace steward::test
