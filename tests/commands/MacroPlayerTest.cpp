#include "KeyboardDoubles.h"

#include <gtest/gtest.h>

namespace steward::test {
namespace {

using Strings = std::vector<std::string>;

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
        {"a\\\\b", "a\\b"},         {"a\\zb", "ab"}, {"ab\\", "ab"},  {"typed\\Xnew", "new"},
        {"drag \\d!", "drag bob!"}, {"at@", "at"},   {"x\\D", "xbob"}};
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
