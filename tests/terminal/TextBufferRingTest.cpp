#include "TextBufferFixture.h"

#include <algorithm>
#include <tuple>

namespace steward::test {
namespace {

constexpr std::uint32_t SMALL_CAPACITY = 200;

// What a ring of that capacity keeps of everything ever written into it (the initial line
// feeds included): the newest capacity - 1 bytes once it has wrapped, less the rest of the
// oldest line up to its first line feed.
std::string KeptText(const std::string& stream, std::uint32_t capacity)
{
    if (stream.size() < capacity) {
        return stream;
    }
    const std::string newest = stream.substr(stream.size() - (capacity - 1));
    const std::size_t lineFeed = newest.find('\n');
    return lineFeed == std::string::npos ? std::string() : newest.substr(lineFeed + 1);
}

std::string FreshStream()
{
    return std::string(INITIAL_LINE_FEEDS - 1, '\n');
}

TEST(TextBufferRing, TextThatFillsTheRingExactlyWrapsOnItsLastByte)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    const std::string text(SMALL_CAPACITY - 100, 'x');
    buffer->AppendText(text.c_str(), true);
    EXPECT_FALSE(buffer->IsWrapped());
    EXPECT_EQ(buffer->GetWritePos(), SMALL_CAPACITY - 1);
    EXPECT_EQ(buffer->GetHeadPos(), 0u);

    buffer = MakeBuffer(SMALL_CAPACITY);
    buffer->AppendText((text + "x").c_str(), true);
    EXPECT_TRUE(buffer->IsWrapped());
    EXPECT_EQ(buffer->GetWritePos(), 0u);
    EXPECT_EQ(buffer->ByteAt(0), WRITE_MARK);
    EXPECT_EQ(buffer->GetHeadPos(), 2u);
}

struct RingCase {
    const char* name;
    std::uint32_t capacity;
    std::vector<std::string> appends;
    int repeats;
};

class TextBufferRingKeeps : public testing::TestWithParam<RingCase> {};

// After every append the ring holds exactly the newest whole lines, however the appends
// fall on the seam.
TEST_P(TextBufferRingKeeps, TheNewestWholeLines)
{
    const RingCase& c = GetParam();
    auto buffer = MakeBuffer(c.capacity);
    std::string stream = FreshStream();
    int seamCrossings = 0;
    for (int r = 0; r < c.repeats; ++r) {
        for (const std::string& text : c.appends) {
            const auto headBefore = buffer->GetHeadPos();
            buffer->AppendText(text.c_str(), true);
            stream += text;
            if (buffer->GetHeadPos() < headBefore) {
                ++seamCrossings;
            }
            ASSERT_EQ(RingText(*buffer), KeptText(stream, c.capacity)) << "after " << stream.size();
            ASSERT_EQ(buffer->ByteAt(buffer->GetWritePos()), WRITE_MARK);
            const auto head = buffer->GetHeadPos();
            ASSERT_TRUE(head == buffer->GetWritePos() || buffer->Offset(head) == 0);
        }
    }
    EXPECT_GE(seamCrossings, 1);
}

std::vector<std::string> NumberedLines(int count, int width)
{
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i) {
        std::string line = "line " + std::to_string(i) + " ";
        line.resize(static_cast<std::size_t>(width), '.');
        lines.push_back(line + "\n");
    }
    return lines;
}

INSTANTIATE_TEST_SUITE_P(
    AcrossTheSeam, TextBufferRingKeeps,
    testing::Values(RingCase{"LinesNotDividingTheRing", SMALL_CAPACITY, NumberedLines(5, 22), 20},
                    RingCase{"LinesInPieces", SMALL_CAPACITY, {"first half ", "second\n", "x"}, 60},
                    RingCase{"LongLines", SMALL_CAPACITY, NumberedLines(3, 90), 12},
                    RingCase{"AppendLongerThanTheRing",
                             SMALL_CAPACITY,
                             {std::string(150, 'a') + "\n" + std::string(100, 'b') + "\nc\n"},
                             5},
                    RingCase{"WindowRing", WINDOW_BUFFER_CAPACITY, NumberedLines(40, 70), 20}),
    [](const auto& info) { return info.param.name; });

