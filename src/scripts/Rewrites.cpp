#include "scripts/Rewrites.h"

#include "base/ByteText.h"

#include <cctype>
#include <cstring>
#include <memory>

namespace steward {

namespace {

// Move words in the order they are tried; a long name matches by its own entry.
constexpr const char* DRAG_MOVE_WORDS[] = {
    "n",    "s",         "e",         "w",         "ne",        "nw",    "se",
    "sw",   "out",       "up",        "down",      "north",     "south", "east",
    "west", "northeast", "northwest", "southeast", "southwest",
};

bool IsLetterOrDigit(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

bool StartsWithWord(const char* text, const char* word)
{
    std::size_t length = std::strlen(word);
    if (!StartsWithNoCase(text, word))
        return false;
    return text[length] == ' ' || text[length] == 0;
}

// Rebuilds the text as "<command> <who> <rest>" through a copy, cut at the buffer's end.
void Rebuild(char* text, std::size_t capacity, const char* command, const char* who,
             const char* rest)
{
    std::unique_ptr<char[]> copy(new char[capacity]);
    JoinCut(copy.get(), capacity, {command, " ", who, " ", rest});
    std::memcpy(text, copy.get(), std::strlen(copy.get()) + 1);
}

} // namespace

void ContactRewrite(char* text, std::size_t capacity)
{
    std::size_t colon = 0;
    while (text[colon] != ':') {
        if (!IsLetterOrDigit(text[colon]))
            return;
        ++colon;
    }
    if (colon > CONTACT_NAME_LIMIT)
        return;
    char name[CONTACT_NAME_LIMIT + 1];
    std::memcpy(name, text, colon);
    name[colon] = 0;
    Rebuild(text, capacity, "contact", name, text + colon + 1);
}

void DragRewrite(char* text, std::size_t capacity, const char* dragTarget)
{
    if (dragTarget[0] == 0)
        return;
    for (const char* word : DRAG_MOVE_WORDS) {
        if (StartsWithWord(text, word)) {
            Rebuild(text, capacity, "drag", dragTarget, text);
            return;
        }
    }
}

} // namespace steward
