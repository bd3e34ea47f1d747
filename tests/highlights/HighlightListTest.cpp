#include "highlights/HighlightList.h"
#include "HighlightDoubles.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace steward::testing {
namespace {

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

void WriteFile(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

// The entries in use, as "colour:text", up to the first free slot.
std::vector<std::string> EntriesInUse(const HighlightList& list)
{
    std::vector<std::string> out;
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS && list.Text(i)[0] != '\0'; ++i) {
        char entry[HIGHLIGHT_SLOT_SIZE + 8];
        std::snprintf(entry, sizeof entry, "%d:%s", list.Color(i), list.Text(i));
        out.emplace_back(entry);
    }
    return out;
}

TEST(HighlightListStore, ANewListIsEmptyWithTheDefaultColour)
{
    HighlightList list;
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS; ++i) {
        ASSERT_STREQ(list.Text(i), "");
        ASSERT_EQ(list.Color(i), HIGHLIGHT_DEFAULT_COLOR);
    }
}

TEST(HighlightListStore, SetTextRefusesTextsLongerThanTheMaximum)
{
    HighlightList list;
    const std::string longest(HIGHLIGHT_TEXT_MAX, 'a');
    list.SetText(0, longest.c_str());
    EXPECT_EQ(list.Text(0), longest);
    list.SetText(1, (longest + "b").c_str());
    EXPECT_STREQ(list.Text(1), "");
    list.SetText(HIGHLIGHT_SLOTS, "out of range");
}

TEST(HighlightListStore, AddTakesTheFirstFreeSlotAndSetsItsColour)
{
    HighlightList list;
    list.Add("Mara", 3);
    list.Add(std::string(HIGHLIGHT_TEXT_MAX + 1, 'x').c_str(), 9);
    EXPECT_EQ(list.Color(1), 9) << "a refused text still leaves its colour";
    list.Add("Tam", 5);
    EXPECT_EQ(EntriesInUse(list), (std::vector<std::string>{"3:Mara", "5:Tam"}));
}

TEST(HighlightListStore, AddOnAFullListDoesNothing)
{
    HighlightList list;
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS; ++i) {
        char text[16];
        std::snprintf(text, sizeof text, "w%zu", i);
        list.Add(text, 1);
    }
    list.Add("one too many", 2);
    EXPECT_EQ(EntriesInUse(list).size(), HIGHLIGHT_SLOTS);
    EXPECT_STREQ(list.Text(HIGHLIGHT_SLOTS - 1), "w4095");
}

TEST(HighlightListStore, ClearKeepsColoursButAddSetsItsOwn)
{
    HighlightList list;
    list.Add("Mara", 0x4C);
    list.Clear();
    EXPECT_STREQ(list.Text(0), "");
    EXPECT_EQ(list.Color(0), 0x4C);
    list.Add("Tam", 2);
    EXPECT_EQ(list.Color(0), 2);
}

TEST(HighlightListStore, EveryChangeGivesANewVersion)
{
    HighlightList list;
    auto before = list.Version();
    list.Add("Mara", 1);
    EXPECT_NE(list.Version(), before);
    before = list.Version();
    list.SetColor(0, 2);
    EXPECT_NE(list.Version(), before);
    HighlightList other;
    EXPECT_NE(other.Version(), list.Version());
    HighlightList copy = list;
    EXPECT_NE(copy.Version(), list.Version());
    before = list.Version();
    list = copy;
    EXPECT_NE(list.Version(), before);
    EXPECT_NE(list.Version(), copy.Version());
    EXPECT_STREQ(list.Text(0), "Mara");
}

TEST(HighlightListFile, SaveWritesOneQuotedLinePerEntryInSlotOrder)
{
    TempFolder folder;
    HighlightList list;
    list.SetColor(0, 14);
    list.SetText(0, "{gong}*Attention");
    list.SetColor(2, 0x1E); // slot 1 stays free: the file has no gap
    list.SetText(2, "say \"hi\"");
    list.SetColor(3, 7);
    list.SetText(3, "$@Mara");
    ASSERT_TRUE(list.Save(folder.File("Hero.Highlights").c_str()));
    EXPECT_EQ(ReadFile(folder.File("Hero.Highlights")),
              "014 \"{gong}*Attention\"\n030 \"say \"hi\"\"\n007 \"$@Mara\"\n");
}

