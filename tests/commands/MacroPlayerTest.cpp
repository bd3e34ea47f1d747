#include "KeyboardDoubles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward::test {
namespace {

using Strings = std::vector<std::string>;

class MacroPlayerTest : public ::testing::Test {
  protected:
    MacroPlayerTest() { kb.options.MinCommandLength = 0; }
    void Play(const char* text) { kb.player.PlayMacro(text); }
    KeyboardBench kb;
};

TEST_F(MacroPlayerTest, DefaultKeypadMacroReplacesAHalfTypedLine)
{
    kb.Type("kill r");
    Play("\\xn\\r");
    EXPECT_EQ(kb.sink.sent, Strings{"n"});
    EXPECT_EQ(kb.line.text, "");
    EXPECT_EQ(kb.history.Count(), 1);
}

TEST_F(MacroPlayerTest, EnterUnsetsTheCaretMark)
{
    Play("say hi@ there\\r");
    EXPECT_EQ(kb.sink.sent, Strings{"say hi there"});
    Play("tell bob@ hello");
    EXPECT_EQ(kb.line.text, "tell bob hello");
    EXPECT_EQ(kb.line.start, 8);
    EXPECT_EQ(kb.line.end, 8);
}

TEST_F(MacroPlayerTest, MarkOfASelectionIsNotRestored)
{
    kb.Type("abc");
    kb.line.SetSelection(0, 2);
    Play("@x");
    EXPECT_EQ(kb.line.text, "xc");
    EXPECT_EQ(kb.line.start, 1);
}

TEST_F(MacroPlayerTest, QuestionIsAskedOnceAndReused)
{
    kb.host.answers = {"rat  "};
    Play("kill \\?\\rlook \\?");
    EXPECT_EQ(kb.host.asked, Strings{"kill \\?\\rlook \\?"});
    EXPECT_EQ(kb.sink.sent, Strings{"kill rat"});
    EXPECT_EQ(kb.line.text, "look rat");
}

TEST_F(MacroPlayerTest, EmptyAnswerOrCancelClearsTheLineAndStops)
{
    for (const char* answer : {"   ", "<cancel>"}) {
        kb.line.SetText("typed");
        kb.host.answers = {answer};
        Play("x\\?\\r");
        EXPECT_EQ(kb.line.text, "");
        EXPECT_TRUE(kb.sink.sent.empty());
    }
}

TEST_F(MacroPlayerTest, EscapesOfTheLanguage)
{
    struct Case {
        const char* macro;
        const char* line;
    } cases[] = {
        {"a\\\\b", "a\\b"},         {"a\\zb", "ab"}, {"ab\\", "ab"},   {"typed\\Xnew", "new"},
        {"drag \\d!", "drag bob!"}, {"at@", "at"},   {"x\\D", "xbob"},
    };
    std::strcpy(kb.state.DragTarget, "bob");
    for (const Case& c : cases) {
        kb.line.SetText("");
        Play(c.macro);
        EXPECT_EQ(kb.line.text, c.line) << c.macro;
    }
    EXPECT_TRUE(kb.sink.sent.empty());
}

TEST_F(MacroPlayerTest, EveryEnterLetterSendsThroughTheFullRoad)
{
    std::strcpy(kb.state.DragTarget, "bob");
    Play("n\\Ns\\re\\Rw\\n");
    EXPECT_EQ(kb.sink.sent, (Strings{"drag bob n", "drag bob s", "drag bob e", "drag bob w"}));
    EXPECT_EQ(kb.history.EntryAt(0), std::string("n"));
}

TEST_F(MacroPlayerTest, MacroEnterSkipsTheTypedLineRewrites)
{
    Play(".hunt\\r");
    Play("bob:hi\\r");
    EXPECT_EQ(kb.sink.sent, (Strings{".hunt", "bob:hi"}));
    EXPECT_TRUE(kb.queue.commands.empty());
}

TEST_F(MacroPlayerTest, PauseServesMessagesForOneSecond)
{
    kb.host.onPump = [this] { kb.line.TypeCharacter('!'); };
    Play("a\\pb\\P");
    EXPECT_EQ(kb.host.calls, (Strings{"pump 1", "pump 1"}));
    EXPECT_EQ(kb.line.text, "a!b!");
}

TEST_F(MacroPlayerTest, TheLineStopsAt255Characters)
{
    kb.line.SetText(std::string(250, 'b').c_str());
    kb.line.SetSelection(250, 250);
    Play("123456789");
    EXPECT_EQ(kb.line.text, std::string(250, 'b') + "12345");
    EXPECT_EQ(kb.line.refused, 4);
}

struct WordCase {
    const char* text;
    std::vector<int> posted;
    Strings hostCalls;
};

void PrintTo(const WordCase& c, std::ostream* out)
{
    *out << ::testing::PrintToString(std::string(c.text));
}

class MacroWordTest : public MacroPlayerTest, public ::testing::WithParamInterface<WordCase> {};

TEST_P(MacroWordTest, PostsOrCallsTheFrame)
{
    Play(GetParam().text);
    EXPECT_EQ(kb.queue.commands, GetParam().posted);
    EXPECT_EQ(kb.host.calls, GetParam().hostCalls);
    EXPECT_TRUE(kb.sink.calls.empty());
}

INSTANTIATE_TEST_SUITE_P(Cases, MacroWordTest,
                         ::testing::Values(WordCase{"{script}", {CMD_EXECUTE_SCRIPT}, {}},
                                           WordCase{"{RECORD}", {CMD_RECORD_SCRIPT}, {}},
                                           WordCase{"{Drag}", {CMD_DRAG_SOMEONE}, {}},
                                           WordCase{"{notes}", {CMD_RUN_NOTEPAD}, {}},
                                           WordCase{"{quit}", {}, {"close"}},
                                           WordCase{"{copy}", {}, {"copychild"}},
                                           WordCase{"{=patrol}", {MM_RUN_SCRIPT}, {}}));

TEST_F(MacroPlayerTest, ClipboardWordsWorkOnTheLine)
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
}

