#include "TextBufferFixture.h"

#include <cstring>

namespace steward::test {
namespace {

constexpr std::uint32_t SMALL_CAPACITY = 200;
constexpr char CANARY = 0x7E;

struct CopyCase {
    const char* name;
    const char* text;
    std::string copied;
};

class TextBufferCopyAsText : public testing::TestWithParam<CopyCase> {};

TEST_P(TextBufferCopyAsText, GivesClipboardForm)
{
    auto buffer = MakeWrappingBuffer(10);
    buffer->AppendText(GetParam().text, true);
    const std::string copied = CopiedText(*buffer);
    EXPECT_EQ(copied, GetParam().copied);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextBufferCopyAsText,
    testing::Values(CopyCase{"LineFeedsBecomeCrLf", "abc\ndef", "abc\r\ndef\r\n"},
                    CopyCase{"FinalLineFeed", "abc\n", "abc\r\n\r\n"},
                    CopyCase{"SoftLineEndsAreSpaces", "hello world again", "hello world again\r\n"},
                    CopyCase{"ColorCodesStay", "\x81red\xA0", "\x81red\xA0\r\n"},
                    CopyCase{"LeadingEmptyLinesGo", "\n\nabc\n\ndef", "abc\r\n\r\ndef\r\n"}),
    [](const auto& info) { return info.param.name; });

TEST(TextBufferCopyAsText, WrappedRingKeepsItsLeadingEmptyLines)
{
    auto buffer = MakeBuffer(SMALL_CAPACITY);
    buffer->AppendText((std::string(250, 'x') + "\n\n\nabc").c_str(), true);
    ASSERT_TRUE(buffer->IsWrapped());
    EXPECT_EQ(CopiedText(*buffer), "\r\n\r\nabc\r\n");
}

struct RoomCase {
    std::size_t room;
    std::string copied;
};

void PrintTo(const RoomCase& c, std::ostream* out)
{
    *out << "room " << c.room << " copies " << ::testing::PrintToString(c.copied);
}

class TextBufferCopyIntoRoom : public testing::TestWithParam<RoomCase> {};

// However small the room, nothing is written past it, and the copy still ends in CR LF NUL
// whenever those fit.
TEST_P(TextBufferCopyIntoRoom, NeverWritesPastIt)
{
    auto buffer = MakeBuffer();
    buffer->AppendText("ab\ncd", true);
    const std::size_t room = GetParam().room;
    std::vector<char> out(room + 16, CANARY);
    const std::size_t length = buffer->CopyAsText(out.data(), room);
    for (std::size_t i = room; i < out.size(); ++i) {
        ASSERT_EQ(out[i], CANARY) << "byte " << i;
    }
    EXPECT_EQ(length, GetParam().copied.size());
    if (room > 0) {
        EXPECT_EQ(std::string(out.data()), GetParam().copied);
    }
}

INSTANTIATE_TEST_SUITE_P(Rooms, TextBufferCopyIntoRoom,
                         testing::Values(RoomCase{0, ""}, RoomCase{1, ""}, RoomCase{2, ""},
                                         RoomCase{3, "\r\n"}, RoomCase{4, "a\r\n"},
                                         RoomCase{5, "ab\r\n"}, RoomCase{6, "ab\r\n"},
                                         RoomCase{7, "ab\r\n\r\n"}, RoomCase{8, "ab\r\nc\r\n"},
                                         RoomCase{9, "ab\r\ncd\r\n"},
                                         RoomCase{100, "ab\r\ncd\r\n"}));

TEST(TextBufferCopyAsText, FullRingOfLineFeedsFitsCapacityPlusSlack)
{
    auto buffer = MakeBuffer(GAME_BUFFER_CAPACITY);
    buffer->AppendText("x", true);
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
std::unique_ptr<TextBuffer> SourceBuffer(std::uint32_t capacity)
{
    auto source = MakeWrappingBuffer(12, capacity);
    for (int i = 0; i < 30; ++i) {
        source->AppendText(("row " + std::to_string(i) + " of text\n").c_str(), true);
    }
    source->AppendText("open line", true);
    source->SetSelection(40, 12);
    return source;
}

TEST(TextBufferCopyBufferTo, MakesAnEqualBuffer)
{
    auto source = SourceBuffer(SMALL_CAPACITY);
    auto copy = MakeBuffer(SMALL_CAPACITY);
    copy->SeekLine(5);
    const auto walkBefore = copy->GetWalkPos();
    ASSERT_TRUE(source->CopyBufferTo(*copy));

    EXPECT_EQ(copy->GetWalkPos(), walkBefore);
    EXPECT_EQ(RingText(*copy), RingText(*source));
    EXPECT_EQ(copy->GetHeadPos(), source->GetHeadPos());
    EXPECT_EQ(copy->GetWritePos(), source->GetWritePos());
    EXPECT_EQ(copy->IsWrapped(), source->IsWrapped());
    EXPECT_EQ(copy->GetSelStart(), 40);
    EXPECT_EQ(copy->GetSelEnd(), 12);
    EXPECT_EQ(copy->GetWrapLimit(), source->GetWrapLimit());
    EXPECT_EQ(AllLines(*copy), AllLines(*source));

    // The pen and the widths came along: both wrap the next text alike.
    source->AppendText(" and more words", true);
    copy->AppendText(" and more words", true);
    EXPECT_EQ(RingText(*copy), RingText(*source));

    // The copy has a ring of its own.
    const std::string before = RingText(*source);
    const std::int32_t selStart = source->GetSelStart();
    ASSERT_NE(selStart, 0);
    copy->AppendText("only in the copy\n", true);
    copy->ClearSelection();
    EXPECT_EQ(RingText(*source), before);
    EXPECT_EQ(source->GetSelStart(), selStart);
}

TEST(TextBufferCopyBufferTo, RefusesADifferentCapacity)
{
    for (std::uint32_t capacity :
         {SMALL_CAPACITY - 1, SMALL_CAPACITY + 1, WINDOW_BUFFER_CAPACITY}) {
        auto source = SourceBuffer(SMALL_CAPACITY);
        auto other = MakeBuffer(capacity);
        other->AppendText("mine", true);
        const std::string before = RingText(*other);
        EXPECT_FALSE(source->CopyBufferTo(*other)) << capacity;
        EXPECT_EQ(RingText(*other), before);
        EXPECT_EQ(other->GetSelStart(), 0);
        EXPECT_FALSE(other->CopyBufferTo(*source));
    }
}

TEST(TextBufferCopyBufferTo, IntoItselfChangesNothing)
{
    auto source = SourceBuffer(SMALL_CAPACITY);
    const std::string before = RingText(*source);
    EXPECT_TRUE(source->CopyBufferTo(*source));
    EXPECT_EQ(RingText(*source), before);
}

TEST(TextBufferCopySelectionTo, CopiesTheOffsetsOnly)
{
    auto source = SourceBuffer(SMALL_CAPACITY);
    auto other = MakeBuffer(WINDOW_BUFFER_CAPACITY);
    other->AppendText("mine", true);
    const std::string before = RingText(*other);
    source->CopySelectionTo(*other);
    EXPECT_EQ(other->GetSelStart(), 40);
    EXPECT_EQ(other->GetSelEnd(), 12);
    EXPECT_EQ(RingText(*other), before);
}

} // namespace
} // namespace steward::test
