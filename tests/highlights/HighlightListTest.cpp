#include "highlights/HighlightList.h"
#include "HighlightDoubles.h"
#include "base/FrameCommand.h"
#include "highlights/HighlightStore.h"
#include "support/TraceRecorder.h"

#include <gtest/gtest.h>

#include <set>

namespace steward::testing {
namespace {

using Strings = std::vector<std::string>;

// The entries in use, as "colour:text", up to the first free slot.
Strings EntriesInUse(const HighlightList& list)
{
    Strings out;
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS && list.Text(i)[0] != '\0'; ++i)
        out.push_back(std::to_string(list.Color(i)) + ":" + list.Text(i));
    return out;
}

TEST(HighlightListStore, SlotsTakeTextsUpToTheMaximumAndAddFillsTheFirstFree)
{
    HighlightList list;
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS; ++i) {
        ASSERT_STREQ(list.Text(i), "");
        ASSERT_EQ(list.Color(i), HIGHLIGHT_DEFAULT_COLOR);
    }
    const std::string longest(HIGHLIGHT_TEXT_MAX, 'a');
    list.SetText(5, longest.c_str());
    EXPECT_EQ(list.Text(5), longest);
    list.SetText(6, (longest + "b").c_str());
    EXPECT_STREQ(list.Text(6), "");
    const auto version = list.Version();
    list.SetText(HIGHLIGHT_SLOTS, "out of range");
    list.SetColor(HIGHLIGHT_SLOTS, 7);
    EXPECT_EQ(list.Version(), version) << "a slot out of range changes nothing";
    list.Add("Mara", 3);
    list.Add(std::string(HIGHLIGHT_TEXT_MAX + 1, 'x').c_str(), 9);
    EXPECT_EQ(list.Color(1), 9) << "a refused text still leaves its colour";
    list.Add("Tam", 5);
    EXPECT_EQ(EntriesInUse(list), (Strings{"3:Mara", "5:Tam"}));
    list.Clear();
    EXPECT_STREQ(list.Text(0), "");
    EXPECT_EQ(list.Color(0), 3) << "clear keeps the colours";
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS; ++i)
        list.Add(("w" + std::to_string(i)).c_str(), 1);
    list.Add("one too many", 2);
    EXPECT_EQ(EntriesInUse(list).size(), HIGHLIGHT_SLOTS);
    EXPECT_STREQ(list.Text(HIGHLIGHT_SLOTS - 1), "w4095");
}

TEST(HighlightListStore, EveryListAndEveryChangeHasAVersionOfItsOwn)
{
    HighlightList list, other;
    std::set<std::uint64_t> versions = {list.Version(), other.Version()};
    list.Add("Mara", 1);
    versions.insert(list.Version());
    list.SetColor(0, 2);
    versions.insert(list.Version());
    HighlightList copy = list;
    versions.insert(copy.Version());
    list = copy;
    versions.insert(list.Version());
    EXPECT_EQ(versions.size(), 6u);
    EXPECT_STREQ(list.Text(0), "Mara");
}

TEST(HighlightListFile, SaveWritesOneQuotedLinePerEntryAndRoundTrips)
{
    TempFolder folder;
    const std::string path = folder.File("Hero.Highlights");
    HighlightList list;
    list.SetColor(0, 14);
    list.SetText(0, "{gong}*Attention");
    list.SetColor(2, 0x1E); // slot 1 stays free: the file has no gap
    list.SetText(2, "say \"hi\"");
    list.SetColor(3, 7);
    list.SetText(3, "$@Mara");
    ASSERT_TRUE(list.Save(path.c_str()));
    EXPECT_EQ(ReadBytes(path), "014 \"{gong}*Attention\"\n030 \"say \"hi\"\"\n007 \"$@Mara\"\n");
    list.Clear();
    list.Add("{Chime}$*@Kill", 0xFF);
    list.Add("\"quoted\" words", 0);
    list.Add(std::string(HIGHLIGHT_TEXT_MAX, 'z').c_str(), 0x10);
    ASSERT_TRUE(list.Save(path.c_str()));
    HighlightList loaded;
    loaded.Load(path.c_str());
    EXPECT_EQ(EntriesInUse(loaded), EntriesInUse(list));
    loaded.Load(folder.File("Nobody.Names").c_str());
    EXPECT_TRUE(EntriesInUse(loaded).empty()) << "a missing file empties the list";
    EXPECT_TRUE(list.Save("")) << "no path, nothing to save";
    EXPECT_FALSE(list.Save(folder.File("no/such/folder.Names").c_str()));
}

