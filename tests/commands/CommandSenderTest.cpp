#include "KeyboardDoubles.h"
#include "support/TraceRecorder.h"

#include <gtest/gtest.h>

namespace steward::test {
namespace {

using Strings = std::vector<std::string>;

class EnterRoadTest : public ::testing::Test {
  protected:
    // Without a flag, as the switchboard serves a posted Enter key.
    void Enter(const std::string& typed, int remember = -1)
    {
        kb.line.SetText(typed.c_str());
        if (remember < 0)
            kb.sender.EnterKey();
        else
            kb.sender.EnterKey(remember != 0);
    }
    KeyboardBench kb;
};

TEST_F(EnterRoadTest, SendsEchoesEmptiesAndRecordsInOrder)
{
    TraceRecorder trace;
    Enter("look");
    EXPECT_EQ(kb.sink.calls, (Strings{"echo look", "pending", "send look", "record look"}));
    EXPECT_EQ(kb.line.text, "");
    EXPECT_EQ(kb.line.focused, 1);
    EXPECT_STREQ(kb.history.EntryAt(0), "look");
    EXPECT_EQ(trace.Lines, Strings{"Exiting MM_ENTER_KEY\n"});
    Enter("bob:hello");
    Enter("say \x1b[1mhi");
    Enter(".cmd a:b", 0);
    kb.options.CommandPrefix = 0; // a NUL prefix never turns an empty line into a script
    Enter("");
    EXPECT_EQ(kb.sink.sent, (Strings{"look", "contact bob hello", "say  [1mhi", ""}));
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_RUN_SCRIPT});
}

TEST_F(EnterRoadTest, PrefixRunsACommandScript)
{
    Enter(".hunt rat \"big one\"", 0);
    EXPECT_STREQ(kb.state.ScriptName, "hunt.Cmd");
    EXPECT_STREQ(kb.state.ScriptParameters, "rat \"big one\"");
    EXPECT_EQ(kb.queue.commands, std::vector<int>{MM_RUN_SCRIPT});
    EXPECT_EQ(kb.sink.calls, Strings{"echo .hunt rat \"big one\""});
    EXPECT_STREQ(kb.history.EntryAt(0), ".hunt rat \"big one\"");
    EXPECT_EQ(kb.line.text, "");
    const struct {
        const char *typed, *name, *parameters;
    } rows[] = {{".walk.txt  n", "walk.txt", " n"}, {". x", ".Cmd", "x"}, {"!go", "go.Cmd", ""}};
    for (const auto& row : rows) {
        kb.options.CommandPrefix = row.typed[0];
        Enter(row.typed);
        EXPECT_STREQ(kb.state.ScriptName, row.name) << row.typed;
        EXPECT_STREQ(kb.state.ScriptParameters, row.parameters) << row.typed;
    }
    Enter(".walk");
    EXPECT_EQ(kb.sink.sent, Strings{".walk"}) << "only the set prefix runs a script";
}

TEST_F(EnterRoadTest, DraggingRewritesMovesButHistoryKeepsThePlainMove)
{
    kb.options.MinCommandLength = 0;
    std::strcpy(kb.state.DragTarget, "bob");
    for (const char* typed : {"n", "go gate", "GO  door", "goat"})
        Enter(typed);
    EXPECT_EQ(kb.sink.sent, (Strings{"drag bob n", "drag bob gate", "drag bob  door", "goat"}));
    EXPECT_STREQ(kb.history.EntryAt(0), "n");
    EXPECT_STREQ(kb.history.EntryAt(1), "drag bob gate");
    EXPECT_EQ(kb.sink.calls[3], "record drag bob n");
    kb.sink = {};
    kb.line.SetText("typed");
    kb.sender.SendScripted("n");
    EXPECT_EQ(kb.sink.calls, (Strings{"pending", "echo n", "send n"})) << "the short road";
    EXPECT_EQ(kb.line.text, "typed");
    EXPECT_EQ(kb.line.focused, 5);
}

TEST_F(EnterRoadTest, PostedEnterKeysKeepTheirRememberFlagsInOrder)
{
    kb.sender.PostEnterKey(false);
    kb.sender.PostEnterKey(true);
    EXPECT_EQ(kb.queue.commands, (std::vector<int>{MM_ENTER_KEY, MM_ENTER_KEY}));
    for (const char* typed : {"first", "second", "third"})
        Enter(typed);
    EXPECT_EQ(kb.history.Count(), 2);
    EXPECT_STREQ(kb.history.EntryAt(0), "second");
    kb.history.HistoryPrevious(kb.line);
    kb.sender.SendCommand("x");
    EXPECT_EQ(kb.history.HistoryPosition(), 2) << "sending resets the browsing place";
}

} // namespace
} // namespace steward::test
