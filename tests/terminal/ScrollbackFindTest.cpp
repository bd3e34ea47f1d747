#include "TextBufferFixture.h"

#include "terminal/TailSplit.h"
#include "terminal/TextSearch.h"
#include "terminal/Wheel.h"

#include <random>
#include <string>
#include <vector>

namespace steward::test {
namespace {

// The reference search: every byte but colour codes in order, a soft line end read as a blank;
// a match is a run of them equal to the needle, from its first byte to behind its last.
std::vector<TextHit> ReferenceHits(const std::string& kept, const std::string& needle,
                                   bool matchCase)
{
    const auto fold = [&](char c) {
        return !matchCase && c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    std::vector<std::int32_t> at;
    std::string plain;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        if (IsColorCode(static_cast<unsigned char>(kept[i])))
            continue;
        at.push_back(static_cast<std::int32_t>(i));
        plain += kept[i] == static_cast<char>(SOFT_LINE_END) ? ' ' : fold(kept[i]);
    }
    std::string wanted;
    for (const char c : needle)
        wanted += fold(c);
    std::vector<TextHit> hits;
    for (std::size_t i = 0; i + wanted.size() <= plain.size(); ++i)
        if (plain.compare(i, wanted.size(), wanted) == 0)
            hits.push_back({at[i], at[i + wanted.size() - 1] + 1});
    return hits;
}

// Small rings wrapped at narrow widths, full of colour codes, line ends and case pairs, so
// that matches cross soft line ends, codes and the seam.
TEST(FindText, MatchesTheReferenceSearch)
{
    static const char letters[] = "ab AB\n\x8A\xA0";
    for (unsigned seed = 1; seed <= 40; ++seed) {
        std::mt19937 random(seed);
        auto buffer = MakeWrappingBuffer(3 + static_cast<std::int32_t>(random() % 12),
                                         MIN_BUFFER_CAPACITY + 20 + random() % 100);
        for (int step = 0; step < 60; ++step) {
            std::string text(1 + random() % 30, ' ');
            for (char& c : text)
                c = letters[random() % (sizeof letters - 1)];
            buffer->AppendText(text.c_str(), true);
            const std::string kept = RingText(*buffer);
            std::string needle(1 + random() % 3, ' ');
            for (char& c : needle)
                c = "aAb "[random() % 4];
            const bool matchCase = random() % 2;
            const std::vector<TextHit> hits = ReferenceHits(kept, needle, matchCase);
            const auto size = static_cast<std::int32_t>(kept.size());
            for (const std::int32_t from :
                 {-1, 0, static_cast<std::int32_t>(random() % (size + 1)), size, INT32_MAX}) {
                SCOPED_TRACE(::testing::Message() << "seed " << seed << " step " << step << " '"
                                                  << needle << "' from " << from);
                TextHit older;
                TextHit newer;
                for (const TextHit& hit : hits) {
                    if (hit.Start < from)
                        older = hit;
                    if (hit.Start >= from && !newer.Found())
                        newer = hit;
                }
                const TextHit foundOlder =
                    FindText(*buffer, needle, from, SearchDirection::Older, matchCase);
                const TextHit foundNewer =
                    FindText(*buffer, needle, from, SearchDirection::Newer, matchCase);
                ASSERT_EQ(foundOlder.Start, older.Start);
                ASSERT_EQ(foundOlder.End, older.End);
                ASSERT_EQ(foundNewer.Start, newer.Start);
                ASSERT_EQ(foundNewer.End, newer.End);
            }
        }
    }
}

TEST(TailSplit, RowsOfEachPane)
{
    struct Case {
        std::int32_t rows;
        std::int32_t wanted;
        std::int32_t viewRows;
        std::int32_t tailRows;
    };
    const Case cases[] = {
        {30, DEFAULT_TAIL_ROWS, 19, 10}, // a third below the bar
        {30, 28, 2, 27},                 // dragged low: the view keeps two rows
        {30, 1, 27, 2},                  // dragged high: the tail keeps two rows
        {5, DEFAULT_TAIL_ROWS, 2, 2},    // the lowest window with two panes
        {4, DEFAULT_TAIL_ROWS, 4, 0},    // too low: the frozen view alone
        {0, 5, 0, 0},
    };
    for (const Case& c : cases) {
        const TailSplit split = SplitRows(c.rows, c.wanted);
        EXPECT_EQ(split.ViewRows, c.viewRows) << c.rows << " rows, " << c.wanted << " wanted";
        EXPECT_EQ(split.TailRows, c.tailRows) << c.rows << " rows, " << c.wanted << " wanted";
    }
}

TEST(WheelScrollCommand, PagesWithoutShiftLinesWithIt)
{
    const struct {
        bool shift;
        int amount;
        int command;
    } cases[] = {{false, 120, 2}, {false, 0, 2}, {false, -120, 3},
                 {true, 120, 0},  {true, 0, 0},  {true, -1, 1}};
    for (const auto& c : cases)
        EXPECT_EQ(WheelScrollCommand(c.shift, c.amount), c.command) << c.shift << " " << c.amount;
}

} // namespace
} // namespace steward::test