TEST(HighlightListFile, LoadReadsOnlyWellFormedLines)
{
    const struct {
        const char* line;
        const char* expected; // "" when the line takes no slot
    } rows[] = {{"014 \"Attention\"\n", "14:Attention"},
                {"14 \"Text\"\n", ""},
                {"014 Text\"\n", ""},
                {"014 \"open\n", ""},
                {"01 \"\n", ""},
                {"300 \"wrapped\"\n", "44:wrapped"},
                {"014 \"say \"hi\" now\" trailing junk\n", "14:say \"hi\" now"},
                {"014 \"crlf\"\r\n", "14:crlf"},
                {"abc \"bad digits\"\n", "0:bad digits"},
                {"014 \"no line end\"", "14:no line end"}};
    TempFolder folder;
    const std::string path = folder.File("One.Highlights");
    for (const auto& row : rows) {
        WriteBytes(path, row.line);
        HighlightList list;
        list.Add("left over", 1);
        list.Load(path.c_str());
        EXPECT_EQ(EntriesInUse(list), *row.expected ? Strings{row.expected} : Strings{})
            << row.line;
    }
    WriteBytes(path, "001 \"first\"\n002 \"\"\n003 \"third\"\n004 \"" +
                         std::string(HIGHLIGHT_TEXT_MAX + 1, 'x') + "\"\n005 \"fifth\"\n");
    HighlightList list;
    list.Load(path.c_str());
    EXPECT_EQ(EntriesInUse(list), Strings{"1:first"}) << "empty or long texts end the run";
    EXPECT_STREQ(list.Text(2), "third");
    EXPECT_STREQ(list.Text(3), "");
    EXPECT_STREQ(list.Text(4), "fifth");
    ASSERT_TRUE(list.Save(path.c_str()));
    list.Load(path.c_str());
    EXPECT_EQ(EntriesInUse(list), (Strings{"1:first", "3:third", "5:fifth"}))
        << "a save closes gaps";
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += "001 \"entry" + std::to_string(i) + "\"\n";
    WriteBytes(path, bytes);
    list.Load(path.c_str());
    EXPECT_EQ(EntriesInUse(list).size(), HIGHLIGHT_SLOTS) << "only the first slots are used";
    EXPECT_STREQ(list.Text(HIGHLIGHT_SLOTS - 1), "entry4095");
}

TEST(CopySpecial, EachClipboardLineBecomesAnEntryOfTheCommandsList)
{
    const struct {
        std::string clip;
        std::vector<std::string> added;
    } cases[] = {{"Mara", {"Mara"}},
                 {"M\nTam", {"M", "Tam"}},
                 {"Mara\r\nTam\n\nOld Bob\r", {"Mara", "Tam", "Old Bob"}},
                 {"$*@Mara", {"$*@Mara"}},
                 {std::string(80, 'a'), {std::string(80, 'a')}},
                 {std::string(81, 'b') + "\nTam", {"Tam"}},
                 {std::string(300, 'c') + "\nTam", {"Tam"}},
                 {"", {}}};
    for (const auto& c : cases) {
        HighlightStore lists;
        lists.NameHighlights.Add("Old", 3);
        FakeClipboard clipboard;
        clipboard.text = c.clip;
        EXPECT_TRUE(lists.CopyToHighlights(CMD_COPY_TO_NAME_HIGHLIGHTS, clipboard));
        std::vector<std::string> added;
        for (std::size_t i = 1; lists.NameHighlights.Text(i)[0] != '\0'; ++i) {
            added.emplace_back(lists.NameHighlights.Text(i));
            EXPECT_EQ(lists.NameHighlights.Color(i), HIGHLIGHT_DEFAULT_COLOR);
        }
        EXPECT_EQ(added, c.added) << c.clip;
        EXPECT_STREQ(lists.StringHighlights.Text(0), "");
    }
    HighlightStore lists;
    FakeClipboard clipboard;
    clipboard.text = "Mara";
    clipboard.available = false;
    lists.CopyToHighlights(CMD_COPY_TO_STRING_HIGHLIGHTS, clipboard);
    EXPECT_STREQ(lists.StringHighlights.Text(0), "");
    clipboard.available = true;
    EXPECT_FALSE(lists.CopyToHighlights(1106, clipboard));
    EXPECT_TRUE(lists.CopyToHighlights(CMD_COPY_TO_STRING_HIGHLIGHTS, clipboard));
    EXPECT_STREQ(lists.StringHighlights.Text(0), "Mara");
}

TEST(HighlightStoreTest, LoadAndSaveUseTwoFilesAndTraceEach)
{
    TempFolder folder;
    const std::string strings = folder.File("Hero.Highlights");
    const std::string names = folder.File("Hero.Names");
    TraceRecorder trace;
    {
        HighlightStore lists;
        lists.StringHighlights.Add("{gong}*Attention", 14);
        lists.NameHighlights.Add("Mara", 0x1E);
        ASSERT_TRUE(lists.Save(strings, names));
    }
    EXPECT_EQ(trace.Lines, (std::vector<std::string>{"HIGHLIGHTS: Saving to \"" + strings + "\"\n",
                                                     "HIGHLIGHTS: Saving to \"" + names + "\"\n"}));
    EXPECT_EQ(ReadBytes(names), "030 \"Mara\"\n");
    trace.Lines.clear();
    HighlightStore lists;
    lists.NameHighlights.Add("stale", 1);
    lists.Load(strings, names);
    EXPECT_EQ(trace.Lines.front(), "HIGHLIGHTS: Loading from \"" + strings + "\"\n");
    EXPECT_STREQ(lists.StringHighlights.Text(0), "{gong}*Attention");
    EXPECT_STREQ(lists.NameHighlights.Text(0), "Mara");
    lists.Load(folder.File("Nobody.Highlights"), folder.File("Nobody.Names"));
    EXPECT_STREQ(lists.NameHighlights.Text(0), "") << "a character with no files has no entries";
}

} // namespace
} // namespace steward::testing
