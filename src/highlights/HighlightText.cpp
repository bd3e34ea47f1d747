#include "highlights/HighlightText.h"

#include "connection/ColorCode.h"

#include <cstring>

namespace steward {

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
