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
                {'1', ALT, 0, 0, A::SelectMacroSet, 0},
                {'9', ALT, 0, 0, A::SelectMacroSet, 8},
                {'0', ALT, 0, 0, A::SelectMacroSet, 9},
                {'5', CTRL, 0, 0, A::None, 0},
                {VK_F1, 0, 0, 0, A::ExpandMacro, VK_F1},
                {VK_F12, SHIFT, 1, 0, A::ExpandMacro, VK_F12},
                {VK_NUMPAD0 + 8, NUM, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 8},
                {VK_NUMPAD0 + 8, NUM, 1, 0, A::None, 0},
                {VK_MULTIPLY, NUM, 1, 0, A::None, 0},
                {VK_MULTIPLY, 0, 1, 0, A::ExpandMacro, VK_MULTIPLY},
                {VK_INSERT, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0},
                {VK_UP, 0, 0, 0, A::ExpandMacro, VK_NUMPAD0 + 8},
                {VK_PRIOR, CTRL, 0, 0, A::ExpandMacro, VK_NUMPAD9},
                {VK_DELETE, 0, 0, 0, A::ExpandMacro, VK_DECIMAL},
                {VK_UP, NUM, 1, 0, A::None, 0},
                {VK_UP, 0, 1, 0, A::ExpandMacro, VK_NUMPAD0 + 8},
                {VK_INSERT, EXT | SHIFT, 0, 0, A::None, 0},
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
                {VK_RETURN, 0, 0, 1, A::EnterKey, 0},
                {VK_TAB, ALT, 0, 0, A::None, 0},
                {VK_TAB, CTRL, 0, 0, A::NextChildWindow, 0},
                {VK_TAB, SHIFT, 0, 0, A::ToggleGameWindow, 0},
                {VK_ESCAPE, ALT, 0, 0, A::Escape, 0},
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
    kb.sink = {};
    Press(VK_RETURN, KEY_EXTENDED);
    kb.ServeQueue();
    EXPECT_EQ(kb.sink.sent, Strings{"typed"}) << "keypad Enter on a typed line sends it alone";
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

class MacroPlayerTest : public ::testing::Test {
  protected:
    MacroPlayerTest()
    {
        kb.options.MinCommandLength = 0;
        std::strcpy(kb.state.DragTarget, "bob");
    }
    void Play(const char* text) { kb.player.PlayMacro(text); }
    KeyboardBench kb;
};

TEST_F(MacroPlayerTest, EscapesOfTheLanguage)
{
    const struct {
        const char *macro, *line;
    } rows[] = {
        {"a\\\\b", "a\\b"},         {"a\\zb", "ab"}, {"ab\\", "ab"},   {"typed\\Xnew", "new"},
        {"drag \\d!", "drag bob!"}, {"at@", "at"},   {"x\\D", "xbob"}, {"q", "q"}};
    for (const auto& row : rows) {
        kb.line.SetText("");
        Play(row.macro);
        EXPECT_EQ(kb.line.text, row.line) << row.macro;
    }
    EXPECT_TRUE(kb.sink.sent.empty());
    kb.line.SetText("");
    kb.Type("abc");
    kb.line.SetSelection(0, 2);
    Play("@x");
    EXPECT_EQ(kb.line.text, "xc") << "the mark of a selection is not restored";
    EXPECT_EQ(kb.line.start, 1);
    kb.line.SetText(std::string(250, 'b').c_str());
    kb.line.SetSelection(250, 250);
    Play("123456789");
    EXPECT_EQ(kb.line.text, std::string(250, 'b') + "12345");
    EXPECT_EQ(kb.line.refused, 4);
}

TEST_F(MacroPlayerTest, EveryEnterLetterSendsThroughTheFullRoad)
{
    kb.Type("kill r");
    Play("\\xn\\r");
    EXPECT_EQ(kb.line.text, "");
    Play("s\\Ne\\Rw\\n");
    EXPECT_STREQ(kb.history.EntryAt(0), "n");
    kb.state.DragTarget[0] = 0;
    Play("say hi@ there\\r");
    Play(".hunt\\r");
    Play("bob:hi\\r");
    EXPECT_EQ(kb.sink.sent, (Strings{"drag bob n", "drag bob s", "drag bob e", "drag bob w",
                                     "say hi there", ".hunt", "bob:hi"}));
    EXPECT_TRUE(kb.queue.commands.empty()) << "no rewrite of a typed line";
    Play("tell bob@ hello");
    EXPECT_EQ(kb.line.text, "tell bob hello");
    EXPECT_EQ(kb.line.start, 8) << "Enter unset the earlier mark";
    EXPECT_EQ(kb.line.end, 8);
}

