#include "TextBufferFixture.h"
#include "WindowFixture.h"

#include "terminal/TailSplit.h"
#include "terminal/TextSearch.h"
#include "terminal/Wheel.h"

#include <string>

namespace steward::test {
namespace {

using steward::SearchDirection;

// Finds in a small ring: the text of the hit as a selection gives it, or "" for none.
struct FindCase {
    const char* name;
    const char* text;
    const char* needle;
    SearchDirection direction;
    bool matchCase;
    const char* hit;
};

std::string HitText(TextBuffer& buffer, const TextHit& hit)
{
    if (!hit.Found())
        return "";
    buffer.SetSelection(hit.Start, hit.End);
    return buffer.SelectionText();
}

TEST(FindText, OverTheRing)
{
    constexpr auto OLDER = SearchDirection::Older;
    constexpr auto NEWER = SearchDirection::Newer;
    const FindCase cases[] = {
        {"older finds the newest", "red fox\nred hen\n", "red", OLDER, true, "red"},
        {"without case", "the Red Fox\n", "red fox", NEWER, false, "Red Fox"},
        {"with case misses", "the Red Fox\n", "red fox", NEWER, true, ""},
        {"colour bytes inside", "a \x8Ared\xA0 fox\n", "red fox", OLDER, true, "red fox"},
        {"colour before the first letter", "\x8A\x8Bwolf\n", "wolf", NEWER, true, "wolf"},
        {"no hit", "nothing here\n", "dragon", OLDER, false, ""},
        {"no match across a hard line end", "the red\nfox\n", "red fox", OLDER, false, ""},
        {"a hit in the last byte", "abc", "c", OLDER, true, "c"},
        {"a word in the last bytes", "look at the bell", "bell", NEWER, true, "bell"},
        {"needle longer than the text", "ab", "abc", NEWER, true, ""},
        {"upper case needle", "quiet words\n", "QUIET", NEWER, false, "quiet"},
    };
    for (const FindCase& c : cases) {
        SCOPED_TRACE(c.name);
        auto buffer = MakeBuffer(1000);
        buffer->AppendText(c.text, true);
        EXPECT_EQ(HitText(*buffer, FindText(*buffer, c.needle, c.direction == OLDER ? INT32_MAX : 0,
                                            c.direction, c.matchCase)),
                  c.hit);
    }
}

TEST(FindText, AcrossASoftLineEndAndTheSeam)
{
    // Ten columns break "the grey wolf howls" at its blanks.
    auto wrapped = MakeWrappingBuffer(10, 1000);
    wrapped->AppendText("the grey wolf howls\n", true);
    ASSERT_EQ(wrapped->CountLines(), 99 + 2) << "the match must cross the row's end";
    const TextHit soft = FindText(*wrapped, "wolf howls", 0, SearchDirection::Newer, true);
    EXPECT_EQ(HitText(*wrapped, soft), "wolf howls");

    // A small ring filled until its text runs over the seam; the word there is found whole.
    auto ring = MakeBuffer(MIN_BUFFER_CAPACITY + 60);
    while (ring->IsWrapped() == false || ring->GetWritePos() < 20) {
        ring->AppendText("0123456789\n", true);
    }
    const std::uint32_t toSeam = ring->GetCapacity() - ring->GetWritePos();
    ring->AppendText((std::string(toSeam - 3, '.') + "lantern\n").c_str(), true);
    const TextBuffer::TextRuns runs = ring->Runs();
    ASSERT_GT(runs.SecondLength, 0u);
    const TextHit seam = FindText(*ring, "lantern", INT32_MAX, SearchDirection::Older, true);
    EXPECT_EQ(HitText(*ring, seam), "lantern");
    EXPECT_LT(static_cast<std::uint32_t>(seam.Start), runs.FirstLength);
    EXPECT_GT(static_cast<std::uint32_t>(seam.End), runs.FirstLength);
}

TEST(FindText, StepsFromHitToHit)
{
    auto buffer = MakeBuffer(1000);
    buffer->AppendText("owl one\nowl two\nowl three\n", true);
    std::vector<std::int32_t> older;
    for (TextHit hit = FindText(*buffer, "owl", INT32_MAX, SearchDirection::Older, true);
         hit.Found(); hit = FindText(*buffer, "owl", hit.Start, SearchDirection::Older, true))
        older.push_back(hit.Start);
    std::vector<std::int32_t> newer;
    for (TextHit hit = FindText(*buffer, "owl", 0, SearchDirection::Newer, true); hit.Found();
         hit = FindText(*buffer, "owl", hit.Start + 1, SearchDirection::Newer, true))
        newer.push_back(hit.Start);
    ASSERT_EQ(older.size(), 3u);
    EXPECT_EQ(newer, std::vector<std::int32_t>(older.rbegin(), older.rend()));
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
