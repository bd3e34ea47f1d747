#include "KeyboardDoubles.h"
#include "support/TraceRecorder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace steward::test {
namespace {

using Strings = std::vector<std::string>;

class EnterRoadTest : public ::testing::Test {
  protected:
    void Enter(const std::string& typed, bool remember = true)
    {
        kb.line.SetText(typed.c_str());
        kb.sender.EnterKey(remember);
    }
    KeyboardBench kb;
};

TEST_F(EnterRoadTest, SendsEchoesEmptiesAndRecordsInOrder)
{
    kb.line.start = kb.line.end = 0;
    TraceRecorder trace;
    Enter("look");
    EXPECT_EQ(kb.sink.calls, (Strings{"echo look", "pending", "send look", "record look"}));
    EXPECT_EQ(kb.line.text, "");
    EXPECT_EQ(kb.line.focused, 1);
    EXPECT_STREQ(kb.history.EntryAt(0), "look");
    EXPECT_EQ(trace.Lines, Strings{"Exiting MM_ENTER_KEY\n"});
}

TEST_F(EnterRoadTest, ContactAndEscapeRewrites)
{
    Enter("bob:hello");
    Enter("say \x1b[1mhi");
    Enter(".cmd a:b", false);
    EXPECT_EQ(kb.sink.sent, (Strings{"contact bob hello", "say  [1mhi"}));
}

TEST_F(EnterRoadTest, AnEmptyLineIsSent)
{
    Enter("");
    EXPECT_EQ(kb.sink.sent, Strings{""});
    EXPECT_EQ(kb.history.Count(), 0);
}

TEST_F(EnterRoadTest, PrefixRunsACommandScript)
{
    kb.line.SetText(".hunt rat \"big one\"");
    kb.sender.EnterKey(false);
    EXPECT_STREQ(kb.state.ScriptName, "hunt.Cmd");
    EXPECT_STREQ(kb.state.ScriptParameters, "rat \"big one\"");
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_RUN_SCRIPT});
    EXPECT_EQ(kb.sink.calls, Strings{"echo .hunt rat \"big one\""});
    EXPECT_STREQ(kb.history.EntryAt(0), ".hunt rat \"big one\"");
    EXPECT_EQ(kb.line.text, "");
}

TEST_F(EnterRoadTest, ScriptNamesOfTypedLines)
{
    struct Case {
        const char* typed;
        const char* name;
        const char* parameters;
    } cases[] = {{".walk", "walk.Cmd", ""},
                 {".walk.txt  n", "walk.txt", " n"},
                 {". x", ".Cmd", "x"},
                 {"!go", "go.Cmd", ""}};
    kb.options.CommandPrefix = '!';
    Enter(".walk");
    EXPECT_EQ(kb.sink.sent, Strings{".walk"});
    kb.options.CommandPrefix = '.';
    for (const Case& c : cases) {
        if (c.typed[0] == '!')
            kb.options.CommandPrefix = '!';
        Enter(c.typed);
        EXPECT_STREQ(kb.state.ScriptName, c.name) << c.typed;
        EXPECT_STREQ(kb.state.ScriptParameters, c.parameters) << c.typed;
    }
}

TEST_F(EnterRoadTest, ANulPrefixNeverTurnsAnEmptyLineIntoAScript)
{
    kb.options.CommandPrefix = 0;
    Enter("");
    EXPECT_EQ(kb.sink.sent, Strings{""});
    EXPECT_TRUE(kb.queue.commands.empty());
}

TEST_F(EnterRoadTest, DraggingRewritesMovesButHistoryKeepsThePlainMove)
{
    kb.options.MinCommandLength = 0;
    std::strcpy(kb.state.DragTarget, "bob");
    Enter("n");
    Enter("go gate");
    Enter("GO  door");
    Enter("goat");
    EXPECT_EQ(kb.sink.sent, (Strings{"drag bob n", "drag bob gate", "drag bob  door", "goat"}));
    EXPECT_STREQ(kb.history.EntryAt(0), "n");
    EXPECT_STREQ(kb.history.EntryAt(1), "drag bob gate");
    EXPECT_EQ(kb.sink.calls[3], "record drag bob n");
}

TEST_F(EnterRoadTest, PostedEnterKeysKeepTheirRememberFlagsInOrder)
{
    kb.sender.PostEnterKey(false);
    kb.sender.PostEnterKey(true);
    EXPECT_EQ(kb.queue.commands, (std::vector<int>{MM_ENTER_KEY, MM_ENTER_KEY}));
    kb.line.SetText("first");
    kb.sender.EnterKey();
    kb.line.SetText("second");
    kb.sender.EnterKey();
    kb.line.SetText("third");
    kb.sender.EnterKey();
    EXPECT_EQ(kb.history.Count(), 2);
    EXPECT_STREQ(kb.history.EntryAt(0), "second");
}

TEST_F(EnterRoadTest, ScriptedLinesTakeTheShortRoad)
{
    std::strcpy(kb.state.DragTarget, "bob");
    kb.line.SetText("typed");
    kb.sender.SendScripted("n");
    EXPECT_EQ(kb.sink.calls, (Strings{"pending", "echo n", "send n"}));
    EXPECT_EQ(kb.line.text, "typed");
    EXPECT_EQ(kb.line.focused, 1);
}

TEST_F(EnterRoadTest, SendingResetsTheBrowsingPlace)
{
    kb.history.RememberCommand("look", 4);
    kb.history.RememberCommand("kill rat", 4);
    kb.history.HistoryPrevious(kb.line);
    kb.sender.SendCommand("x");
    EXPECT_EQ(kb.history.HistoryPosition(), 2);
}

} // namespace
} // namespace steward::test
