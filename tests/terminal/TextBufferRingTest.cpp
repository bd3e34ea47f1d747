#include "TextBufferFixture.h"

namespace steward::test {
namespace {

// What the ring keeps across its seam, and how the head follows, is checked byte for byte
// against a reference in TextBufferModelTest; these are the seam's exact edges.
TEST(TextBufferRing, TextThatFillsTheRingExactlyWrapsOnItsLastByte)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    const std::string text(SMALL_CAPACITY - 100, 'x');
    buffer->AppendText(text.c_str(), true);
    EXPECT_FALSE(buffer->IsWrapped());
    EXPECT_EQ(buffer->GetWritePos(), SMALL_CAPACITY - 1);
    EXPECT_EQ(buffer->GetHeadPos(), 0u);

    buffer = BufferWith((text + "x").c_str(), SMALL_CAPACITY);
    EXPECT_TRUE(buffer->IsWrapped());
    EXPECT_EQ(buffer->GetWritePos(), 0u);
    EXPECT_EQ(buffer->ByteAt(0), WRITE_MARK);
    EXPECT_EQ(buffer->GetHeadPos(), 2u);
}

TEST(TextBufferRing, RingWithoutLineFeedsReadsAsEmptyUntilOneComes)
{
    auto buffer = BufferWith(std::string(300, 'x').c_str(), SMALL_CAPACITY);
    EXPECT_EQ(buffer->GetHeadPos(), buffer->GetWritePos());
    EXPECT_EQ(buffer->CountLines(), 0);
    EXPECT_EQ(CopiedText(*buffer), "\r\n");
    EXPECT_EQ(LastRows(*buffer, 2), (std::vector<std::string>{"", ""}));
    buffer->SeekFromEnd(3);
    EXPECT_EQ(buffer->GetWalkPos(), buffer->GetWritePos());
    Resize(*buffer, 3);
    buffer->AppendText("xx", true);
    EXPECT_EQ(buffer->CountLines(), 0);
    buffer->AppendText("\nabc\n", true);
    EXPECT_EQ(RingText(*buffer), "abc\n");
    EXPECT_EQ(buffer->CountLines(), 1);
}

TEST(TextBufferRing, WalkingAdvancingAndOffsetsStayInsideTheRing)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    EXPECT_EQ(buffer->Next(SMALL_CAPACITY - 1), 0u);
    EXPECT_EQ(buffer->Prev(0), SMALL_CAPACITY - 1);
    EXPECT_LT(buffer->Next(SMALL_CAPACITY + 7), SMALL_CAPACITY);
    EXPECT_LT(buffer->Prev(SMALL_CAPACITY + 7), SMALL_CAPACITY);
    EXPECT_EQ(buffer->ByteAt(SMALL_CAPACITY + 1), buffer->ByteAt(1));
    const struct {
        TextBuffer::Position from;
        std::int32_t count;
        TextBuffer::Position expected;
    } advances[] = {{5, -3, 5}, {195, 4, 199}, {195, 5, 0}, {10, 2 * SMALL_CAPACITY + 1, 11}};
    for (const auto& c : advances)
        EXPECT_EQ(buffer->AdvancePos(c.from, c.count), c.expected) << c.from << " + " << c.count;

    buffer->AppendText((std::string(SMALL_CAPACITY - 80, 'x') + "\nabc").c_str(), true);
    const auto head = buffer->GetHeadPos();
    ASSERT_GT(head, 0u);
    EXPECT_EQ(buffer->Offset(head), 0);
    EXPECT_EQ(buffer->Offset(buffer->Prev(head)), static_cast<std::int32_t>(SMALL_CAPACITY - 1));
    EXPECT_EQ(buffer->Offset(buffer->GetWritePos()),
              static_cast<std::int32_t>(RingText(*buffer).size()));
}

// A selection keeps its place while frozen appends go on, and an empty one never moves.
TEST(TextBufferRing, SelectionStaysWhileFrozenOrEmpty)
{
    for (const auto& [start, end, track] : {std::tuple{10, 20, false}, std::tuple{7, 7, true}}) {
        auto buffer = MakeBuffer(SMALL_CAPACITY);
        buffer->SetSelection(start, end);
        for (int i = 0; i < 40; ++i)
            buffer->AppendText("more lines\n", track);
        ASSERT_TRUE(buffer->IsWrapped());
        EXPECT_EQ(buffer->GetSelStart(), start) << track;
        EXPECT_EQ(buffer->GetSelEnd(), end) << track;
        buffer->ClearSelection();
        EXPECT_EQ(buffer->GetSelEnd(), 0);
    }
}

} // namespace
} // namespace steward::test
