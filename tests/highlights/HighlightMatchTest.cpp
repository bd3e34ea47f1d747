#include "HighlightDoubles.h"
#include "PlainHighlights.h"
#include "highlights/HighlightMatcher.h"
#include "highlights/HighlightStore.h"
#include "highlights/PatternAutomaton.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <optional>

namespace steward::testing {
namespace {

using Entries = std::vector<Entry>;
using Sounds = std::vector<std::string>;

struct Outcome {
    std::string line;
    Sounds sounds;
};

constexpr std::size_t LINE_BUFFER = 8192;

// Runs the entries over the line through the plain form and through the index, and requires
// both to agree before the result is looked at.
Outcome Apply(const Entries& entries, const std::string& line, bool squelch = false,
              std::size_t capacity = LINE_BUFFER)
{
    HighlightList list;
    Fill(list, entries);
    std::vector<char> plain(capacity), fast(capacity);
    std::memcpy(plain.data(), line.c_str(), line.size() + 1);
    std::memcpy(fast.data(), line.c_str(), line.size() + 1);
    RecordedSounds plainSounds, fastSounds;
    ApplyHighlights(list, plain.data(), capacity, squelch, plainSounds);
    HighlightMatcher matcher(list);
    matcher.ApplyHighlights(fast.data(), capacity, squelch, fastSounds);
    EXPECT_STREQ(fast.data(), plain.data()) << "index and plain form differ on " << line;
    EXPECT_EQ(fastSounds.played, plainSounds.played);
    return {plain.data(), plainSounds.played};
}

struct Case {
    const char* name;
    Entries entries;
    std::string line, expected;
    std::optional<Sounds> sounds = std::nullopt; // looked at when given
    bool squelch = false;
};

void Check(const std::vector<Case>& cases)
{
    for (const Case& c : cases) {
        const Outcome outcome = Apply(c.entries, c.line, c.squelch);
        EXPECT_EQ(outcome.line, c.expected) << c.name;
        if (c.sounds) {
            EXPECT_EQ(outcome.sounds, *c.sounds) << c.name;
        }
    }
}

TEST(PatternAutomaton, ReportsEveryPatternInAnyCaseAndAnyByteOnce)
{
    PatternAutomaton automaton;
    automaton.Build({"rat", "Tower", "\xFF\x80", "at", ""});
    ASSERT_TRUE(automaton.Usable()) << "a small list is matched in one pass";
    const std::string line = "The RAT in the tower \xFF\x80 sat";
    std::vector<std::uint32_t> found;
    automaton.Scan(line.data(), line.size(), [&](std::uint32_t i) { found.push_back(i); });
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    EXPECT_EQ(found, (std::vector<std::uint32_t>{0, 1, 2, 3}));
}

TEST(HighlightMatch, WordsCaseRepeatsEntireLinesNestingRunsAndSounds)
{
    Check({
        {"inside a longer word", {{"Mara"}}, "Maravel waves.", "Maravel waves."},
        {"search goes on behind a failed hit",
         {{"Mara"}},
         "Maravel and Mara.",
         "Maravel and " + Lit(14, "Mara") + "."},
        {"apostrophe", {{"Mara"}}, "Mara's cloak", Lit(14, "Mara") + "'s cloak"},
        {"underscore and hyphen", {{"ax"}}, "_ax-", "_" + Lit(14, "ax") + "-"},
        {"digit is no boundary", {{"ax"}}, "ax2 2ax", "ax2 2ax"},
        {"start and end of line",
         {{"Tam"}, {"end"}},
         "Tam at the end",
         Lit(14, "Tam") + " at the " + Lit(14, "end")},
        {"CR is a boundary", {{"end"}}, "the end\r\n", "the " + Lit(14, "end") + "\r\n"},
        {"not on word boundary", {{"*ara"}}, "Maravel", "M" + Lit(14, "ara") + "vel"},
        {"phrase with a blank",
         {{"red dragon"}},
         "A red dragonfly, a red dragon.",
         "A red dragonfly, a " + Lit(14, "red dragon") + "."},
        {"server colour around the word",
         {{"Mara"}},
         Lit(3, "Mara") + " waves",
         On(3) + Lit(14, "Mara") + Off(3) + " waves"},
        {"server colour after a word part",
         {{"Mara"}},
         Lit(3, "Mara") + "vel",
         On(3) + Lit(14, "Mara") + Off(3) + "vel"},
        {"colour inside a phrase hides it",
         {{"red dragon"}},
         "red" + Lit(2, " dragon"),
         "red" + Lit(2, " dragon")},
        {"folded", {{"Mara"}}, "MARA!", Lit(14, "MARA") + "!"},
        {"exact misses", {{"@Mara"}}, "MARA!", "MARA!"},
        {"exact hits", {{"@Mara"}}, "Mara!", Lit(14, "Mara") + "!"},
        {"only letters fold", {{"*[x]"}}, "{X}", "{X}"},
        {"back to back", {{"*aa"}}, "aaaa", Lit(14, "aa") + Lit(14, "aa")},
        {"with a background",
         {{"orc", 0x1E}},
         "an orc",
         "an \x91\x8E"
         "orc\xA1\xA0"},
        {"once for many hits", {{"$orc"}}, "orc orc\r\n", Lit(14, "orc orc\r\n")},
        {"after partial entries",
         {{"orc", 2}, {"$orc", 5}},
         "an orc",
         On(5) + "an " + Lit(2, "orc") + Off(5)},
        {"partial after entire line",
         {{"$orc", 5}, {"orc", 2}},
         "an orc",
         On(5) + "an " + Lit(2, "orc") + Off(5)},
        {"boundaries still apply", {{"$orc"}}, "an orchard", "an orchard"},
        {"same text twice", {{"orc", 1}, {"orc", 2}}, "orc", On(1) + Lit(2, "orc") + Off(1)},
        {"later text inside the earlier",
         {{"red dragon", 1}, {"dragon", 2}},
         "a red dragon",
         "a " + On(1) + "red " + Lit(2, "dragon") + Off(1)},
        {"later text reaching beyond",
         {{"red", 1}, {"red dragon", 2}},
         "a red dragon",
         "a " + Lit(1, "red") + " dragon"},
        {"unclosed sound", {{"orc"}, {"{gong"}, {"elf"}}, "orc elf", Lit(14, "orc") + " elf"},
        {"markers only", {{"orc"}, {"{gong}$*@"}, {"elf"}}, "orc elf", Lit(14, "orc") + " elf"},
        {"markers out of order are text", {{"*$orc"}}, "a $orc", "a " + Lit(14, "$orc")},
        {"empty sound is fine", {{"{}orc"}}, "orc", Lit(14, "orc")},
        {"a sound per hit",
         {{"{gong}orc"}},
         "orc orc",
         Lit(14, "orc") + " " + Lit(14, "orc"),
         Sounds{"gong", "gong"}},
        {"entire line once", {{"{gong}$orc"}}, "orc orc", Lit(14, "orc orc"), Sounds{"gong"}},
        {"sounds in slot order",
         {{"{b}elf"}, {"{a}orc"}},
         "orc elf",
         Lit(14, "orc") + " " + Lit(14, "elf"),
         Sounds{"b", "a"}},
        {"a quote anywhere silences but colours",
         {{"{gong}orc"}},
         "orc says, \"x\"",
         Lit(14, "orc") + " says, \"x\"",
         Sounds{}},
        {"squelched", {{"{gong}orc"}}, "orc", Lit(14, "orc"), Sounds{}, true},
        {"no hit no sound", {{"{gong}orc"}}, "orchard", "orchard", Sounds{}},
    });
    HighlightList list;
    Fill(list, {{"orc"}, {""}, {"elf"}});
    char line[64] = "orc elf";
    RecordedSounds sounds;
    ApplyHighlights(list, line, sizeof line, false, sounds);
    EXPECT_EQ(std::string(line), Lit(14, "orc") + " elf") << "the run ends at a free slot";
}

TEST(HighlightBounds, HitsStopWhenTheBufferIsFullAndALineWithoutItsNulIsLeftAlone)
{
    // "ab ab ab": each hit needs two more bytes; 8 bytes of text, NUL, room for two hits.
    const Outcome two = Apply({{"{s}ab"}}, "ab ab ab", false, 13);
    EXPECT_EQ(two.line, Lit(14, "ab") + " " + Lit(14, "ab") + " ab");
    EXPECT_EQ(two.sounds, (Sounds{"s", "s"}));
    EXPECT_EQ(Apply({{"ab"}, {"$ab"}}, "ab ab ab", false, 13).line,
              Lit(14, "ab") + " " + Lit(14, "ab") + " ab")
        << "a full buffer ends the whole run for the line";
    EXPECT_EQ(Apply({{"ab", 0x1E}}, "ab ab", false, 10).line, "\x91\x8E"
                                                              "ab\xA1\xA0 ab");
    EXPECT_EQ(Apply({{"$ab"}}, "ab", false, 4).line, "ab");
    HighlightList list;
    Fill(list, {{"*a"}});
    char line[4] = {'a', 'a', 'a', 'a'};
    RecordedSounds sounds;
    ApplyHighlights(list, line, sizeof line, false, sounds);
    HighlightMatcher(list).ApplyHighlights(line, sizeof line, false, sounds);
    EXPECT_EQ(std::string(line, 4), "aaaa");
}

TEST(HighlightMatcherIndex, TheIndexFollowsChangesOfItsList)
{
    HighlightList list;
    HighlightMatcher matcher(list);
    RecordedSounds sounds;
    char line[64] = "orc elf";
    matcher.ApplyHighlights(line, sizeof line, false, sounds);
    EXPECT_STREQ(line, "orc elf");
    list.Add("elf", 2);
    matcher.ApplyHighlights(line, sizeof line, false, sounds);
    EXPECT_EQ(std::string(line), "orc " + Lit(2, "elf"));
    list.SetColor(0, 3);
    std::strcpy(line, "elf");
    matcher.ApplyHighlights(line, sizeof line, false, sounds);
    EXPECT_EQ(std::string(line), Lit(3, "elf"));
    HighlightList working = list;
    working.SetText(0, "orc");
    list = std::move(working);
    std::strcpy(line, "orc elf");
    matcher.ApplyHighlights(line, sizeof line, false, sounds);
    EXPECT_EQ(std::string(line), Lit(3, "orc") + " elf") << "an assigned list is indexed anew";
}

TEST(NameListed, NamesAreSearchedCaseSensitively)
{
    const struct {
        Entries entries;
        const char* name;
        bool listed;
    } cases[] = {
        {{{"Mara"}}, "Mara the Wise", true},
        {{{"mara"}}, "Mara", false},
        {{{"Mara"}}, "Maravel", false},
        {{{"*ara"}}, "Maravel", true},
        {{{"Mara"}}, "Maravel and Mara", true},
        {{{"{gong}$Mara"}}, "Mara", true},
        {{{"@Mara"}}, "Mara", true},
        {{{"Tam"}, {""}, {"Mara"}}, "Mara", false},
        {{{"{open"}, {"Mara"}}, "Mara", false},
        {{}, "Mara", false},
    };
    for (const auto& c : cases) {
        HighlightStore lists;
        Fill(lists.NameHighlights, c.entries);
        EXPECT_EQ(lists.IsNameListed(c.name), c.listed) << c.name;
    }
}

} // namespace
} // namespace steward::testing