TEST(HighlightListFile, RoundTripKeepsTextsAndColours)
{
    TempFolder folder;
    HighlightList list;
    list.Add("{Chime}$*@Kill", 0xFF);
    list.Add("\"quoted\" words", 0);
    list.Add(std::string(HIGHLIGHT_TEXT_MAX, 'z').c_str(), 0x10);
    ASSERT_TRUE(list.Save(folder.File("Hero.Names").c_str()));
    HighlightList loaded;
    loaded.Load(folder.File("Hero.Names").c_str());
    EXPECT_EQ(EntriesInUse(loaded), EntriesInUse(list));
}

TEST(HighlightListFile, LoadReadsOnlyWellFormedLines)
{
    const struct {
        const char* line;
        const char* expected; // "" when the line takes no slot
    } cases[] = {
        {"014 \"Attention\"\n", "14:Attention"},
        {"14 \"Text\"\n", ""},
        {"014 Text\"\n", ""},
        {"014 \"open\n", ""},
        {"01 \"\n", ""},
        {"300 \"wrapped\"\n", "44:wrapped"},
        {"014 \"say \"hi\" now\" trailing junk\n", "14:say \"hi\" now"},
        {"014 \"crlf\"\r\n", "14:crlf"},
        {"abc \"bad digits\"\n", "0:bad digits"},
        {"014 \"no line end\"", "14:no line end"},
    };
    TempFolder folder;
    for (const auto& c : cases) {
        WriteFile(folder.File("One.Highlights"), c.line);
        HighlightList list;
        list.Add("left over", 1);
        list.Load(folder.File("One.Highlights").c_str());
        const std::vector<std::string> expected =
            *c.expected ? std::vector<std::string>{c.expected} : std::vector<std::string>{};
        EXPECT_EQ(EntriesInUse(list), expected) << c.line;
    }
}

TEST(HighlightListFile, EmptyOrTooLongTextsTakeASlotAndEndTheRun)
{
    TempFolder folder;
    WriteFile(folder.File("Gap.Highlights"), "001 \"first\"\n002 \"\"\n003 \"third\"\n004 \"" +
                                                 std::string(HIGHLIGHT_TEXT_MAX + 1, 'x') +
                                                 "\"\n005 \"fifth\"\n");
    HighlightList list;
    list.Load(folder.File("Gap.Highlights").c_str());
    EXPECT_EQ(EntriesInUse(list), std::vector<std::string>{"1:first"});
    EXPECT_STREQ(list.Text(2), "third");
    EXPECT_STREQ(list.Text(3), "");
    EXPECT_STREQ(list.Text(4), "fifth");
    ASSERT_TRUE(list.Save(folder.File("Gap.Highlights").c_str()));
    list.Load(folder.File("Gap.Highlights").c_str());
    EXPECT_EQ(EntriesInUse(list), (std::vector<std::string>{"1:first", "3:third", "5:fifth"}))
        << "a save closes the gaps";
}

TEST(HighlightListFile, OnlyTheFirstSlotsOfALongFileAreUsed)
{
    TempFolder folder;
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += "001 \"entry" + std::to_string(i) + "\"\n";
    WriteFile(folder.File("Long.Highlights"), bytes);
    HighlightList list;
    list.Load(folder.File("Long.Highlights").c_str());
    EXPECT_EQ(EntriesInUse(list).size(), HIGHLIGHT_SLOTS);
    EXPECT_STREQ(list.Text(HIGHLIGHT_SLOTS - 1), "entry4095");
}

TEST(HighlightListFile, AMissingFileEmptiesTheList)
{
    TempFolder folder;
    HighlightList list;
    list.Add("from the character before", 1);
    list.Load(folder.File("Nobody.Names").c_str());
    EXPECT_TRUE(EntriesInUse(list).empty());
    list.Add("kept", 1);
    EXPECT_TRUE(list.Save("")) << "no path, nothing to save";
    EXPECT_FALSE(list.Save(folder.File("no/such/folder.Names").c_str()));
}

TEST(HighlightListSort, SortByColorIsStableOverTheWholeColourByte)
{
    HighlightList list;
    Fill(list, {{"a", 0x1E}, {"b", 2}, {"c", 0x0E}, {"d", 2}, {"e", 0x1E}, {"f", 0}});
    SortByColor(list);
    EXPECT_EQ(EntriesInUse(list),
              (std::vector<std::string>{"0:f", "2:b", "2:d", "14:c", "30:a", "30:e"}));
}

} // namespace
} // namespace steward::testing
