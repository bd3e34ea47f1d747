#include "scripts/ScriptParameters.h"

#include "base/ByteText.h"
#include "scripts/Tokenizer.h"

#include <algorithm>
#include <cstring>

namespace steward {

namespace {

// The value of the "%" word at the start of at, copied into value; false when at holds none.
bool ReadValue(const char* at, const ScriptValues& values, Tokenizer& words,
               char (&value)[EXPANSION_SIZE])
{
    const char kind = at[1];
    const char* found = nullptr;
    if (kind == '0')
        found = values.Parameters;
    else if (kind >= '1' && kind <= '9')
        found = words.NthToken(values.Parameters, kind - '0');
    else if (kind == 's' || kind == 'S')
        found = values.SavedValue;
    else
        return false;
    CopyCut(value, sizeof value, found ? found : "");
    for (char* c = value; *c; ++c)
        if (*c == QUOTED_SPACE)
            *c = ' ';
    return true;
}

} // namespace

void SubstituteParameters(char* line, std::size_t capacity, const ScriptValues& values,
                          Tokenizer& words)
{
    std::size_t length = std::strlen(line);
    std::size_t at = 0;
    while (at < length) {
        char value[EXPANSION_SIZE];
        if (line[at] != '%' || !ReadValue(line + at, values, words, value)) {
            ++at;
            continue;
        }
        std::memmove(line + at, line + at + 2, length - at - 1);
        length -= 2;
        const std::size_t room = capacity - 1 - at;
        const std::size_t inserted = std::min(std::strlen(value), room);
        const std::size_t kept = std::min(length - at, room - inserted);
        std::memmove(line + at + inserted, line + at, kept);
        std::memcpy(line + at, value, inserted);
        at += inserted;
        length = at + kept;
        line[length] = '\0';
    }
}

void ShiftParameters(char* parameters, std::size_t capacity, Tokenizer& words)
{
    char shifted[EXPANSION_SIZE] = {};
    words.FirstToken(parameters);
    while (const char* token = words.NextToken())
        JoinCut(shifted + std::strlen(shifted), sizeof shifted - std::strlen(shifted),
                {token, " "});
    CopyCut(parameters, capacity, shifted);
}

} // namespace steward
