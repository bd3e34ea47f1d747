#include "KeyboardDoubles.h"
#include "support/TempFolder.h"
#include "support/TraceRecorder.h"

#include <gtest/gtest.h>

namespace steward::test {
namespace {

using Strings = std::vector<std::string>;

Strings Entries(const CommandHistory& history)
{
    Strings entries;
    for (int i = 0; i < history.Count(); ++i)
        entries.push_back(history.EntryAt(i));
    return entries;
}

TEST(CommandHistory, RemembersWhatTheRulesAllow)
{
    const struct {
        int minLength;
        Strings typed, stored;
    } rows[] = {{4, {"look", "n", "go", "kill rat"}, {"look", "kill rat"}},
                {0, {"n", "s"}, {"n", "s"}},
                {0, {"   ", ""}, {}},
                {4, {"look", "look"}, {"look"}},
                {4, {"look", "LOOK"}, {"look", "LOOK"}},
                {1, {"a", "b", "a"}, {"a", "b", "a"}},
                {4, {" look", "look"}, {"look"}},
                {4, {"   n  "}, {}},
                {4, {"  look  "}, {"look  "}}};
    for (const auto& row : rows) {
        CommandHistory history;
        for (const std::string& text : row.typed)
            history.RememberCommand(text.c_str(), row.minLength);
        EXPECT_EQ(Entries(history), row.stored) << ::testing::PrintToString(row.typed);
        EXPECT_EQ(history.HistoryPosition(), history.Count());
    }
}

TEST(CommandHistory, TheStoreDropsTheOldestAndRefusesAtItsLimit)
{
    CommandHistory history;
    EXPECT_STREQ(history.EntryAt(0), "");
    // Entries of 100 bytes with their terminators: 81 fill 8100 of the 8192 bytes.
    for (int i = 0; i < 81; ++i) {
        std::string text(99, 'a' + i % 26);
        text[0] = static_cast<char>('0' + i % 10);
        history.RememberCommand(text.c_str(), 0);
    }
    EXPECT_STREQ(history.EntryAt(81), "");
    const std::string second = history.EntryAt(1), longText(250, 'z');
    history.RememberCommand(longText.c_str(), 0);
    // 8100 + 251 passes the limit: two entries of 100 must go.
    EXPECT_EQ(history.Count(), 80);
    EXPECT_NE(std::string(history.EntryAt(0)), second);
    EXPECT_EQ(history.EntryAt(79), longText);
    EXPECT_EQ(history.HistoryPosition(), 80);

    CommandHistory added;
    std::string text(HISTORY_CAPACITY, 'x');
    EXPECT_FALSE(added.Add(text.c_str()));
    text.pop_back();
    EXPECT_TRUE(added.Add(text.c_str()));
    EXPECT_EQ(added.Count(), 1);
    added.RemoveAt(0);
    for (const char* more : {"one", "two", "three"})
        added.Add(more);
    added.RemoveAt(1);
    added.RemoveAt(5);
    EXPECT_EQ(Entries(added), (Strings{"one", "three"}));
}

TEST(CommandHistory, BrowsingWalksTheEntriesAndRepeatCountsFromThere)
{
    CommandHistory history;
    EditLine line;
    RecordingSink sink;
    line.text = "typed";
    history.HistoryPrevious(line);
    EXPECT_EQ(line.text, "typed") << "nothing to recall";
    for (const char* text : {"look", "kill rat", "inventory"})
        history.RememberCommand(text, 4);
    history.RepeatCommand(1, sink);
    history.RepeatCommand(2, sink);
    EXPECT_EQ(sink.sent, (Strings{"inventory", "kill rat"}));
    history.HistoryPrevious(line);
    EXPECT_EQ(line.text, "inventory");
    EXPECT_EQ(line.start, 9);
    EXPECT_EQ(line.end, 9);
    history.HistoryPrevious(line);
    sink = {};
    history.RepeatCommand(1, sink);
    history.RepeatCommand(2, sink);
    EXPECT_EQ(sink.calls, (Strings{"echo look", "send look"})) << "nothing before the oldest";
    EXPECT_EQ(history.HistoryPosition(), 1);
    history.HistoryPrevious(line);
    history.HistoryPrevious(line);
    EXPECT_EQ(line.text, "look");
    EXPECT_EQ(history.HistoryPosition(), 0);
    history.HistoryNext(line);
    history.HistoryNext(line);
    history.HistoryNext(line);
    EXPECT_EQ(line.text, "");
    EXPECT_EQ(history.HistoryPosition(), 3);
    line.text = "typed";
    history.HistoryNext(line);
    EXPECT_EQ(line.text, "");
    EXPECT_EQ(history.HistoryPosition(), 3);
}

TEST(HistoryFile, FilesLoadWhatTheyCanAndRoundTrip)
{
    testing::TempFolder folder;
    const std::string path = folder.File("Rook.History");
    CommandHistory history;
    history.RememberCommand("from before", 0);
    EXPECT_FALSE(history.LoadHistory(folder.File("Nobody.History")));
    EXPECT_EQ(Entries(history), Strings{"from before"});
    for (const char* command : {"look", "north", "say hello there", "look"})
        history.RememberCommand(command, 0);
    ASSERT_TRUE(history.SaveHistory(path));
    CommandHistory read;
    read.RememberCommand("other", 0);
    ASSERT_TRUE(read.LoadHistory(path));
    EXPECT_EQ(Entries(read), Entries(history));
    EXPECT_EQ(read.HistoryPosition(), read.Count());

    const struct {
        const char* name;
        std::string bytes;
        Strings entries;
    } rows[] = {
        {"empty", "", {}},
        {"line feeds alone and no last line end", "look\nnorth\nwest", {"look", "north", "west"}},
        {"binary lines skipped", "look\n\x01\x02\xff\x80garbage\nnorth\r\n", {"look", "north"}},
        {"a NUL spoils its own line only", std::string("lo\0ok\r\nnorth\r\n", 14), {"north"}},
        {"a long line cut to the command line's limit",
         std::string(400, 'x') + "\r\nlook\r\n",
         {std::string(COMMAND_LINE_LIMIT, 'x'), "look"}},
        {"repeats and blanks as typed",
         "look\r\nlook\r\n   \r\n  north\r\nlook\r\n",
         {"look", "north", "look"}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        testing::WriteBytes(path, row.bytes);
        ASSERT_TRUE(history.LoadHistory(path));
        EXPECT_EQ(Entries(history), row.entries);
    }
}

TEST(HistoryFile, ALongFileKeepsItsNewestWholeEntriesWithinTheStore)
{
    testing::TempFolder folder;
    std::string bytes;
    for (int i = 0; i < 50000; ++i)
        bytes += "command number " + std::to_string(i) + "\r\n";
    testing::WriteBytes(folder.File("Rook.History"), bytes);
    CommandHistory history;
    ASSERT_TRUE(history.LoadHistory(folder.File("Rook.History")));
    const Strings entries = Entries(history);
    ASSERT_FALSE(entries.empty());
    EXPECT_EQ(entries.back(), "command number 49999");
    std::size_t stored = 0;
    for (const std::string& entry : entries)
        stored += entry.size() + 1;
    EXPECT_LT(stored, HISTORY_CAPACITY);
    EXPECT_GT(stored, HISTORY_CAPACITY - 64);
    EXPECT_EQ(entries.front().rfind("command number ", 0), 0u);
}

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
