#include "terminal/TextBuffer.h"

#include <algorithm>
#include <vector>

namespace steward {

namespace {

constexpr unsigned char SPACE = 0x20;
// ExportPlainText's room over the capacity, for the CR of every line feed.
constexpr std::size_t EXPORT_SLACK = 8192;

bool IsWordCharacter(unsigned char b)
{
    return (b >= 'a' && b <= 'z') || (b >= 'A' && b <= 'Z') || (b >= '0' && b <= '9');
}

bool IsTerminator(unsigned char b)
{
    return b == HARD_LINE_END || b == SOFT_LINE_END;
}

// The characters that one byte of the ring becomes in plain text.
std::int32_t PlainWidth(unsigned char b)
{
    return IsColorCode(b) ? 0 : b == HARD_LINE_END ? 2 : 1;
}

// Appends one byte of the ring as plain text.
void AppendPlain(std::string& text, unsigned char b)
{
    if (IsColorCode(b))
        return;
    if (b == HARD_LINE_END)
        text += "\r\n";
    else
        text.push_back(static_cast<char>(b == SOFT_LINE_END ? SPACE : b));
}

} // namespace

bool TextBuffer::BeginSelection(Position position)
{
    const bool existed = SelStart != SelEnd;
    SelStart = Offset(position);
    SelEnd = SelStart;
    return existed;
}

void TextBuffer::ExtendSelection(Position position)
{
    SelEnd = Offset(position);
}

void TextBuffer::MoveSelectionEdge(Position position)
{
    const std::int32_t o = Offset(position);
    std::int32_t low = 0;
    std::int32_t high = 0;
    SelectionRange(low, high);
    if (o >= high)
        SetSelection(low, o);
    else
        SetSelection(o, high);
}

void TextBuffer::SelectWord(Position position)
{
    SelStart = Offset(WordStart(position));
    SelEnd = std::max(Offset(WordEnd(position)), SelStart);
}

void TextBuffer::SelectLine(Position position)
{
    SetSelection(Offset(LineStart(position)), Offset(LineEnd(position)));
}

void TextBuffer::SelectionRange(std::int32_t& low, std::int32_t& high) const
{
    low = std::min(SelStart, SelEnd);
    high = std::max(SelStart, SelEnd);
}

// The walk back stops on the first byte that is not a word character, a line feed or a space
// included; a colour code in front of the word stays outside it.
TextBuffer::Position TextBuffer::WordStart(Position p) const
{
    while (p != HeadPos && IsWordCharacter(ByteAt(p)))
        p = Prev(p);
    if (!IsWordCharacter(ByteAt(p)))
        p = Next(p);
    if (p != HeadPos)
        while (p != WritePos && IsColorCode(ByteAt(p)))
            p = Next(p);
    return p;
}

TextBuffer::Position TextBuffer::WordEnd(Position p) const
{
    while (p != WritePos) {
        const unsigned char b = ByteAt(p);
        if (!IsWordCharacter(b) && !IsColorCode(b))
            break;
        p = Next(p);
    }
    return p;
}

TextBuffer::Position TextBuffer::LineStart(Position p) const
{
    while (p != HeadPos && !IsTerminator(ByteAt(p)))
        p = Prev(p);
    return p == HeadPos ? p : Next(p);
}

TextBuffer::Position TextBuffer::LineEnd(Position p) const
{
    while (p != WritePos && !IsTerminator(ByteAt(p)))
        p = Next(p);
    return p;
}

std::string TextBuffer::SelectionText() const
{
    std::int32_t low = 0;
    std::int32_t high = 0;
    SelectionRange(low, high);
    std::string text;
    Position p = AdvancePos(HeadPos, low);
    for (std::int32_t o = low; o < high && p != WritePos; ++o, p = Next(p))
        AppendPlain(text, ByteAt(p));
    return text;
}

std::string TextBuffer::ExportPlainText() const
{
    std::vector<char> copy(std::size_t{Capacity} + EXPORT_SLACK);
    const std::size_t length = CopyAsText(copy.data(), copy.size());
    std::string text;
    text.reserve(length);
    for (std::size_t i = 0; i < length; ++i)
        if (!IsColorCode(static_cast<unsigned char>(copy[i])))
            text.push_back(copy[i]);
    return text;
}

TextBuffer::Position TextBuffer::TailStart(std::uint32_t bytes) const
{
    const Position start = PlainStart();
    if (static_cast<std::uint32_t>(Offset(WritePos) - Offset(start)) <= bytes)
        return start;
    const Position cut = (WritePos + Capacity - bytes) % Capacity;
    for (Position p = cut; p != WritePos; p = Next(p))
        if (Storage[p] == HARD_LINE_END)
            return Next(p);
    return cut;
}

std::int32_t TextBuffer::PlainDistance(Position from, Position to) const
{
    std::int64_t plain = 0;
    Position p = from;
    for (std::int32_t n = Offset(to) - Offset(from); n > 0 && p != WritePos; --n, p = Next(p))
        plain += PlainWidth(Storage[p]);
    return static_cast<std::int32_t>(std::min<std::int64_t>(plain, INT32_MAX));
}

std::string TextBuffer::PlainTextFrom(Position position) const
{
    std::string text;
    for (Position p = position % Capacity; p != WritePos; p = Next(p))
        AppendPlain(text, Storage[p]);
    return text;
}

} // namespace steward
