#include "KeyboardDoubles.h"
#include "support/TempFolder.h"
#include "support/TraceRecorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <random>
#include <sstream>

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

// The history as a list of strings: the oldest go while the texts with their terminators
// would reach the capacity.
struct HistoryModel {
    std::deque<std::string> entries;
    int position = 0, drops = 0;

    int Count() const { return static_cast<int>(entries.size()); }
    std::string At(int index) const { return index >= 0 && index < Count() ? entries[index] : ""; }
    bool Add(const std::string& text)
    {
        std::size_t used = text.size();
        for (const std::string& entry : entries)
            used += entry.size() + 1;
        return used < HISTORY_CAPACITY && (entries.push_back(text), true);
    }
    void Remember(std::string text, int minLength)
    {
        text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
        if (text.empty() || static_cast<int>(text.size()) < minLength || At(Count() - 1) == text)
            return;
        while (!Add(text))
            entries.pop_front(), ++drops;
        position = Count();
    }
};

TEST(CommandHistory, BehavesAsAListOfStringsUnderRandomUse)
{
    std::mt19937 random(19);
    const char* words[] = {"look", "n", "LOOK", "  look", "   ", "", "kill rat", "  go  "};
    CommandHistory history;
    HistoryModel model;
    EditLine line;
    line.SetText("typed");
    history.RememberCommand("look", 0);
    history.RememberCommand("look", 0);
    ASSERT_EQ(history.Count(), 1) << "the only entry is the newest too";
    model.Remember("look", 0);
    for (int step = 0; step < 6000; ++step) {
        SCOPED_TRACE(::testing::Message() << "seed 19 step " << step);
        std::string text = words[random() % 8];
        if (random() % 3 == 0)
            text =
                std::string(1 + random() % 3, ' ') + std::string(random() % 250, 'a' + step % 26);
        const int count = model.Count(), number = static_cast<int>(random() % 6);
        RecordingSink sink;
        bool shown = false;
        switch (random() % 8) {
        case 0:
        case 1:
        case 2:
            history.RememberCommand(text.c_str(), number);
            model.Remember(text, number);
            break;
        case 3:
            for (int k = random() % 2 ? 1 : static_cast<int>(random() % 150); k > 0; --k) {
                shown |= model.position > 0;
                model.position -= model.position > 0;
                history.HistoryPrevious(line);
            }
            break;
        case 4:
            shown = true;
            model.position = std::min(model.position + 1, count);
            history.HistoryNext(line);
            break;
        case 5: {
            history.RepeatCommand(number - 1, sink);
            const std::string sent = model.At(model.position - number + 1);
            const bool hit = number > 1 && model.position >= number - 1;
            EXPECT_EQ(sink.calls, (hit ? Strings{"echo " + sent, "send " + sent} : Strings{}));
            break;
        }
        case 6:
            // Now and then everything goes, so that short histories come often too.
            for (int k = step % 500 < 10 ? count : 1; k > 0; --k) {
                const int index = static_cast<int>(random() % (model.Count() + 3)) - 1;
                history.RemoveAt(index);
                if (index >= 0 && index < model.Count())
                    model.entries.erase(model.entries.begin() + index);
            }
            break;
        default:
            text += std::string(number == 0 ? 8000 : 0, 'w');
            EXPECT_EQ(history.Add(text.c_str()), model.Add(text));
            history.ResetHistoryPosition();
            model.position = model.Count();
        }
        ASSERT_EQ(history.Count(), model.Count());
        ASSERT_EQ(history.HistoryPosition(), model.position);
        for (int i = step % 8 ? count : 0; i <= history.Count(); ++i)
            ASSERT_EQ(history.EntryAt(i), model.At(i)) << "entry " << i;
        EXPECT_EQ(line.text, shown ? model.At(model.position) : "typed");
        EXPECT_EQ(line.start, shown ? std::min<int>(line.text.size(), HISTORY_CARET_END) : 0);
        line.SetText("typed");
    }
    EXPECT_GT(model.drops, 100) << "the store was full often";
}

// A saved history loads as its printable lines, each cut to the command line's limit, typed
// again in order; a long file is read from a line end near its tail.
HistoryModel LoadedModel(std::string bytes)
{
    if (bytes.size() > HISTORY_FILE_TAIL)
        bytes.erase(0, bytes.find('\n', bytes.size() - HISTORY_FILE_TAIL) + 1);
    HistoryModel model;
    std::istringstream in(bytes);
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (std::all_of(line.begin(), line.end(), [](char c) { return c >= 0x20 && c <= 0x7E; }))
            model.Remember(line.substr(0, COMMAND_LINE_LIMIT), 0);
    }
    return model;
}

TEST(HistoryFile, FilesLoadAsTheirLinesTypedAgainAndRoundTrip)
{
    testing::TempFolder folder;
    const std::string path = folder.File("Rook.History");
    CommandHistory history;
    history.RememberCommand("from before", 0);
    EXPECT_FALSE(history.LoadHistory(folder.File("Nobody.History")));
    EXPECT_EQ(Entries(history), Strings{"from before"}) << "nothing changed without a file";
    const std::string longLine(400, 'x'), nul("lo\0ok", 5);
    const std::string lines[] = {"look", "look",   "  north",  "   ",  "",  "say hello there",
                                 "LOOK", longLine, "\x1funit", "a\rb", nul, "rub\x7f"};
    std::mt19937 random(29);
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(::testing::Message() << "seed 29 round " << round);
        std::string bytes;
        for (int n = round % 10 == 9 ? 9000 : static_cast<int>(random() % 12); n > 0; --n)
            bytes +=
                (n % 500 ? lines[random() % std::size(lines)] : "command " + std::to_string(n)) +
                (random() % 2 ? "\r\n" : "\n");
        if (random() % 3 == 0)
            bytes += lines[random() % std::size(lines)] + (random() % 2 ? "\r" : "");
        testing::WriteBytes(path, bytes);
        ASSERT_TRUE(history.LoadHistory(path));
        const HistoryModel model = LoadedModel(bytes);
        EXPECT_EQ(Entries(history), Strings(model.entries.begin(), model.entries.end()));
        EXPECT_EQ(history.HistoryPosition(), history.Count());
        ASSERT_TRUE(history.SaveHistory(path));
        std::string saved;
        for (const std::string& entry : model.entries)
            saved += entry + "\r\n";
        EXPECT_EQ(testing::ReadBytes(path), saved);
    }
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
