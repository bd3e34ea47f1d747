#include "HighlightDoubles.h"
#include "highlights/HighlightMatcher.h"
#include "highlights/HighlightStore.h"
#include "highlights/PatternAutomaton.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <sstream>

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

// "<c:text>" is text in colour c; "\r" and "\n" are the line ends.
std::string Bytes(const std::string& notation, std::size_t& at)
{
    std::string out;
    while (at < notation.size() && notation[at] != '>') {
        if (notation[at] == '<') {
            const std::size_t colon = notation.find(':', at);
            const int color = std::stoi(notation.substr(at + 1, colon - at - 1));
            at = colon + 1;
            out += Lit(static_cast<unsigned char>(color), Bytes(notation, at));
            ++at;
        } else if (notation[at] == '\\') {
            out += notation[at + 1] == 'r' ? '\r' : '\n';
            at += 2;
        } else {
            out += notation[at++];
        }
    }
    return out;
}
std::string Bytes(const std::string& notation)
{
    std::size_t at = 0;
    return Bytes(notation, at);
}

std::vector<std::string> Fields(const std::string& text, char separator)
{
    std::vector<std::string> fields;
    std::istringstream in(text);
    for (std::string field; std::getline(in, field, separator);)
        fields.push_back(field);
    return fields;
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
    // entries (text/colour, ";" between) | line | result | sounds ("-" none) | squelch
    const char* rows = R"rows(Mara|Maravel waves.|Maravel waves.
Mara|Maravel and Mara.|Maravel and <14:Mara>.
Mara|Mara's cloak|<14:Mara>'s cloak
ax|_ax-|_<14:ax>-
ax|ax2 2ax|ax2 2ax
Tam;end|Tam at the end|<14:Tam> at the <14:end>
end|the end\r\n|the <14:end>\r\n
*ara|Maravel|M<14:ara>vel
red dragon|A red dragonfly, a red dragon.|A red dragonfly, a <14:red dragon>.
Mara|<3:Mara> waves|<3:<14:Mara>> waves
Mara|<3:Mara>vel|<3:<14:Mara>>vel
red dragon|red<2: dragon>|red<2: dragon>
Mara|MARA!|<14:MARA>!
@Mara|MARA!|MARA!
@Mara|Mara!|<14:Mara>!
*[x]|{X}|{X}
*aa|aaaa|<14:aa><14:aa>
orc/30|an orc|an <30:orc>
$orc|orc orc\r\n|<14:orc orc\r\n>
orc/2;$orc/5|an orc|<5:an <2:orc>>
$orc/5;orc/2|an orc|<5:an <2:orc>>
$orc|an orchard|an orchard
orc/1;orc/2|orc|<1:<2:orc>>
red dragon/1;dragon/2|a red dragon|a <1:red <2:dragon>>
red/1;red dragon/2|a red dragon|a <1:red> dragon
orc;;elf|orc elf|<14:orc> elf
orc;{gong;elf|orc elf|<14:orc> elf
orc;{gong}$*@;elf|orc elf|<14:orc> elf
*$orc|a $orc|a <14:$orc>
{}orc|orc|<14:orc>
{gong}orc|orc orc|<14:orc> <14:orc>|gong gong
{gong}$orc|orc orc|<14:orc orc>|gong
{b}elf;{a}orc|orc elf|<14:orc> <14:elf>|b a
{gong}orc|orc says, "x"|<14:orc> says, "x"|-
{gong}orc|orc|<14:orc>|-|squelch
{gong}orc|orchard|orchard|-
)rows";
    for (const std::string& row : Fields(rows, '\n')) {
        SCOPED_TRACE(row);
        const std::vector<std::string> field = Fields(row, '|');
        Entries entries;
        for (const std::string& entry : Fields(field[0], ';')) {
            const std::size_t slash = entry.find('/');
            entries.push_back(
                {entry.substr(0, slash),
                 static_cast<unsigned char>(slash == std::string::npos
                                                ? HIGHLIGHT_DEFAULT_COLOR
                                                : std::stoi(entry.substr(slash + 1)))});
        }
        const Outcome outcome = Apply(entries, Bytes(field[1]), field.size() > 4);
        EXPECT_EQ(outcome.line, Bytes(field[2]));
        if (field.size() > 3) {
            EXPECT_EQ(outcome.sounds, field[3] == "-" ? Sounds{} : Fields(field[3], ' '));
        }
    }
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
