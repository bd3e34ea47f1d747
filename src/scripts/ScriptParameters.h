#pragma once

#include <cstddef>

namespace steward {

class Tokenizer;

// An inserted parameter or saved value goes through a buffer of this size, so it holds 255
// characters at most.
constexpr std::size_t EXPANSION_SIZE = 256;

// What a script line's "%" words stand for.
struct ScriptValues {
    const char* Parameters;
    const char* SavedValue;
};

// Replaces "%0" with all parameters, "%1" to "%9" with one each (nothing when it is missing)
// and "%s" or "%S" with the saved value, in one scan from the left; inserted text is not
// scanned again. What no longer fits in the line's capacity is cut from its end.
void SubstituteParameters(char* line, std::size_t capacity, const ScriptValues& values,
                          Tokenizer& words);
// Drops the first parameter: the rest are joined, each with one blank behind it, and keep a
// quoted parameter in one piece through its QUOTED_SPACE bytes.
void ShiftParameters(char* parameters, std::size_t capacity, Tokenizer& words);

} // namespace steward
