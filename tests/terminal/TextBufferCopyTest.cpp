#include "TextBufferFixture.h"

#include <cstring>

namespace steward::test {
namespace {

constexpr char CANARY = 0x7E;

// However small the room, nothing is written past it, and the copy still ends in CR LF NUL
// whenever those fit.
TEST(TextBufferCopyAsText, NeverWritesPastTheRoom)
{
    const std::pair<std::size_t, std::string> cases[] = {{0, ""},
                                                         {1, ""},
                                                         {2, ""},
                                                         {3, "\r\n"},
                                                         {4, "a\r\n"},
                                                         {5, "ab\r\n"},
                                                         {6, "ab\r\n"},
                                                         {7, "ab\r\n\r\n"},
                                                         {8, "ab\r\nc\r\n"},
                                                         {9, "ab\r\ncd\r\n"},
                                                         {100, "ab\r\ncd\r\n"}};
    auto buffer = BufferWith("ab\ncd");
    for (const auto& [room, copied] : cases) {
        std::vector<char> out(room + 16, CANARY);
        EXPECT_EQ(buffer->CopyAsText(out.data(), room), copied.size()) << room;
        for (std::size_t i = room; i < out.size(); ++i)
            ASSERT_EQ(out[i], CANARY) << "room " << room << " byte " << i;
        if (room > 0) {
            EXPECT_EQ(std::string(out.data()), copied);
        }
    }
    buffer = BufferWith("x", GAME_BUFFER_CAPACITY);
    buffer->AppendText(std::string(GAME_BUFFER_CAPACITY, '\n').c_str(), true);
    const std::size_t room = GAME_BUFFER_CAPACITY + 8192;
    std::vector<char> out(room + 1, CANARY);
    const std::size_t length = buffer->CopyAsText(out.data(), room);
    EXPECT_EQ(out[room], CANARY);
    EXPECT_LT(length, room);
    EXPECT_EQ(std::strlen(out.data()), length);
    EXPECT_EQ(std::string(out.data() + length - 4, 4), "\r\n\r\n");
}

// A buffer with text across the seam, a selection, and geometry of its own.
std::unique_ptr<TextBuffer> SourceBuffer()
{
    auto source = MakeWrappingBuffer(12, SMALL_CAPACITY);
    for (int i = 0; i < 30; ++i)
        source->AppendText(("row " + std::to_string(i) + " of text\n").c_str(), true);
    source->AppendText("open line", true);
    source->SetSelection(40, 12);
    return source;
}

// Everything a copy carries: the ring's positions, selection, wrap limit and kept text.
std::string Whole(const TextBuffer& buffer)
{
    return std::to_string(buffer.GetHeadPos()) + ".." + std::to_string(buffer.GetWritePos()) +
           (buffer.IsWrapped() ? " wrapped" : "") + " sel " + std::to_string(buffer.GetSelStart()) +
           ".." + std::to_string(buffer.GetSelEnd()) + " limit " +
           std::to_string(buffer.GetWrapLimit()) + " " + RingText(buffer);
}

TEST(TextBufferCopyBufferTo, MakesAnEqualBufferOfItsOwn)
{
    auto source = SourceBuffer();
    auto copy = MakeBuffer(SMALL_CAPACITY);
    copy->SeekLine(5);
    const auto walkBefore = copy->GetWalkPos();
    ASSERT_TRUE(source->CopyBufferTo(*copy));
    EXPECT_EQ(copy->GetWalkPos(), walkBefore);
    EXPECT_EQ(Whole(*copy), Whole(*source));
    EXPECT_TRUE(source->IsWrapped());
    // The pen and the widths came along: both wrap the next text alike.
    source->AppendText(" and more words", true);
    copy->AppendText(" and more words", true);
    EXPECT_EQ(Whole(*copy), Whole(*source));
    const std::string before = Whole(*source);
    copy->AppendText("only in the copy\n", true);
    copy->ClearSelection();
    EXPECT_EQ(Whole(*source), before);
    EXPECT_TRUE(source->CopyBufferTo(*source));
    EXPECT_EQ(Whole(*source), before);
}

TEST(TextBufferCopyBufferTo, RefusesADifferentCapacityButCopiesASelection)
{
    for (std::uint32_t capacity :
         {SMALL_CAPACITY - 1, SMALL_CAPACITY + 1, WINDOW_BUFFER_CAPACITY}) {
        auto source = SourceBuffer();
        auto other = BufferWith("mine", capacity);
        const std::string before = Whole(*other);
        EXPECT_FALSE(source->CopyBufferTo(*other)) << capacity;
        EXPECT_FALSE(other->CopyBufferTo(*source));
        EXPECT_EQ(Whole(*other), before);
        source->CopySelectionTo(*other);
        EXPECT_EQ(other->GetSelStart(), 40);
        EXPECT_EQ(other->GetSelEnd(), 12);
        EXPECT_EQ(RingText(*other), RingText(*BufferWith("mine", capacity)));
    }
}

} // namespace
} // namespace steward::test