TEST_F(MacroPlayerTest, QuestionIsAskedOnceAndEmptyOrCancelStops)
{
    kb.host.answers = {"rat  "};
    Play("kill \\?\\rlook \\?");
    EXPECT_EQ(kb.host.asked, Strings{"kill \\?\\rlook \\?"});
    EXPECT_EQ(kb.sink.sent, Strings{"kill rat"});
    EXPECT_EQ(kb.line.text, "look rat");
    for (const char* answer : {"   ", "<cancel>"}) {
        kb.line.SetText("typed");
        kb.host.answers = {answer};
        Play("x\\?\\r");
        EXPECT_EQ(kb.line.text, "");
        EXPECT_EQ(kb.sink.sent.size(), 1u);
    }
    kb.host.onPump = [this] { kb.line.TypeCharacter('!'); };
    Play("a\\pb\\P");
    EXPECT_EQ(kb.host.calls, (Strings{"pump 1", "pump 1"}));
    EXPECT_EQ(kb.line.text, "a!b!");
}

TEST_F(MacroPlayerTest, WordsPostOrCallTheFrameWhenTheyAreTheWholeText)
{
    const struct {
        const char* text;
        std::vector<int> posted;
        Strings hostCalls;
    } rows[] = {{"{script}", {CMD_EXECUTE_SCRIPT}, {}},
                {"{RECORD}", {CMD_RECORD_SCRIPT}, {}},
                {"{Drag}", {CMD_DRAG_SOMEONE}, {}},
                {"{notes}", {CMD_RUN_NOTEPAD}, {}},
                {"{quit}", {}, {"close"}},
                {"{copy}", {}, {"copychild"}},
                {"{=patrol}", {MM_RUN_SCRIPT}, {}},
                {"{quit} now", {}, {}}};
    for (const auto& row : rows) {
        kb.queue.commands.clear();
        kb.host.calls.clear();
        Play(row.text);
        EXPECT_EQ(kb.queue.commands, row.posted) << row.text;
        EXPECT_EQ(kb.host.calls, row.hostCalls) << row.text;
    }
    EXPECT_TRUE(kb.sink.calls.empty());
    EXPECT_EQ(kb.line.text, "{quit} now");
}

TEST_F(MacroPlayerTest, ClipboardAndSaveWordsWorkOnTheLine)
{
    kb.Type("kill rat");
    kb.line.SetSelection(5, 8);
    Play("{copy}");
    EXPECT_EQ(kb.line.clipboard, "rat");
    EXPECT_TRUE(kb.host.calls.empty());
    Play("{CUT}");
    EXPECT_EQ(kb.line.text, "kill ");
    Play("{paste}");
    Play("{paste}");
    EXPECT_EQ(kb.line.text, "kill ratrat");
    kb.line.SetSelection(0, 5);
    Play("{clear}");
    EXPECT_EQ(kb.line.text, "ratrat");
    Play("{save}");
    EXPECT_EQ(kb.line.text, "");
    EXPECT_TRUE(kb.sink.calls.empty());
    EXPECT_STREQ(kb.history.EntryAt(0), "ratrat");
}

TEST_F(MacroPlayerTest, ScriptWordsNameTheirScript)
{
    const struct {
        const char *macro, *name;
    } rows[] = {{"{=patrol}", "patrol.Stw"}, {"{=walk.txt}", "walk.txt"}, {"{=open", "open.Stw"}};
    std::strcpy(kb.state.ScriptParameters, "kept");
    for (const auto& row : rows) {
        Play(row.macro);
        EXPECT_STREQ(kb.state.ScriptName, row.name) << row.macro;
    }
    EXPECT_STREQ(kb.state.ScriptParameters, "kept");
    kb.queue.commands.clear();
    kb.Type("half");
    Play("{=.hunt rat}");
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_ENTER_KEY}) << "through the typed Enter";
    EXPECT_EQ(kb.line.text, ".hunt rat");
    EXPECT_EQ(kb.line.start, 0);
    kb.ServeQueue();
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_RUN_SCRIPT});
    EXPECT_STREQ(kb.state.ScriptName, "hunt.Cmd");
    EXPECT_STREQ(kb.state.ScriptParameters, "rat");
    EXPECT_STREQ(kb.history.EntryAt(0), ".hunt rat");
    EXPECT_TRUE(kb.sink.sent.empty());
    kb.macros.SetMacro(KEY_ALT, 'G', "get all");
    kb.player.ExpandMacro(KEY_ALT | KEY_SHIFT, 'G');
    kb.player.ExpandMacro(KEY_CTRL, 'G');
    kb.player.ExpandMacro(0, VK_RETURN);
    EXPECT_EQ(kb.line.text, "get all");
}

} // namespace
} // namespace steward::test
