#include "terminal/TextSearch.h"

#include "base/ByteText.h"
#include "base/ColorCode.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace steward {
namespace {

constexpr std::int32_t NO_MATCH = -1;

// The text as one sequence of offsets over the ring's one or two runs.
class RingText {
  public:
    explicit RingText(const TextBuffer::TextRuns& runs) : runs_(runs) {}

    std::int32_t Length() const
    {
        return static_cast<std::int32_t>(runs_.FirstLength + runs_.SecondLength);
    }
    unsigned char At(std::int32_t offset) const
    {
        const auto o = static_cast<std::uint32_t>(offset);
        return o < runs_.FirstLength ? runs_.First[o] : runs_.Second[o - runs_.FirstLength];
    }
    const TextBuffer::TextRuns& Runs() const { return runs_; }

  private:
    TextBuffer::TextRuns runs_;
};

unsigned char Comparable(unsigned char b, bool matchCase)
{
    if (b == SOFT_LINE_END)
        b = ' ';
    return matchCase ? b : FoldCase(b);
}

// Compares needle with the text from start on, stepping over colour codes; the offset behind
// the last matched byte, or NO_MATCH.
std::int32_t MatchAt(const RingText& text, std::int32_t start, std::string_view needle,
                     bool matchCase)
{
    std::size_t i = 0;
    std::int32_t o = start;
    for (const std::int32_t length = text.Length(); o < length && i < needle.size(); ++o) {
        const unsigned char b = text.At(o);
        if (IsColorCode(b))
            continue;
        if (Comparable(b, matchCase) !=
            Comparable(static_cast<unsigned char>(needle[i]), matchCase))
            return NO_MATCH;
        ++i;
    }
    return i == needle.size() ? o : NO_MATCH;
}

// The bytes that can stand where the needle's first byte matches: at most two.
struct FirstBytes {
    std::array<unsigned char, 2> Bytes{};
    int Count = 0;
    std::array<bool, 256> Table{};

    void Add(unsigned char b)
    {
        if (Table[b])
            return;
        Table[b] = true;
        Bytes[Count++] = b;
    }
};

FirstBytes FirstBytesOf(unsigned char first, bool matchCase)
{
    FirstBytes set;
    set.Add(first);
    if (!matchCase) {
        set.Add(FoldCase(first));
        set.Add(UpperCase(first));
    }
    if (first == ' ')
        set.Add(SOFT_LINE_END);
    return set;
}

// The first byte of the set in run[from, length), or length; memchr keeps a scan for a word
// that never occurs at memory speed.
std::uint32_t NextCandidate(const unsigned char* run, std::uint32_t from, std::uint32_t length,
                            const FirstBytes& set)
{
    std::uint32_t best = length;
    for (int k = 0; k < set.Count; ++k) {
        const void* at = std::memchr(run + from, set.Bytes[k], best - from);
        if (at)
            best = static_cast<std::uint32_t>(static_cast<const unsigned char*>(at) - run);
    }
    return best;
}

// The first match that begins in [begin, end), scanning the runs in place.
TextHit FindFirstIn(const RingText& text, std::string_view needle, std::int32_t begin,
                    std::int32_t end, const FirstBytes& set, bool matchCase)
{
    const TextBuffer::TextRuns& runs = text.Runs();
    const std::array<const unsigned char*, 2> run = {runs.First, runs.Second};
    const std::array<std::uint32_t, 2> length = {runs.FirstLength, runs.SecondLength};
    std::uint32_t base = 0;
    for (int r = 0; r < 2; ++r) {
        const auto low = static_cast<std::uint32_t>(begin);
        const auto high = static_cast<std::uint32_t>(end);
        std::uint32_t at = low > base ? low - base : 0;
        const std::uint32_t stop = std::min(length[r], high > base ? high - base : 0);
        while (at < stop) {
            at = NextCandidate(run[r], at, stop, set);
            if (at == stop)
                break;
            const auto start = static_cast<std::int32_t>(base + at);
            if (const std::int32_t matchEnd = MatchAt(text, start, needle, matchCase);
                matchEnd != NO_MATCH)
                return {start, matchEnd};
            ++at;
        }
        base += length[r];
    }
    return {};
}

// Backward in slices, each scanned forward at memchr's speed, so a look back through the whole
// ring costs no more than a look forward.
constexpr std::int32_t OLDER_SLICE = 1 << 16;

TextHit FindLastBefore(const RingText& text, std::string_view needle, std::int32_t end,
                       const FirstBytes& set, bool matchCase)
{
    for (std::int32_t sliceEnd = end; sliceEnd > 0;) {
        const std::int32_t sliceStart = std::max(0, sliceEnd - OLDER_SLICE);
        TextHit last;
        for (TextHit hit = FindFirstIn(text, needle, sliceStart, sliceEnd, set, matchCase);
             hit.Found(); hit = FindFirstIn(text, needle, hit.Start + 1, sliceEnd, set, matchCase))
            last = hit;
        if (last.Found())
            return last;
        sliceEnd = sliceStart;
    }
    return {};
}

} // namespace

TextHit FindText(const TextBuffer& buffer, std::string_view needle, std::int32_t from,
                 SearchDirection direction, bool matchCase)
{
    if (needle.empty())
        return {};
    const RingText text(buffer.Runs());
    const FirstBytes set = FirstBytesOf(static_cast<unsigned char>(needle[0]), matchCase);
    from = std::clamp(from, 0, text.Length());
    return direction == SearchDirection::Newer
               ? FindFirstIn(text, needle, from, text.Length(), set, matchCase)
               : FindLastBefore(text, needle, from, set, matchCase);
}

} // namespace steward
