#include "services/WebAddress.h"

#include "base/ByteText.h"
#include "base/HexDigits.h"

#include <cstring>

namespace steward {

namespace {

constexpr char KEY_WORD[] = "{KEY}";
constexpr char GAME_WORD[] = "{GAME}";
constexpr char GAME_NAME[] = "THORNMERE";

bool IsKeptAsIs(unsigned char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
           (c != '\0' && std::strchr(":/.?&=-", c) != nullptr);
}

} // namespace

void EscapeUrl(const char* source, char* target, std::size_t capacity, bool plusForSpace)
{
    if (capacity == 0)
        return;
    std::size_t out = 0;
    for (const char* at = source; *at; ++at) {
        const auto c = static_cast<unsigned char>(*at);
        if (IsKeptAsIs(c) || c == ' ') {
            if (out + 1 >= capacity)
                break;
            target[out++] = c == ' ' && plusForSpace ? '+' : static_cast<char>(c);
            continue;
        }
        if (out + 3 >= capacity)
            break;
        target[out++] = '%';
        target[out++] = HEX_DIGITS[c >> 4];
        target[out++] = HEX_DIGITS[c & 0x0F];
    }
    target[out] = '\0';
}

void ExpandUrlWords(char* address, std::size_t capacity)
{
    while (char* key = const_cast<char*>(FindNoCase(address, KEY_WORD)))
        RemovePrefix(key, sizeof KEY_WORD - 1);
    while (char* game = const_cast<char*>(FindNoCase(address, GAME_WORD))) {
        RemovePrefix(game, sizeof GAME_WORD - 1);
        InsertCut(address, capacity, static_cast<std::size_t>(game - address), GAME_NAME);
    }
}

bool OpenUrl(Browser& browser, const char* address)
{
    char working[URL_BUFFER_SIZE];
    char escaped[URL_BUFFER_SIZE];
    CopyCut(working, sizeof working, address);
    ExpandUrlWords(working, sizeof working);
    EscapeUrl(working, escaped, sizeof escaped, true);
    return browser.Open(escaped);
}

} // namespace steward
