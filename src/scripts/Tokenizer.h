#pragma once

#include <cstddef>

namespace steward {

// Stands for a blank inside a quoted token, so the token stays one word when split again.
constexpr char QUOTED_SPACE = 127;
constexpr std::size_t TOKEN_SIZE = 256;

// The one word splitter of the program. Every result is the same token buffer, which the next
// call overwrites: a caller copies out what must outlive it. The text being split must stay
// alive while the split goes on.
class Tokenizer {
  public:
    // Starts splitting text and returns its first token, or null when it has none.
    const char* FirstToken(const char* text);
    // The next token, or null at the end of the text.
    const char* NextToken();
    // All that follows the blanks at the parse position, unchanged, which ends the split; null
    // if nothing does.
    const char* RestOfLine();
    // The n-th token of text, counted from 1, or null; the split in progress goes on afterwards.
    const char* NthToken(const char* text, int n);

  private:
    // A token longer than the buffer is cut, and the split goes on after its end.
    char token_[TOKEN_SIZE] = {};
    const char* position_ = nullptr;
};

} // namespace steward