TEST(TextBufferRing, RingWithoutLineFeedsReadsAsEmptyUntilOneComes)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    const std::string flood(300, 'x');
    buffer->AppendText(flood.c_str(), true);
    EXPECT_EQ(buffer->GetHeadPos(), buffer->GetWritePos());
    EXPECT_EQ(buffer->CountLines(), 0);
    EXPECT_EQ(CopiedText(*buffer), "\r\n");
    EXPECT_EQ(LastRows(*buffer, 2), (std::vector<std::string>{"", ""}));
    buffer->SeekFromEnd(3);
    EXPECT_EQ(buffer->GetWalkPos(), buffer->GetWritePos());

    buffer->AppendText("xx", true);
    EXPECT_EQ(buffer->CountLines(), 0);

    buffer->AppendText("\nabc\n", true);
    EXPECT_EQ(RingText(*buffer), "abc\n");
    EXPECT_EQ(buffer->CountLines(), 1);
}

TEST(TextBufferRing, SoftLineEndsDoNotStopTheDropOfTheOldestLine)
{
    auto buffer = MakeWrappingBuffer(10, SMALL_CAPACITY);
    buffer->AppendText("old old old old old old\nkept\n", true);
    // The ring's oldest byte is now inside the first, soft-wrapped line.
    const std::string filler(180, 'y');
    buffer->AppendText((filler + "\n").c_str(), true);
    EXPECT_EQ(RingText(*buffer).substr(0, 5), "kept\n");
}

// Selection offsets of the text "TARGET" in a ring, found by walking it.
std::int32_t OffsetOfTarget(const TextBuffer& buffer)
{
    const std::string text = RingText(buffer);
    const std::size_t at = text.find("TARGET");
    return at == std::string::npos ? -1 : static_cast<std::int32_t>(at);
}

std::string SelectedBytes(const TextBuffer& buffer)
{
    const std::int32_t lo = std::min(buffer.GetSelStart(), buffer.GetSelEnd());
    const std::int32_t hi = std::max(buffer.GetSelStart(), buffer.GetSelEnd());
    std::string bytes;
    for (std::int32_t i = lo; i < hi; ++i) {
        bytes.push_back(
            static_cast<char>(buffer.ByteAt(buffer.AdvancePos(buffer.GetHeadPos(), i))));
    }
    return bytes;
}

class TextBufferSelectionTracking : public testing::TestWithParam<std::tuple<bool, int>> {};

// A selection follows its text, in either direction, until the head passes it; the fills put
// the head's crossing of the seam at different moments of the selection's life.
TEST_P(TextBufferSelectionTracking, FollowsItsTextUntilItLeaves)
{
    const auto [reversed, fill] = GetParam();
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    for (int i = 0; i < fill; ++i) {
        buffer->AppendText("fill\n", true);
    }
    buffer->AppendText("pick the TARGET here\n", true);
    const std::int32_t at = OffsetOfTarget(*buffer);
    buffer->SetSelection(reversed ? at + 6 : at, reversed ? at : at + 6);
    int seamCrossings = 0;
    while (OffsetOfTarget(*buffer) >= 0) {
        ASSERT_EQ(SelectedBytes(*buffer), "TARGET");
        ASSERT_EQ(reversed, buffer->GetSelStart() > buffer->GetSelEnd());
        const auto head = buffer->GetHeadPos();
        buffer->AppendText("more\n", true);
        seamCrossings += buffer->GetHeadPos() < head ? 1 : 0;
    }
    EXPECT_EQ(seamCrossings, 1);
    EXPECT_EQ(buffer->GetSelStart(), 0);
    EXPECT_EQ(buffer->GetSelEnd(), 0);
}

INSTANTIATE_TEST_SUITE_P(BothDirections, TextBufferSelectionTracking,
                         testing::Combine(testing::Bool(), testing::Values(20, 31, 45, 55)));

