#include "highlights/HighlightItem.h"
#include "HighlightDoubles.h"
#include "highlights/HighlightItems.h"

#include <gtest/gtest.h>

#include <functional>

namespace steward::testing {
namespace {

// The fields of an item as "colour sound $*@ match", a marker shown as "-" when unset.
std::string Fields(const HighlightItem& item)
{
    return std::to_string(item.Color) + " " + item.Sound + " " + (item.EntireLine ? "$" : "-") +
           (item.NotOnWordBoundary ? "*" : "-") + (item.CaseSensitive ? "@" : "-") + " " +
           item.Match;
}

TEST(ItemText, EveryKindParsesIntoItsFieldsAndComposesBack)
{
    const struct {
        const char *item, *fields;
    } rows[] = {
        {"014,Mara", "14  --- Mara"},           {"012,{Gong}Attention", "12 Gong --- Attention"},
        {"010,$thunder", "10  $-- thunder"},    {"030,*ara", "30  -*- ara"},
        {"255,@MARA", "255  --@ MARA"},         {"000,{Chime.wav}$*@x", "0 Chime.wav $*@ x"},
        {"014,a$b*c@{d}", "14  --- a$b*c@{d}"}, {"014,say \"hi\" ", "14  --- say \"hi\" "}};
    for (const auto& row : rows) {
        EXPECT_EQ(Fields(ParseItem(row.item)), row.fields);
        EXPECT_EQ(ComposeItem(ParseItem(row.item)), row.item);
    }
    const HighlightItem read = ParseItem("014,{gONG}@Text");
    EXPECT_EQ(read.Sound, "Gong") << "sounds read in the sound list's form";
    ItemChanges changes;
    changes.EntireLine = true;
    EXPECT_EQ(ComposeItem(WithChanges(read, changes)), "014,{Gong}$@Text");
    EXPECT_EQ(ParseItem("014,{unclosed").Sound, "Unclosed");
    EXPECT_EQ(SoundChoiceOfFile("t_startMUSIC.Wav"), "T_startmusic");
}

// Items of a page, as "colour:text", with the selected one marked by ">".
std::vector<std::string> Shown(const HighlightItems& items)
{
    std::vector<std::string> out;
    for (std::size_t i = 0; i < items.Count(); ++i)
        out.push_back((static_cast<int>(i) == items.Selected() ? ">" : "") + items.Item(i));
    return out;
}

TEST(HighlightItems, EachButtonChangesTheItemsAsItSays)
{
    using Edit = std::function<void(HighlightItems&)>;
    const std::string longest(HIGHLIGHT_ASK_LIMIT, 'm');
    const struct {
        const char* name;
        std::vector<Entry> list;
        int select;
        Edit edit;
        std::vector<std::string> shown;
    } rows[] = {
        {"new takes colour 14 and is selected",
         {{"a", 2}},
         0,
         [](auto& i) { i.New("Mara"); },
         {"002,a", ">014,Mara"}},
        {"new with empty text does nothing", {{"a", 2}}, 0, [](auto& i) { i.New(""); }, {">002,a"}},
        {"typed colour bytes become question marks",
         {},
         -1,
         [](auto& i) { i.New("a\x82z\xA3 \"q\"  "); },
         {">014,a?z? \"q\""}},
        {"change keeps markers and sound",
         {{"{Gong}$*old", 5}},
         0,
         [](auto& i) { i.Change("new"); },
         {">005,{Gong}$*new"}},
        {"delete selects the next item",
         {{"a"}, {"b"}, {"c"}},
         1,
         [](auto& i) { i.Delete(); },
         {"014,a", ">014,c"}},
        {"delete of the last leaves no selection and flags do nothing",
         {{"a"}, {"b"}},
         1,
         [](auto& i) {
             i.Delete();
             i.SetFlag(HighlightFlag::EntireLine, true);
             i.LeftClickCell(3);
         },
         {"014,a"}},
        {"sort is stable by the whole colour byte",
         {{"a", 0x21}, {"b", 0}, {"c", 0x21}, {"d", 0}},
         2,
         [](auto& i) { i.SortItems(); },
         {">000,b", "000,d", "033,a", "033,c"}},
        {"transparent keeps the foreground or makes yellow",
         {{"a", 0x2E}, {"b", 0x21}, {"c", 0x2A}},
         0,
         [](auto& i) { i.SetAllBackgroundsTransparent(); },
         {">014,a", "014,b", "010,c"}},
        {"left cell 0 keeps, right cell 0 clears the background",
         {{"a", 0x3C}},
         0,
         [](auto& i) {
             i.LeftClickCell(0);
             i.RightClickCell(0);
             i.LeftClickCell(15);
             i.RightClickCell(16);
         },
         {">015,a"}},
        {"flags and sound in their fixed order",
         {{"Text"}},
         0,
         [](auto& i) {
             i.SetFlag(HighlightFlag::CaseSensitive, true);
             i.SetSound("Gong");
             i.SetFlag(HighlightFlag::EntireLine, true);
         },
         {">014,{Gong}$@Text"}},
        {"a marker that would pass eighty bytes is refused",
         {{"*" + longest}},
         0,
         [](auto& i) {
             i.SetFlag(HighlightFlag::EntireLine, true);
             i.SetSound("Gong");
         },
         {">014,*" + longest}}};
    for (const auto& row : rows) {
        HighlightList list;
        Fill(list, row.list);
        HighlightItems items;
        items.OpenList(list);
        items.Select(row.select);
        row.edit(items);
        EXPECT_EQ(Shown(items), row.shown) << row.name;
    }
}

TEST(HighlightItems, AListOpensWithoutItsGapsAndApplyWritesTheItemsSlotForSlot)
{
    HighlightList list;
    Fill(list, {{"a", 1}, {"", 9}, {"b", 2}});
    HighlightItems items;
    items.OpenList(list);
    EXPECT_EQ(items.SlotsLeft(), static_cast<int>(HIGHLIGHT_SLOTS) - 2);
    items.RightClickCell(4);
    EXPECT_STREQ(list.Text(1), "") << "nothing reaches the list before Apply";
    items.Apply(list);
    EXPECT_STREQ(list.Text(1), "b");
    EXPECT_EQ(list.Color(0), 0x41);
    EXPECT_STREQ(list.Text(2), "");
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS; ++i)
        list.SetText(i, "{Chime}$x");
    items.OpenList(list);
    EXPECT_EQ(items.SlotsLeft(), 0);
    EXPECT_FALSE(items.New("more")) << "a full list takes no new item";
    EXPECT_EQ(items.Count(), HIGHLIGHT_SLOTS);
    EXPECT_EQ(items.AskLimit(), HIGHLIGHT_TEXT_MAX - 8) << "room for the markers";
    EXPECT_TRUE(items.Change(std::string(HIGHLIGHT_TEXT_MAX - 8, 'y')));
    EXPECT_FALSE(items.Change(std::string(HIGHLIGHT_TEXT_MAX - 7, 'y')));
}

TEST(HighlightItems, TheSamplePageWritesEveryRowsColourBack)
{
    Settings settings;
    HighlightItems items;
    items.OpenSamples(settings);
    for (std::size_t row = 0; row < SAMPLE_ROW_COUNT; ++row) {
        items.Select(static_cast<int>(row));
        items.RightClickCell(static_cast<int>(row) + 1);
    }
    EXPECT_FALSE(items.New("more")) << "the samples take no new row";
    items.ApplySamples(settings);
    for (std::size_t row = 0; row < SAMPLE_ROW_COUNT; ++row)
        EXPECT_EQ(settings.*SAMPLE_ROWS[row].Field >> 4, static_cast<int>(row) + 1) << row;
}

} // namespace
} // namespace steward::testing
