#include "TextBufferFixture.h"

#include <algorithm>
#include <iterator>
#include <random>

namespace steward::test {
namespace {

// A plain transcription of the append and rewrap rules over a vector, with the break search
// walking back byte by byte every time: the reference for the buffer's own, faster search.
class ReferenceRing {
  public:
    ReferenceRing(std::uint32_t capacity, std::int32_t wrapLimit, const CharWidthTable& widths)
        : ring_(capacity, 0), wrapLimit_(wrapLimit), widths_(widths)
    {
        std::fill_n(ring_.begin(), INITIAL_LINE_FEEDS, HARD_LINE_END);
    }

    void Resize(std::int32_t wrapLimit)
    {
        wrapLimit_ = wrapLimit;
        penX_ = 0;
        for (std::uint32_t p = head_; p != write_; p = Next(p)) {
            if (ring_[p] == SOFT_LINE_END) {
                ring_[p] = ' ';
            }
        }
        std::int32_t x = 0;
        for (std::uint32_t p = head_; p != write_; p = Next(p)) {
            const unsigned char b = ring_[p];
            if (b == HARD_LINE_END) {
                x = 0;
            } else if (b < 0x80 || b > 0xA3) {
                if (x + widths_[b] < wrapLimit_) {
                    x += widths_[b];
                } else if (const std::uint32_t q = FindBreak(p); q != p) {
                    ring_[q] = SOFT_LINE_END;
                    x = 0;
                    p = q;
                }
            }
        }
    }

    void SetSelection(std::int32_t start, std::int32_t end)
    {
        selStart_ = start;
        selEnd_ = end;
    }

    void Append(const std::string& text, bool track)
    {
        const std::uint32_t oldHead = head_;
        for (unsigned char b : text) {
            AppendByte(b);
        }
        ring_[write_] = WRITE_MARK;
        if (wrapped_) {
            head_ = Next(write_);
            while (ring_[head_] != HARD_LINE_END && head_ != write_) {
                head_ = Next(head_);
            }
            if (ring_[head_] == HARD_LINE_END) {
                head_ = Next(head_);
            }
        }
        if (track && selStart_ != selEnd_) {
            const auto size = static_cast<std::int32_t>(ring_.size());
            const std::int32_t dropped =
                (static_cast<std::int32_t>(head_) - static_cast<std::int32_t>(oldHead) + size) %
                size;
            selStart_ = std::max(selStart_ - dropped, 0);
            selEnd_ = std::max(selEnd_ - dropped, 0);
        }
    }

    void ExpectSameAs(const TextBuffer& buffer) const
    {
        ASSERT_EQ(buffer.GetWritePos(), write_);
        ASSERT_EQ(buffer.GetHeadPos(), head_);
        ASSERT_EQ(buffer.IsWrapped(), wrapped_);
        ASSERT_EQ(buffer.GetSelStart(), selStart_);
        ASSERT_EQ(buffer.GetSelEnd(), selEnd_);
        for (std::uint32_t p = 0; p < ring_.size(); ++p) {
            ASSERT_EQ(buffer.ByteAt(p), ring_[p]) << "at " << p;
        }
    }

  private:
    std::uint32_t Next(std::uint32_t p) const { return (p + 1) % ring_.size(); }
    std::uint32_t Prev(std::uint32_t p) const
    {
        return p == 0 ? static_cast<std::uint32_t>(ring_.size() - 1) : p - 1;
    }

    void Store(unsigned char b)
    {
        ring_[write_] = b;
        write_ = Next(write_);
        wrapped_ = wrapped_ || write_ == 0;
    }

    std::uint32_t FindBreak(std::uint32_t from) const
    {
        if (from == head_) {
            return from;
        }
        std::uint32_t p = from;
        for (;;) {
            p = Prev(p);
            if (ring_[p] == HARD_LINE_END || ring_[p] == SOFT_LINE_END) {
                return from;
            }
            if (ring_[p] == ' ') {
                return p;
            }
            if (p == head_) {
                return from;
            }
        }
    }