TEST_F(MacroPlayerTest, AWordMustBeTheWholeText)
{
    Play("{quit} now");
    EXPECT_EQ(kb.line.text, "{quit} now");
    EXPECT_TRUE(kb.host.calls.empty());
}

TEST_F(MacroPlayerTest, SaveRemembersTheLineWithoutSending)
{
    kb.Type("cast fireball");
    Play("{save}");
    EXPECT_EQ(kb.line.text, "");
    EXPECT_TRUE(kb.sink.calls.empty());
    EXPECT_STREQ(kb.history.EntryAt(0), "cast fireball");
}

TEST_F(MacroPlayerTest, ScriptNamesOfMacros)
{
    struct Case {
        const char* macro;
        const char* name;
    } cases[] = {{"{=patrol}", "patrol.Stw"}, {"{=walk.txt}", "walk.txt"}, {"{=open", "open.Stw"}};
    std::strcpy(kb.state.ScriptParameters, "kept");
    for (const Case& c : cases) {
        Play(c.macro);
        EXPECT_STREQ(kb.state.ScriptName, c.name) << c.macro;
    }
    EXPECT_STREQ(kb.state.ScriptParameters, "kept");
}

TEST_F(MacroPlayerTest, DotScriptGoesThroughTheTypedEnter)
{
    kb.Type("half");
    Play("{=.hunt rat}");
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_ENTER_KEY});
    EXPECT_EQ(kb.line.text, ".hunt rat");
    EXPECT_EQ(kb.line.start, 0);
    kb.ServeQueue();
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_RUN_SCRIPT});
    EXPECT_STREQ(kb.state.ScriptName, "hunt.Cmd");
    EXPECT_STREQ(kb.state.ScriptParameters, "rat");
    EXPECT_STREQ(kb.history.EntryAt(0), ".hunt rat");
    EXPECT_TRUE(kb.sink.sent.empty());
}

TEST_F(MacroPlayerTest, ExpandMacroLooksTheKeyUp)
{
    kb.macros.SetMacro(KEY_ALT, 'G', "get all");
    kb.player.ExpandMacro(KEY_ALT | KEY_SHIFT, 'G');
    kb.player.ExpandMacro(KEY_CTRL, 'G');
    kb.player.ExpandMacro(0, VK_RETURN);
    EXPECT_EQ(kb.line.text, "get all");
}

} // namespace
} // namespace steward::test
