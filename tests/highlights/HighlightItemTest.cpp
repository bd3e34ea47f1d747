#include "highlights/HighlightItem.h"
#include "HighlightDoubles.h"
#include "highlights/HighlightItems.h"

#include <gtest/gtest.h>

#include <functional>

namespace steward::testing {
namespace {

struct ItemCase {
    const char* name;
    const char* item;
    HighlightItem parsed;
};

class ItemText : public ::testing::TestWithParam<ItemCase> {};

// Every kind of entry reads into its fields and composes back to the same item text.
TEST_P(ItemText, ParsesIntoItsFieldsAndComposesBack)
{
    const ItemCase& c = GetParam();
    const HighlightItem parsed = ParseItem(c.item);
    EXPECT_EQ(parsed.Color, c.parsed.Color);
    EXPECT_EQ(parsed.Sound, c.parsed.Sound);
    EXPECT_EQ(parsed.EntireLine, c.parsed.EntireLine);
    EXPECT_EQ(parsed.NotOnWordBoundary, c.parsed.NotOnWordBoundary);
    EXPECT_EQ(parsed.CaseSensitive, c.parsed.CaseSensitive);
    EXPECT_EQ(parsed.Match, c.parsed.Match);
    EXPECT_EQ(ComposeItem(parsed), c.item);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ItemText,
    ::testing::Values(
        ItemCase{"Plain", "014,Mara", {14, "", false, false, false, "Mara"}},
        ItemCase{"Sound", "012,{Gong}Attention", {12, "Gong", false, false, false, "Attention"}},
        ItemCase{"EntireLine", "010,$thunder", {10, "", true, false, false, "thunder"}},
        ItemCase{"Anywhere", "030,*ara", {30, "", false, true, false, "ara"}},
        ItemCase{"CaseSensitive", "255,@MARA", {255, "", false, false, true, "MARA"}},
        ItemCase{"AllMarkers", "000,{Chime.wav}$*@x", {0, "Chime.wav", true, true, true, "x"}},
        ItemCase{"MarkerCharactersFurtherOn",
                 "014,a$b*c@{d}",
                 {14, "", false, false, false, "a$b*c@{d}"}},
        ItemCase{
            "QuotesAndBlanks", "014,say \"hi\" ", {14, "", false, false, false, "say \"hi\" "}}),
    [](const auto& info) { return info.param.name; });

TEST(ItemText, SoundsReadInTheSoundListsFormAndMarkersComeOutInTheirOrder)
{
    const HighlightItem read = ParseItem("014,{gONG}@Text");
    EXPECT_EQ(read.Sound, "Gong");
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
    for (std::size_t i = 0; i < items.Count(); ++i) {
        const std::string mark = static_cast<int>(i) == items.Selected() ? ">" : "";
        out.push_back(mark + items.Item(i));
    }
    return out;
}

struct EditCase {
    const char* name;
    std::vector<Entry> list;
    int select;
    std::function<void(HighlightItems&)> edit;
    std::vector<std::string> shown;
};

class PageEdit : public ::testing::TestWithParam<EditCase> {};

TEST_P(PageEdit, ChangesTheItemsAsTheButtonSays)
{
    const EditCase& c = GetParam();
    HighlightList list;
    Fill(list, c.list);
    HighlightItems items;
    items.OpenList(list);
    items.Select(c.select);
    c.edit(items);
    EXPECT_EQ(Shown(items), c.shown);
}

const std::string LONGEST(HIGHLIGHT_ASK_LIMIT, 'm');

INSTANTIATE_TEST_SUITE_P(
    Buttons, PageEdit,
    ::testing::Values(EditCase{"NewTakesColour14AndIsSelected",
                               {{"a", 2}},
                               0,
                               [](HighlightItems& i) { i.New("Mara"); },
                               {"002,a", ">014,Mara"}},
                      EditCase{"NewWithEmptyTextDoesNothing",
                               {{"a", 2}},
                               0,
                               [](HighlightItems& i) { i.New(""); },
                               {">002,a"}},
                      EditCase{"TypedColourBytesBecomeQuestionMarks",
                               {},
                               -1,
                               [](HighlightItems& i) { i.New("a\x82z\xA3 \"q\"  "); },
                               {">014,a?z? \"q\""}},
                      EditCase{"ChangeKeepsMarkersAndSound",
                               {{"{Gong}$*old", 5}},
                               0,
                               [](HighlightItems& i) { i.Change("new"); },
                               {">005,{Gong}$*new"}},
                      EditCase{"DeleteSelectsTheNextItem",
                               {{"a"}, {"b"}, {"c"}},
                               1,
                               [](HighlightItems& i) { i.Delete(); },
                               {"014,a", ">014,c"}},
                      EditCase{"DeleteOfTheLastLeavesNoSelectionAndFlagsDoNothing",
                               {{"a"}, {"b"}},
                               1,
                               [](HighlightItems& i) {
                                   i.Delete();
                                   i.SetFlag(HighlightFlag::EntireLine, true);
                                   i.LeftClickCell(3);
                               },
                               {"014,a"}},
                      EditCase{"SortIsStableByTheWholeColourByte",
                               {{"a", 0x21}, {"b", 3}, {"c", 0x21}, {"d", 3}},
                               2,
                               [](HighlightItems& i) { i.SortItems(); },
                               {">003,b", "003,d", "033,a", "033,c"}},
                      EditCase{"TransparentKeepsTheForegroundOrMakesYellow",
                               {{"a", 0x2E}, {"b", 0x21}, {"c", 0x2A}},
                               0,
                               [](HighlightItems& i) { i.SetAllBackgroundsTransparent(); },
                               {">014,a", "014,b", "010,c"}},
                      EditCase{"LeftCellZeroKeepsRightCellZeroClearsTheBackground",
                               {{"a", 0x3C}},
                               0,
                               [](HighlightItems& i) {
                                   i.LeftClickCell(0);
                                   i.RightClickCell(0);
                                   i.LeftClickCell(15);
                                   i.RightClickCell(16);
                               },
                               {">015,a"}},
                      EditCase{"FlagsAndSoundInTheirFixedOrder",
                               {{"Text"}},
                               0,
                               [](HighlightItems& i) {
                                   i.SetFlag(HighlightFlag::CaseSensitive, true);
                                   i.SetSound("Gong");
                                   i.SetFlag(HighlightFlag::EntireLine, true);
                               },
                               {">014,{Gong}$@Text"}},
                      EditCase{"AMarkerThatWouldPassEightyBytesIsRefused",
                               {{"*" + LONGEST}},
                               0,
                               [](HighlightItems& i) {
                                   i.SetFlag(HighlightFlag::EntireLine, true);
                                   i.SetSound("Gong");
                               },
                               {">014,*" + LONGEST}}),
    [](const auto& info) { return info.param.name; });

TEST(HighlightItems, AListWithAGapOpensWithoutItAndApplyWritesTheItemsSlotForSlot)
{
    HighlightList list;
    Fill(list, {{"a", 1}, {"", 9}, {"b", 2}});
    HighlightItems items;
    items.OpenList(list);
    EXPECT_EQ(items.SlotsLeft(), static_cast<int>(HIGHLIGHT_SLOTS) - 2);
    EXPECT_FALSE(items.Changed());
    items.RightClickCell(4);
    EXPECT_TRUE(items.Changed());
    EXPECT_STREQ(list.Text(1), "") << "nothing reaches the list before Apply";
    items.Apply(list);
    EXPECT_STREQ(list.Text(1), "b");
    EXPECT_EQ(list.Color(0), 0x41);
    EXPECT_STREQ(list.Text(2), "");
}

TEST(HighlightItems, AFullListTakesNoNewItemAndTheAskLimitLeavesRoomForTheMarkers)
{
    HighlightList list;
    for (std::size_t i = 0; i < HIGHLIGHT_SLOTS; ++i)
        list.SetText(i, "{Chime}$x");
    HighlightItems items;
    items.OpenList(list);
    EXPECT_EQ(items.SlotsLeft(), 0);
    EXPECT_FALSE(items.New("more"));
    EXPECT_EQ(items.Count(), HIGHLIGHT_SLOTS);
    EXPECT_EQ(items.AskLimit(), HIGHLIGHT_TEXT_MAX - 8);
    EXPECT_TRUE(items.Change(std::string(HIGHLIGHT_TEXT_MAX - 8, 'y')));
    EXPECT_FALSE(items.Change(std::string(HIGHLIGHT_TEXT_MAX - 7, 'y')));
}

} // namespace
} // namespace steward::testing