    void AppendByte(unsigned char b)
    {
        if (b >= 0x80 && b <= 0xA3) {
            Store(b);
        } else if (b == '\n') {
            Store(b);
            column_ = 0;
            penX_ = 0;
        } else if (b == '\r') {
            column_ = 0;
            penX_ = 0;
        } else if (b == '\t') {
            do {
                Store(' ');
                ++column_;
            } while (column_ % TAB_WIDTH != TAB_WIDTH - 1);
        } else if (b != 0x07) {
            if (penX_ + widths_[b] >= wrapLimit_) {
                const std::uint32_t p = FindBreak(write_);
                if (p != write_) {
                    ring_[p] = SOFT_LINE_END;
                    penX_ = 0;
                    for (std::uint32_t q = Next(p); q != write_; q = Next(q)) {
                        penX_ += widths_[ring_[q]];
                    }
                    column_ = 0;
                }
            }
            Store(b);
            penX_ += widths_[b];
            ++column_;
        }
    }

    std::vector<unsigned char> ring_;
    std::uint32_t write_ = INITIAL_LINE_FEEDS - 1;
    std::uint32_t head_ = 0;
    bool wrapped_ = false;
    std::int32_t column_ = 0;
    std::int32_t penX_ = 0;
    std::int32_t selStart_ = 0;
    std::int32_t selEnd_ = 0;
    std::int32_t wrapLimit_;
    CharWidthTable widths_;
};

// Random texts whose lines are often too long and often have no space at all; now and then
// one text is longer than the ring.
std::string RandomText(std::mt19937& random, int spaceWeight, std::uint32_t capacity)
{
    static const unsigned char rare[] = {'\n', '\t', '\r', 0x81, 0xA0, 0xFF, 0x07, 'W'};
    const std::size_t length =
        random() % 15 == 0 ? capacity / 2 + random() % (2 * capacity) : 1 + random() % 120;
    std::string text(length, 'a');
    for (char& c : text) {
        const unsigned roll = random() % 100;
        if (roll < static_cast<unsigned>(spaceWeight)) {
            c = ' ';
        } else if (roll < static_cast<unsigned>(spaceWeight) + 6) {
            c = static_cast<char>(rare[random() % std::size(rare)]);
        } else {
            c = static_cast<char>('a' + random() % 26);
        }
    }
    return text;
}

// The lines read from the head, each cut to the read limit, are the kept text split at its
// line ends (an open last line counts, a soft end opens one), and every line's start maps back
// to its index, as every position maps to the line ends before it. The clipboard form is the kept
// text with CR LF line ends and spaces for soft ones, without the blank lines a ring starts with;
// the export leaves out the colour codes.
void ExpectViewsOf(TextBuffer& buffer)
{
    const std::string kept = RingText(buffer);
    std::vector<std::string> lines{""};
    for (const char c : kept) {
        if (c == '\n' || c == static_cast<char>(SOFT_LINE_END))
            lines.emplace_back();
        else if (lines.back().size() < static_cast<std::size_t>(READ_LINE_LIMIT))
            lines.back() += c;
    }
    if (kept.empty() || kept.back() == '\n')
        lines.pop_back();
    ASSERT_EQ(AllLines(buffer), lines);
    ASSERT_EQ(buffer.CountLines(), static_cast<std::int32_t>(lines.size()));
    for (std::int32_t index = 0; index < buffer.CountLines(); ++index) {
        const auto start = buffer.SeekLine(index);
        ASSERT_EQ(start, buffer.GetWalkPos());
        ASSERT_EQ(buffer.LineIndexOf(start), index);
        const unsigned char before = buffer.ByteAt(buffer.Prev(start));
        ASSERT_TRUE(start == buffer.GetHeadPos() || before == '\n' || before == SOFT_LINE_END);
    }
    ASSERT_EQ(buffer.SeekLine(-3), buffer.GetHeadPos());
    ASSERT_EQ(buffer.SeekLine(buffer.CountLines()), buffer.GetWritePos());
    ASSERT_EQ(buffer.SeekLine(1000), buffer.GetWritePos());
    std::int32_t ends = 0;
    for (std::size_t offset = 0; offset <= kept.size(); ++offset) {
        const auto at = buffer.AdvancePos(buffer.GetHeadPos(), static_cast<std::int32_t>(offset));
        ASSERT_EQ(buffer.LineIndexOf(at), ends) << "offset " << offset;
        if (offset < kept.size())
            ends += kept[offset] == '\n' || kept[offset] == static_cast<char>(SOFT_LINE_END);
    }

    std::string copied;
    std::string plain;
    for (const char c : kept.substr(buffer.IsWrapped() ? 0 : kept.find_first_not_of('\n'))) {
        const std::string text = c == '\n'                               ? "\r\n"
                                 : c == static_cast<char>(SOFT_LINE_END) ? " "
                                                                         : std::string(1, c);
        copied += text;
        plain += IsColorCode(static_cast<unsigned char>(c)) ? "" : text;
    }
    ASSERT_EQ(CopiedText(buffer), copied + "\r\n");
    ASSERT_EQ(buffer.ExportPlainText(), plain + "\r\n");
    ASSERT_EQ(buffer.PlainDistance(buffer.TailStart(buffer.GetCapacity()), buffer.GetWritePos()),
              static_cast<std::int32_t>(plain.size()));
}

TEST(TextBufferMatchesReference, AfterEveryAppendAndRewrap)
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const std::uint32_t capacity = 150 + random() % 300;
        const std::int32_t columns = 3 + static_cast<std::int32_t>(random() % 30);
        const int spaceWeight = static_cast<int>(random() % 12);
        CharWidthTable widths = UniformWidths();
        widths['W'] = 3 * CHAR_PIXELS;
        auto buffer = MakeBuffer(capacity);
        buffer->SetGeometry(0, LimitForColumns(columns), widths);
        ReferenceRing reference(capacity, LimitForColumns(columns), widths);
        for (int step = 0; step < 300; ++step) {
            if (random() % 20 == 0) {
                const auto a = static_cast<std::int32_t>(random() % capacity);
                const auto b = random() % 3 ? static_cast<std::int32_t>(random() % capacity) : a;
                buffer->SetSelection(a, b);
                reference.SetSelection(a, b);
            }
            if (random() % 25 == 0) {
                const std::int32_t limit =
                    LimitForColumns(3 + static_cast<std::int32_t>(random() % 30));
                buffer->SetGeometry(0, limit, widths);
                buffer->Rewrap();
                reference.Resize(limit);
                ASSERT_NO_FATAL_FAILURE(reference.ExpectSameAs(*buffer)) << "rewrap at " << step;
            }
            const std::string text = RandomText(random, spaceWeight, capacity);
            const bool track = random() % 4 != 0;
            buffer->AppendText(text.c_str(), track);
            reference.Append(text, track);
            ASSERT_NO_FATAL_FAILURE(reference.ExpectSameAs(*buffer)) << "step " << step;
            ASSERT_NO_FATAL_FAILURE(ExpectViewsOf(*buffer)) << "step " << step;
        }
    }
}

// One append goes round the whole ring after a line that could not be broken: colour codes
// and a carriage return store text without any break search, and the next search must still
// find the space that now lies behind where the last one ended.
TEST(TextBufferMatchesReference, WhenOneAppendGoesRoundTheRing)
{
    constexpr std::uint32_t capacity = SMALL_CAPACITY;
    std::string text = "\n" + std::string(20, 'x') + "\r";
    text += std::string(130, '\x81') + "a b";
    text += std::string(67, '\x81') + std::string(12, 'y');
    auto buffer = MakeWrappingBuffer(10, capacity);
    ReferenceRing reference(capacity, LimitForColumns(10), UniformWidths());
    buffer->AppendText(text.c_str(), true);
    reference.Append(text, true);
    reference.ExpectSameAs(*buffer);
}

} // namespace
} // namespace steward::test
