#include "highlights/HighlightRule.h"

#include "base/ByteText.h"
#include "highlights/HighlightList.h"

#include <cstring>

namespace steward {
namespace {

bool SkipMarker(const char*& text, char marker)
{
    if (*text != marker)
        return false;
    ++text;
    return true;
}

const char* FindIn(const HighlightRule& rule, const char* from)
{
    return rule.CaseSensitive ? std::strstr(from, rule.Match) : FindNoCase(from, rule.Match);
}

void PlaySound(const HighlightRule& rule, const HighlightLine& line, bool squelch,
               HighlightSounds& sounds)
{
    if (rule.SoundLength == 0 || squelch || line.Quoted)
        return;
    char name[HIGHLIGHT_TEXT_MAX + 1];
    std::memcpy(name, rule.Sound, rule.SoundLength);
    name[rule.SoundLength] = '\0';
    sounds.PlayHighlightSound(name);
}

// InsertText with the lengths already known, as the hit path runs for every hit.
void InsertCodes(HighlightLine& line, std::size_t at, const char* codes, std::size_t length)
{
    std::memmove(line.Text + at + length, line.Text + at, line.Length - at + 1);
    std::memcpy(line.Text + at, codes, length);
    line.Length += length;
}

} // namespace

bool OpenHighlightLine(char* text, std::size_t capacity, HighlightLine& line)
{
    const void* end = std::memchr(text, '\0', capacity);
    if (!end)
        return false;
    const auto length = static_cast<std::size_t>(static_cast<const char*>(end) - text);
    line = {text, length, capacity, std::memchr(text, '"', length) != nullptr};
    return true;
}

bool ParseHighlightRule(const char* text, unsigned char color, HighlightRule& rule)
{
    rule = HighlightRule{};
    rule.Color = color;
    if (*text == '{') {
        const char* close = std::strchr(text + 1, '}');
        if (!close)
            return false;
        rule.Sound = text + 1;
        rule.SoundLength = static_cast<std::size_t>(close - rule.Sound);
        text = close + 1;
    }
    rule.EntireLine = SkipMarker(text, '$');
    rule.WholeWord = !SkipMarker(text, '*');
    rule.CaseSensitive = SkipMarker(text, '@');
    rule.Match = text;
    rule.MatchLength = std::strlen(text);
    return rule.MatchLength > 0;
}

bool StandsOnWordBoundaries(const char* text, std::size_t length, std::size_t start,
                            std::size_t end)
{
    const bool before = start == 0 || IsWordBoundary(static_cast<unsigned char>(text[start - 1]));
    const bool behind = end == length || IsWordBoundary(static_cast<unsigned char>(text[end]));
    return before && behind;
}

bool ApplyHighlightRule(const HighlightRule& rule, HighlightLine& line, bool squelch,
                        HighlightSounds& sounds)
{
    const std::size_t codeLength = ColorOnLength(rule.Color);
    std::size_t position = 0;
    while (position < line.Length) {
        const char* hit = FindIn(rule, line.Text + position);
        if (!hit)
            return true;
        const std::size_t start = static_cast<std::size_t>(hit - line.Text);
        const std::size_t end = start + rule.MatchLength;
        if (rule.WholeWord && !StandsOnWordBoundaries(line.Text, line.Length, start, end)) {
            position = start + 1;
            continue;
        }
        if (line.Length + 2 * codeLength >= line.Capacity)
            return false;
        if (rule.EntireLine) {
            InsertCodes(line, 0, ColorOnText(rule.Color), codeLength);
            InsertCodes(line, line.Length, ColorOffText(rule.Color), codeLength);
            position = line.Length;
        } else {
            InsertCodes(line, start, ColorOnText(rule.Color), codeLength);
            InsertCodes(line, end + codeLength, ColorOffText(rule.Color), codeLength);
            position = end + 2 * codeLength;
        }
        PlaySound(rule, line, squelch, sounds);
    }
    return true;
}

} // namespace steward
