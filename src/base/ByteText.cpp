#include "base/ByteText.h"

#include "base/ColorCode.h"

#include <cstring>

namespace steward {

bool StartsWith(const char* text, const char* prefix)
{
    return std::strncmp(text, prefix, std::strlen(prefix)) == 0;
}

bool Contains(const char* text, const char* phrase)
{
    return std::strstr(text, phrase) != nullptr;
}

bool StartsWithNoCase(const char* text, const char* prefix)
{
    for (; *prefix; ++text, ++prefix)
        if (FoldCase(static_cast<unsigned char>(*text)) !=
            FoldCase(static_cast<unsigned char>(*prefix)))
            return false;
    return true;
}

bool EqualNoCase(const char* a, const char* b)
{
    return StartsWithNoCase(a, b) && a[std::strlen(b)] == '\0';
}

void CopyCut(char* out, std::size_t capacity, const char* text)
{
    if (capacity == 0)
        return;
    std::size_t n = std::strlen(text);
    if (n >= capacity)
        n = capacity - 1;
    std::memmove(out, text, n);
    out[n] = '\0';
}

void InsertCut(char* text, std::size_t capacity, std::size_t offset, const char* piece)
{
    const std::size_t length = std::strlen(text);
    if (offset > length || capacity == 0)
        return;
    std::size_t add = std::strlen(piece);
    if (offset + add >= capacity)
        add = capacity - 1 - offset;
    std::size_t tail = length - offset;
    if (offset + add + tail >= capacity)
        tail = capacity - 1 - offset - add;
    std::memmove(text + offset + add, text + offset, tail);
    std::memcpy(text + offset, piece, add);
    text[offset + add + tail] = '\0';
}

void AppendCut(char* text, std::size_t capacity, const char* piece)
{
    InsertCut(text, capacity, std::strlen(text), piece);
}

void JoinCut(char* out, std::size_t capacity, std::initializer_list<const char*> pieces)
{
    if (capacity == 0)
        return;
    out[0] = '\0';
    for (const char* piece : pieces)
        AppendCut(out, capacity, piece);
}

char* InsertText(char* place, const char* text)
{
    const std::size_t shift = std::strlen(text);
    const std::size_t tail = std::strlen(place) + 1;
    std::memmove(place + shift, place, tail);
    std::memcpy(place, text, shift);
    return place + shift + tail - 1;
}

void RemovePrefix(char* string, std::size_t n)
{
    std::memmove(string, string + n, std::strlen(string + n) + 1);
}

void TrimTrailingBlanks(char* text)
{
    std::size_t length = std::strlen(text);
    while (length > 0 && text[length - 1] == ' ')
        text[--length] = 0;
}

const char* ColorOnText(unsigned char color)
{
    static char buffer[4];
    *AppendColorOn(buffer, color) = '\0';
    return buffer;
}

std::size_t ColorOnLength(unsigned char color)
{
    return (color >> 4) != 0 ? 2 : 1;
}

const char* ColorOffText(unsigned char color)
{
    static char buffer[4];
    *AppendColorOff(buffer, color) = '\0';
    return buffer;
}

const char* FindNoCase(const char* text, const char* wanted)
{
    if (*wanted == '\0')
        return text;
    const unsigned char first = FoldCase(static_cast<unsigned char>(*wanted));
    for (const char* start = text; *start != '\0'; ++start) {
        if (FoldCase(static_cast<unsigned char>(*start)) != first)
            continue;
        std::size_t i = 1;
        while (wanted[i] != '\0' && FoldCase(static_cast<unsigned char>(start[i])) ==
                                        FoldCase(static_cast<unsigned char>(wanted[i])))
            ++i;
        if (wanted[i] == '\0')
            return start;
    }
    return nullptr;
}

bool IsWordBoundary(unsigned char c)
{
    if (IsColorCode(c))
        return true;
    const bool digit = c >= '0' && c <= '9';
    const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    return !digit && !letter;
}

} // namespace steward
