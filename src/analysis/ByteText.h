#pragma once

#include <cstddef>
#include <initializer_list>

namespace steward {

// In-place helpers over NUL-terminated bytes in buffers of known capacity.

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

} // namespace steward