TEST(TextBufferSelection, CollapsesOntoTheOldestTextWhenItsTextLeaves)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    buffer->AppendText("first line\nsecond\n", true);
    const std::int32_t first = INITIAL_LINE_FEEDS - 1;
    // From inside the first line to inside the second.
    buffer->SetSelection(first + 3, first + 14);
    // The ring's oldest byte is now inside the first line.
    const std::string filler(185, 'z');
    buffer->AppendText(filler.c_str(), true);
    // Only the first line has gone: the start is raised to 0, the end still marks "sec".
    EXPECT_EQ(buffer->GetSelStart(), 0);
    EXPECT_EQ(SelectedBytes(*buffer), "sec");

    buffer->AppendText("wwwwwwwwww", true);
    EXPECT_EQ(buffer->GetSelStart(), 0);
    EXPECT_EQ(buffer->GetSelEnd(), 0);
}

// Frozen appends leave a selection where it was, and an empty selection never moves.
TEST(TextBufferSelection, StaysWhileFrozenOrEmpty)
{
    for (const auto& [start, end, track] : {std::tuple{10, 20, false}, std::tuple{7, 7, true}}) {
        auto buffer = MakeBuffer(SMALL_CAPACITY);
        buffer->SetSelection(start, end);
        for (int i = 0; i < 40; ++i) {
            buffer->AppendText("more lines\n", track);
        }
        ASSERT_TRUE(buffer->IsWrapped());
        EXPECT_EQ(buffer->GetSelStart(), start) << track;
        EXPECT_EQ(buffer->GetSelEnd(), end) << track;
        buffer->ClearSelection();
        EXPECT_EQ(buffer->GetSelStart(), 0);
        EXPECT_EQ(buffer->GetSelEnd(), 0);
    }
}

struct AdvanceCase {
    TextBuffer::Position from;
    std::int32_t count;
    TextBuffer::Position expected;
};

void PrintTo(const AdvanceCase& c, std::ostream* out)
{
    *out << c.from << " by " << c.count << " gives " << c.expected;
}

class TextBufferAdvance : public testing::TestWithParam<AdvanceCase> {};

TEST_P(TextBufferAdvance, WrapsAtTheSeam)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    EXPECT_EQ(buffer->AdvancePos(GetParam().from, GetParam().count), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Counts, TextBufferAdvance,
                         testing::Values(AdvanceCase{5, -3, 5}, AdvanceCase{195, 4, 199},
                                         AdvanceCase{195, 5, 0},
                                         AdvanceCase{10, 2 * SMALL_CAPACITY + 1, 11}));

TEST(TextBufferRing, WalkingStaysInsideTheRing)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    EXPECT_EQ(buffer->Next(SMALL_CAPACITY - 1), 0u);
    EXPECT_EQ(buffer->Prev(0), SMALL_CAPACITY - 1);
    EXPECT_LT(buffer->Next(SMALL_CAPACITY + 7), SMALL_CAPACITY);
    EXPECT_LT(buffer->Prev(SMALL_CAPACITY + 7), SMALL_CAPACITY);
    EXPECT_EQ(buffer->ByteAt(SMALL_CAPACITY + 1), buffer->ByteAt(1));
}

TEST(TextBufferRing, OffsetsCountAlongTheRingFromTheHead)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    const std::string text = std::string(SMALL_CAPACITY - 100 + 20, 'x') + "\nabc";
    buffer->AppendText(text.c_str(), true);
    const auto head = buffer->GetHeadPos();
    ASSERT_GT(head, 0u);
    EXPECT_EQ(buffer->Offset(head), 0);
    EXPECT_EQ(buffer->Offset(buffer->Prev(head)), static_cast<std::int32_t>(SMALL_CAPACITY - 1));
    EXPECT_EQ(buffer->Offset(buffer->GetWritePos()),
              static_cast<std::int32_t>(RingText(*buffer).size()));
}

} // namespace
} // namespace steward::test
