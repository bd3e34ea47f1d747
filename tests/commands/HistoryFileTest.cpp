#include "commands/CommandHistory.h"
#include "commands/CommandLineEdit.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward::test {
namespace {

using steward::testing::TempFolder;
using steward::testing::WriteBytes;

std::vector<std::string> Entries(const CommandHistory& history)
{
    std::vector<std::string> entries;
    for (int i = 0; i < history.Count(); ++i)
        entries.push_back(history.EntryAt(i));
    return entries;
}

TEST(HistoryFile, RoundTripKeepsEveryEntryInOrder)
{
    TempFolder folder;
    const std::string path = folder.File("Rook.History");
    CommandHistory typed;
    for (const char* command : {"look", "north", "say hello there", "look"})
        typed.RememberCommand(command, 0);
    ASSERT_TRUE(typed.SaveHistory(path));

    CommandHistory read;
    read.RememberCommand("from before", 0);
    ASSERT_TRUE(read.LoadHistory(path));
    EXPECT_EQ(Entries(read), Entries(typed));
    EXPECT_EQ(read.HistoryPosition(), read.Count());
}

TEST(HistoryFile, DamagedFilesLoadWhatTheyCan)
{
    const std::string longLine(400, 'x');
    struct Case {
        const char* name;
        std::string bytes;
        std::vector<std::string> entries;
    };
    const Case cases[] = {
        {"empty", "", {}},
        {"line feeds alone and no last line end", "look\nnorth\nwest", {"look", "north", "west"}},
        {"binary lines skipped", "look\n\x01\x02\xff\x80garbage\nnorth\r\n", {"look", "north"}},
        {"a NUL spoils its own line only", std::string("lo\0ok\r\nnorth\r\n", 14), {"north"}},
        {"a long line cut to the command line's limit",
         longLine + "\r\nlook\r\n",
         {std::string(COMMAND_LINE_LIMIT, 'x'), "look"}},
        {"repeats and blanks as typed",
         "look\r\nlook\r\n   \r\n  north\r\nlook\r\n",
         {"look", "north", "look"}},
    };
    TempFolder folder;
    const std::string path = folder.File("Rook.History");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        WriteBytes(path, c.bytes);
        CommandHistory history;
        history.RememberCommand("from before", 0);
        ASSERT_TRUE(history.LoadHistory(path));
        EXPECT_EQ(Entries(history), c.entries);
    }
}

TEST(HistoryFile, ALongFileKeepsItsNewestEntriesWithinTheStore)
{
    TempFolder folder;
    const std::string path = folder.File("Rook.History");
    std::string bytes;
    for (int i = 0; i < 50000; ++i)
        bytes += "command number " + std::to_string(i) + "\r\n";
    WriteBytes(path, bytes);
    CommandHistory history;
    ASSERT_TRUE(history.LoadHistory(path));
    const std::vector<std::string> entries = Entries(history);
    ASSERT_FALSE(entries.empty());
    EXPECT_EQ(entries.back(), "command number 49999");
    std::size_t stored = 0;
    for (const std::string& entry : entries)
        stored += entry.size() + 1;
    EXPECT_LT(stored, HISTORY_CAPACITY);
    EXPECT_GT(stored, HISTORY_CAPACITY - 64);
    // Whole entries only: the tail is read from a line's start.
    EXPECT_EQ(entries.front().rfind("command number ", 0), 0u);
}

TEST(HistoryFile, AMissingFileChangesNothing)
{
    TempFolder folder;
    CommandHistory history;
    history.RememberCommand("look", 0);
    EXPECT_FALSE(history.LoadHistory(folder.File("Nobody.History")));
    EXPECT_EQ(Entries(history), std::vector<std::string>{"look"});
}

} // namespace
} // namespace steward::test
