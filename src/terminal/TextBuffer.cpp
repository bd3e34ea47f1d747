#include "terminal/TextBuffer.h"

#include <algorithm>
#include <climits>
#include <new>
#include <utility>

namespace steward {

namespace {

constexpr unsigned char BELL = 0x07;
constexpr unsigned char TAB = 0x09;
constexpr unsigned char CARRIAGE_RETURN = 0x0D;
constexpr unsigned char SPACE = 0x20;
// CopyAsText always closes with CR, LF and NUL.
constexpr std::size_t CLOSING_SIZE = 3;

bool IsLineEnd(unsigned char b)
{
    return b == HARD_LINE_END || b == SOFT_LINE_END;
}

// Pixel sums and character counts of a line that never ends must not overflow.
std::int32_t Saturated(std::int64_t value)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

} // namespace

std::unique_ptr<TextBuffer> TextBuffer::CreateTextBuffer(std::uint32_t capacity)
{
    if (capacity < MIN_BUFFER_CAPACITY || capacity > static_cast<std::uint32_t>(INT32_MAX)) {
        return nullptr;
    }
    std::unique_ptr<unsigned char[]> storage(new (std::nothrow) unsigned char[capacity]());
    if (!storage) {
        return nullptr;
    }
    return std::unique_ptr<TextBuffer>(new (std::nothrow) TextBuffer(capacity, std::move(storage)));
}

TextBuffer::TextBuffer(std::uint32_t capacity, std::unique_ptr<unsigned char[]> storage)
    : Capacity(capacity), Storage(std::move(storage))
{
    CharWidthTable widths;
    widths.fill(INITIAL_CHAR_WIDTH);
    SetCharWidths(widths);
    std::fill_n(Storage.get(), INITIAL_LINE_FEEDS, HARD_LINE_END);
    WritePos = INITIAL_LINE_FEEDS - 1;
    WalkPos = WritePos;
    PenX = LeftMargin;
}

TextBuffer::Position TextBuffer::Next(Position p) const
{
    return p + 1 < Capacity ? p + 1 : 0;
}

TextBuffer::Position TextBuffer::Prev(Position p) const
{
    return p == 0 || p > Capacity ? Capacity - 1 : p - 1;
}

unsigned char TextBuffer::ByteAt(Position p) const
{
    return Storage[p < Capacity ? p : p % Capacity];
}

std::int32_t TextBuffer::Offset(Position p) const
{
    p = p < Capacity ? p : p % Capacity;
    return static_cast<std::int32_t>(HeadPos <= p ? p - HeadPos : p + Capacity - HeadPos);
}

TextBuffer::Position TextBuffer::AdvancePos(Position position, std::int32_t count) const
{
    if (count < 1) {
        return position;
    }
    return static_cast<Position>((std::uint64_t{position} + static_cast<std::uint64_t>(count)) %
                                 Capacity);
}

TextBuffer::TextRuns TextBuffer::Runs() const
{
    const unsigned char* ring = Storage.get();
    if (HeadPos <= WritePos)
        return {ring + HeadPos, WritePos - HeadPos, ring, 0};
    return {ring + HeadPos, Capacity - HeadPos, ring, WritePos};
}

void TextBuffer::SetGeometry(std::int32_t leftMargin, std::int32_t width,
                             const CharWidthTable& charWidths)
{
    LeftMargin = leftMargin;
    PenX = leftMargin;
    SetCharWidths(charWidths);
    WrapLimit = std::max(width, Saturated(std::int64_t{leftMargin} + MIN_WRAP_WIDTH));
}

void TextBuffer::AppendText(const char* text, bool trackSelection)
{
    const Position oldHead = HeadPos;
    if (text != nullptr) {
        const auto* t = reinterpret_cast<const unsigned char*>(text);
        while (*t != '\0') {
            const unsigned char* behind = StoreRun(t);
            if (behind != t)
                t = behind;
            else
                AppendByte(*t++);
        }
    }
    Storage[WritePos] = WRITE_MARK;
    if (Wrapped) {
        ForgetBreakScan();
        DropOverwrittenLine();
    } else {
        HeadPos = 0;
    }
    if (trackSelection && SelStart != SelEnd) {
        const std::int64_t dropped =
            HeadPos >= oldHead ? HeadPos - oldHead : std::int64_t{HeadPos} + Capacity - oldHead;
        SelStart = Saturated(std::max<std::int64_t>(SelStart - dropped, 0));
        SelEnd = Saturated(std::max<std::int64_t>(SelEnd - dropped, 0));
    }
}

namespace {

// A byte that AppendByte would store as a character of the row.
bool IsPlainCharacter(unsigned char b)
{
    return !IsColorCode(b) && b != HARD_LINE_END && b != CARRIAGE_RETURN && b != BELL && b != TAB &&
           b != '\0';
}

} // namespace

void TextBuffer::SetCharWidths(const CharWidthTable& widths)
{
    // Far beyond any row: a pen is an int32, so this sum never reaches back under a wrap limit.
    constexpr std::int64_t NEVER_FITS = std::int64_t{1} << 40;
    CharWidth = widths;
    for (int b = 0; b < 256; ++b)
        runWidth_[b] = IsPlainCharacter(static_cast<unsigned char>(b)) ? widths[b] : NEVER_FITS;
}

// The receive path's common case in one loop: plain characters that fit on the row are stored
// as StoreCharacter would store them one by one. The run stops before the ring's last byte and
// before scanStop_, which the byte path looks after; it may store nothing.
const unsigned char* TextBuffer::StoreRun(const unsigned char* t)
{
    Position limit = Capacity - 1;
    if (scanStop_ != NO_POSITION && scanStop_ >= WritePos && scanStop_ < limit) {
        limit = scanStop_;
    }
    unsigned char* const ring = Storage.get();
    const std::int64_t wrapLimit = WrapLimit;
    const Position start = WritePos;
    Position at = start;
    std::int64_t pen = PenX;
    for (; at < limit; ++t, ++at) {
        const std::int64_t width = runWidth_[*t];
        if (pen + width >= wrapLimit)
            break;
        ring[at] = *t;
        pen += width;
    }
    WritePos = at;
    PenX = static_cast<std::int32_t>(pen);
    Column = Saturated(std::int64_t{Column} + (at - start));
    return t;
}

void TextBuffer::AppendByte(unsigned char b)
{
    if (IsColorCode(b)) {
        Store(b);
        return;
    }
    switch (b) {
    case HARD_LINE_END:
        Store(b);
        StartLine();
        return;
    case CARRIAGE_RETURN:
        StartLine();
        return;
    case BELL:
        if (bell_ != nullptr) {
            bell_->Beep();
        }
        return;
    case TAB:
        StoreTab();
        return;
    default:
        StoreCharacter(b);
    }
}

void TextBuffer::Store(unsigned char b)
{
    if (WritePos == scanStop_) {
        ForgetBreakScan();
    }
    Storage[WritePos] = b;
    WritePos = Next(WritePos);
    if (WritePos == 0) {
        Wrapped = true;
    }
}

void TextBuffer::StartLine()
{
    Column = 0;
    PenX = LeftMargin;
}

// The spaces of a tab are not measured: the next character's wrap test catches up.
void TextBuffer::StoreTab()
{
    do {
        Store(SPACE);
        Column = Saturated(std::int64_t{Column} + 1);
    } while (Column % TabWidth != TabWidth - 1);
}

void TextBuffer::StoreCharacter(unsigned char b)
{
    if (std::int64_t{PenX} + CharWidth[b] >= WrapLimit) {
        BreakLine();
    }
    Store(b);
    PenX = Saturated(std::int64_t{PenX} + CharWidth[b]);
    Column = Saturated(std::int64_t{Column} + 1);
}

void TextBuffer::BreakLine()
{
    const Position p = FindAppendBreak();
    if (p == WritePos) {
        return;
    }
    Storage[p] = SOFT_LINE_END;
    PenX = Saturated(LeftMargin + WidthFrom(Next(p), WritePos));
    Column = 0;
}

std::int64_t TextBuffer::WidthFrom(Position start, Position end) const
{
    std::int64_t width = 0;
    for (Position p = start; p != end; p = Next(p)) {
        width += CharWidth[Storage[p]];
    }
    return width;
}

// The rest of the oldest line goes with whatever part of it was overwritten.
void TextBuffer::DropOverwrittenLine()
{
    HeadPos = Next(WritePos);
    while (Storage[HeadPos] != HARD_LINE_END && HeadPos != WritePos) {
        HeadPos = Next(HeadPos);
    }
    if (Storage[HeadPos] == HARD_LINE_END) {
        HeadPos = Next(HeadPos);
    }
}

// The walk ends early on mark when an earlier walk from mark found no space; a walk that
// finds none leaves in stop the byte it stopped on.
TextBuffer::Position TextBuffer::FindBreak(Position from, Position mark, Position& stop) const
{
    if (from == HeadPos) {
        stop = from;
        return from;
    }
    for (Position p = from; p != mark;) {
        p = Prev(p);
        const unsigned char b = Storage[p];
        if (IsLineEnd(b)) {
            stop = p;
            return from;
        }
        if (b == SPACE) {
            return p;
        }
        if (p == HeadPos) {
            stop = p;
            return from;
        }
    }
    return from;
}

// FindBreak(WritePos), walking back only over the bytes stored since the last search that
// found no break.
TextBuffer::Position TextBuffer::FindAppendBreak()
{
    const Position p = FindBreak(WritePos, scanMark_, scanStop_);
    scanMark_ = p == WritePos ? WritePos : NO_POSITION;
    return p;
}

// One pass over the text in the ring's runs, which also turns the old soft line ends back into
// blanks. The last blank of the row being laid out is
// remembered with the width of what follows it, so a row that runs over the limit breaks at
// that blank without walking back, and the text carried to the new row is not walked again.
void TextBuffer::Rewrap()
{
    ForgetBreakScan();
    const TextRuns runs = Runs();
    unsigned char* const first = Storage.get() + (runs.First - Storage.get());
    unsigned char* const second = Storage.get();
    // Colour codes take no room; as no row ends on a character without width, they can be
    // measured like the others.
    CharWidthTable widths = CharWidth;
    for (int c = COLOR_FIRST; c <= COLOR_LAST; ++c)
        widths[c] = 0;
    // Locals, since the stores into the ring could otherwise alias every member.
    const std::int64_t leftMargin = LeftMargin;
    const std::int64_t wrapLimit = WrapLimit;
    std::int64_t x = leftMargin;
    unsigned char* blank = nullptr;
    std::int64_t widthAfterBlank = 0;
    const auto layOut = [&](unsigned char* text, std::uint32_t length) {
        for (unsigned char* at = text; at != text + length; ++at) {
            unsigned char b = *at;
            if (b == HARD_LINE_END) {
                x = leftMargin;
                blank = nullptr;
                continue;
            }
            if (b == SOFT_LINE_END) {
                b = SPACE;
                *at = b;
            }
            const std::int64_t width = widths[b];
            if (x + width >= wrapLimit && blank) {
                *blank = SOFT_LINE_END;
                x = leftMargin + widthAfterBlank;
                blank = nullptr;
            }
            // A character that still does not fit, on a row without a blank, stays unmeasured
            // until a blank comes to break at.
            x = x + width < wrapLimit ? x + width : x;
            const bool isBlank = b == SPACE;
            blank = isBlank ? at : blank;
            widthAfterBlank = isBlank ? 0 : widthAfterBlank + width;
        }
    };
    layOut(first, runs.FirstLength);
    layOut(second, runs.SecondLength);
}

namespace {

std::int32_t CountLineEnds(const unsigned char* text, std::uint32_t length)
{
    std::uint32_t count = 0;
    for (std::uint32_t i = 0; i < length; ++i)
        count += static_cast<std::uint32_t>(text[i] == HARD_LINE_END) |
                 static_cast<std::uint32_t>(text[i] == SOFT_LINE_END);
    return static_cast<std::int32_t>(count);
}

} // namespace

std::int32_t TextBuffer::CountLines() const
{
    if (HeadPos == WritePos) {
        return 0;
    }
    const TextRuns runs = Runs();
    const std::int32_t count =
        CountLineEnds(runs.First, runs.FirstLength) + CountLineEnds(runs.Second, runs.SecondLength);
    return Storage[Prev(WritePos)] == HARD_LINE_END ? count : count + 1;
}

TextBuffer::Position TextBuffer::SeekLine(std::int32_t index)
{
    WalkPos = HeadPos;
    for (std::int32_t i = 0; i < index; ++i) {
        while (WalkPos != WritePos && !IsLineEnd(Storage[WalkPos])) {
            WalkPos = Next(WalkPos);
        }
        if (WalkPos == WritePos) {
            break;
        }
        WalkPos = Next(WalkPos);
    }
    return WalkPos;
}

void TextBuffer::SeekFromEnd(std::int32_t rows)
{
    WalkPos = WritePos;
    if (rows < 1 || WritePos == HeadPos) {
        return;
    }
    for (;;) {
        if (IsLineEnd(Storage[WalkPos]) && --rows < 1) {
            break;
        }
        WalkPos = Prev(WalkPos);
        if (WalkPos == HeadPos) {
            break;
        }
    }
    if (WalkPos != HeadPos) {
        WalkPos = Next(WalkPos);
    }
}

char* TextBuffer::ReadLine(char* out, std::int32_t& limit, bool useSelection, bool* selectionSeen)
{
    const std::int32_t lo = std::min(SelStart, SelEnd);
    const std::int32_t hi = std::max(SelStart, SelEnd);
    const bool marks = useSelection && lo != hi;
    bool inSelection = false;
    bool seen = false;
    std::int32_t n = 0;
    std::int32_t o = Offset(WalkPos);
    char* w = out;
    if (marks && lo < o && o < hi) {
        // The selection began on an earlier line.
        *w++ = static_cast<char>(SELECTION_MARK_ON);
        inSelection = true;
        seen = true;
    }
    while (WalkPos != WritePos) {
        const unsigned char b = Storage[WalkPos];
        if (IsLineEnd(b)) {
            WalkPos = Next(WalkPos);
            break;
        }
        if (n < limit) {
            if (marks && !inSelection && o == lo) {
                *w++ = static_cast<char>(SELECTION_MARK_ON);
                inSelection = true;
                seen = true;
            } else if (marks && o == hi) {
                *w++ = static_cast<char>(SELECTION_MARK_OFF);
                inSelection = false;
            }
            *w++ = static_cast<char>(b);
            ++n;
        }
        WalkPos = Next(WalkPos);
        ++o;
    }
    if (inSelection) {
        *w++ = static_cast<char>(SELECTION_MARK_OFF);
    }
    *w = '\0';
    limit = n;
    if (selectionSeen != nullptr) {
        *selectionSeen = seen;
    }
    return out;
}

std::int32_t TextBuffer::LineIndexOf(Position position) const
{
    position = position < Capacity ? position : position % Capacity;
    if (Offset(position) > Offset(WritePos)) {
        return 0;
    }
    const unsigned char* ring = Storage.get();
    if (HeadPos <= position) {
        return CountLineEnds(ring + HeadPos, position - HeadPos);
    }
    return CountLineEnds(ring + HeadPos, Capacity - HeadPos) + CountLineEnds(ring, position);
}

TextBuffer::Position TextBuffer::PlainStart() const
{
    Position p = HeadPos;
    if (!Wrapped) {
        // The initial blank lines, and whatever followed them without text.
        while (p != WritePos && Storage[p] == HARD_LINE_END) {
            p = Next(p);
        }
    }
    return p;
}

std::size_t TextBuffer::CopyAsText(char* out, std::size_t room) const
{
    if (room < CLOSING_SIZE) {
        if (room > 0) {
            out[0] = '\0';
        }
        return 0;
    }
    Position p = PlainStart();
    std::size_t length = 0;
    while (p != WritePos && room - length > CLOSING_SIZE) {
        const unsigned char b = Storage[p];
        if (b == HARD_LINE_END) {
            if (room - length < CLOSING_SIZE + 2) {
                break;
            }
            out[length++] = '\r';
            out[length++] = '\n';
        } else {
            out[length++] = static_cast<char>(b == SOFT_LINE_END ? SPACE : b);
        }
        p = Next(p);
    }
    out[length++] = '\r';
    out[length++] = '\n';
    out[length] = '\0';
    return length;
}

void TextBuffer::SetSelection(std::int32_t selStart, std::int32_t selEnd)
{
    SelStart = selStart;
    SelEnd = selEnd;
}

void TextBuffer::ClearSelection()
{
    SetSelection(0, 0);
}

bool TextBuffer::CopyBufferTo(TextBuffer& other) const
{
    if (other.Capacity != Capacity) {
        return false;
    }
    if (&other == this) {
        return true;
    }
    std::copy_n(Storage.get(), Capacity, other.Storage.get());
    other.ForgetBreakScan();
    other.WritePos = WritePos;
    other.HeadPos = HeadPos;
    other.SelStart = SelStart;
    other.SelEnd = SelEnd;
    other.Wrapped = Wrapped;
    other.PenX = PenX;
    other.LeftMargin = LeftMargin;
    other.WrapLimit = WrapLimit;
    other.SetCharWidths(CharWidth);
    return true;
}

void TextBuffer::CopySelectionTo(TextBuffer& other) const
{
    other.SelStart = SelStart;
    other.SelEnd = SelEnd;
}

} // namespace steward
