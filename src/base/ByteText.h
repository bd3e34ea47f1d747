#pragma once

#include <cstddef>
#include <initializer_list>

namespace steward {

// Helpers over NUL-terminated bytes in buffers of known capacity.

bool StartsWith(const char* text, const char* prefix);
bool Contains(const char* text, const char* phrase);
bool EqualNoCase(const char* a, const char* b);
bool StartsWithNoCase(const char* text, const char* prefix);
// Copies text into out, cut so that it ends inside the buffer.
void CopyCut(char* out, std::size_t capacity, const char* text);
// Inserts piece at offset; bytes that no longer fit are cut from the end of the text.
void InsertCut(char* text, std::size_t capacity, std::size_t offset, const char* piece);
// Appends piece, cut at the buffer's end.
void AppendCut(char* text, std::size_t capacity, const char* piece);
// Joins the pieces into out, cut at the buffer's end.
void JoinCut(char* out, std::size_t capacity, std::initializer_list<const char*> pieces);

// In-place operations that test no room: the caller guarantees it.

// Moves the string at place (with its NUL) up by the length of text and puts text in front;
// returns the position of the new terminating NUL.
char* InsertText(char* place, const char* text);
// Removes the first n bytes; n must not exceed the string's length.
void RemovePrefix(char* string, std::size_t n);
// Removes the spaces at the end.
void TrimTrailingBlanks(char* text);

// The colour-on sequence of a colour byte, in a static buffer that the next call overwrites.
const char* ColorOnText(unsigned char color);
// The length of that sequence: 2 with a background, else 1.
std::size_t ColorOnLength(unsigned char color);
// The colour-off sequence of a colour byte, in a static buffer of its own.
const char* ColorOffText(unsigned char color);

// The first place where wanted occurs in text, with A to Z compared without regard to case and
// every other byte exactly; an empty wanted gives text, no match or an empty text nullptr.
const char* FindNoCase(const char* text, const char* wanted);

// True for a ColorCode and for every byte that is not an ASCII letter or digit.
bool IsWordBoundary(unsigned char c);

// The ASCII lower case of a byte; every other byte is itself.
constexpr unsigned char FoldCase(unsigned char c)
{
    return (c >= 'A' && c <= 'Z') ? static_cast<unsigned char>(c + ('a' - 'A')) : c;
}

// The ASCII upper case of a byte; every other byte is itself.
constexpr unsigned char UpperCase(unsigned char c)
{
    return (c >= 'a' && c <= 'z') ? static_cast<unsigned char>(c - ('a' - 'A')) : c;
}

} // namespace steward
