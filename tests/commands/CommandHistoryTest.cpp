#include "KeyboardDoubles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward::test {
namespace {

std::vector<std::string> Entries(const CommandHistory& history)
{
    std::vector<std::string> entries;
    for (int i = 0; i < history.Count(); ++i)
        entries.push_back(history.EntryAt(i));
    return entries;
}

struct RememberCase {
    int minLength;
    std::vector<std::string> typed;
    std::vector<std::string> stored;
};

void PrintTo(const RememberCase& c, std::ostream* out)
{
    *out << "shortest " << c.minLength << ": " << ::testing::PrintToString(c.typed) << " keeps "
         << ::testing::PrintToString(c.stored);
}

class RememberTest : public ::testing::TestWithParam<RememberCase> {};

TEST_P(RememberTest, StoresWhatTheRulesAllow)
{
    CommandHistory history;
    for (const std::string& text : GetParam().typed)
        history.RememberCommand(text.c_str(), GetParam().minLength);
    EXPECT_EQ(Entries(history), GetParam().stored);
    EXPECT_EQ(history.HistoryPosition(), history.Count());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RememberTest,
    ::testing::Values(RememberCase{4, {"look", "n", "go", "kill rat"}, {"look", "kill rat"}},
                      RememberCase{0, {"n", "s"}, {"n", "s"}}, RememberCase{0, {"   ", ""}, {}},
                      RememberCase{4, {"look", "look"}, {"look"}},
                      RememberCase{4, {"look", "LOOK"}, {"look", "LOOK"}},
                      RememberCase{1, {"a", "b", "a"}, {"a", "b", "a"}},
                      RememberCase{4, {" look", "look"}, {"look"}}, RememberCase{4, {"   n  "}, {}},
                      RememberCase{4, {"  look  "}, {"look  "}}));

TEST(CommandHistoryStore, EntryAtCountIsTheEmptyString)
{
    CommandHistory history;
    EXPECT_STREQ(history.EntryAt(0), "");
    history.RememberCommand("look", 4);
    EXPECT_STREQ(history.EntryAt(1), "");
}

TEST(CommandHistoryStore, AFullStoreDropsTheOldestUntilTheNewFits)
{
    CommandHistory history;
    // Entries of 100 bytes with their terminators: 81 fill 8100 of the 8192 bytes.
    for (int i = 0; i < 81; ++i) {
        std::string text(99, 'a' + i % 26);
        text[0] = static_cast<char>('0' + i % 10);
        history.RememberCommand(text.c_str(), 0);
    }
    ASSERT_EQ(history.Count(), 81);
    std::string second = history.EntryAt(1);
    std::string longText(250, 'z');
    history.RememberCommand(longText.c_str(), 0);
    // 8100 + 251 passes the limit: two entries of 100 must go.
    EXPECT_EQ(history.Count(), 80);
    EXPECT_NE(std::string(history.EntryAt(0)), second);
    EXPECT_EQ(std::string(history.EntryAt(79)), longText);
    EXPECT_EQ(history.HistoryPosition(), 80);
}

TEST(CommandHistoryStore, AddRefusesAtTheLimit)
{
    CommandHistory history;
    std::string text(HISTORY_CAPACITY, 'x');
    EXPECT_FALSE(history.Add(text.c_str()));
    text.pop_back();
    EXPECT_TRUE(history.Add(text.c_str()));
    EXPECT_EQ(history.Count(), 1);
}

TEST(CommandHistoryStore, RemoveAtClosesTheGap)
{
    CommandHistory history;
    for (const char* text : {"one", "two", "three"})
        history.Add(text);
    history.RemoveAt(1);
    EXPECT_EQ(Entries(history), (std::vector<std::string>{"one", "three"}));
    history.RemoveAt(5);
    EXPECT_EQ(history.Count(), 2);
}

class BrowsingTest : public ::testing::Test {
  protected:
    BrowsingTest()
    {
        for (const char* text : {"look", "kill rat", "inventory"})
            history.RememberCommand(text, 4);
    }
    CommandHistory history;
    EditLine line;
    RecordingSink sink;
};

TEST_F(BrowsingTest, UpWalksBackAndStopsAtTheOldest)
{
    line.text = "half typed";
    history.HistoryPrevious(line);
    EXPECT_EQ(line.text, "inventory");
    EXPECT_EQ(line.start, 9);
    EXPECT_EQ(line.end, 9);
    history.HistoryPrevious(line);
    history.HistoryPrevious(line);
    EXPECT_EQ(line.text, "look");
    history.HistoryPrevious(line);
    EXPECT_EQ(line.text, "look");
    EXPECT_EQ(history.HistoryPosition(), 0);
}

TEST_F(BrowsingTest, DownBehindTheNewestEmptiesTheLine)
{
    history.HistoryPrevious(line);
    history.HistoryNext(line);
    EXPECT_EQ(line.text, "");
    EXPECT_EQ(history.HistoryPosition(), 3);
    line.text = "typed";
    history.HistoryNext(line);
    EXPECT_EQ(line.text, "");
    EXPECT_EQ(history.HistoryPosition(), 3);
}

TEST(CommandHistoryBrowsing, UpOnAnEmptyHistoryKeepsTheLine)
{
    CommandHistory history;
    EditLine line;
    line.text = "typed";
    history.HistoryPrevious(line);
    EXPECT_EQ(line.text, "typed");
}

TEST_F(BrowsingTest, RepeatCountsFromTheBrowsingPlace)
{
    history.RepeatCommand(1, sink);
    history.RepeatCommand(2, sink);
    EXPECT_EQ(sink.sent, (std::vector<std::string>{"inventory", "kill rat"}));
    history.HistoryPrevious(line);
    history.HistoryPrevious(line);
    sink.sent.clear();
    sink.calls.clear();
    history.RepeatCommand(1, sink);
    EXPECT_EQ(sink.sent, (std::vector<std::string>{"look"}));
    EXPECT_EQ(history.HistoryPosition(), 1);
    EXPECT_EQ(sink.calls, (std::vector<std::string>{"echo look", "send look"}));
}

TEST_F(BrowsingTest, RepeatBeyondTheStartDoesNothing)
{
    history.HistoryPrevious(line);
    history.HistoryPrevious(line);
    history.RepeatCommand(2, sink);
    EXPECT_TRUE(sink.calls.empty());
}

} // namespace
} // namespace steward::test
