#pragma once

#include <cstddef>

namespace steward {

// The working buffer of an address and that of its escaped form.
constexpr std::size_t URL_BUFFER_SIZE = 2048;
// The longest address whose every byte can be escaped (three bytes each) with room for the NUL.
constexpr std::size_t URL_ESCAPABLE_LENGTH = (URL_BUFFER_SIZE - 1) / 3;
static_assert(URL_ESCAPABLE_LENGTH == 682);

// The Internet menu's two addresses.
constexpr char HOME_PAGE_ADDRESS[] = "https://thornmere.example.org/";
constexpr char MESSAGE_BOARD_ADDRESS[] = "https://thornmere.example.org/board/";

// The desktop's browser; tests record the address instead.
class Browser {
  public:
    virtual ~Browser() = default;
    // Opens an escaped address; true when the browser could be started.
    virtual bool Open(const char* address) = 0;
};

// Letters, digits and ":/.?&=-" are copied, a space becomes "+" (or stays, without
// plusForSpace) and every other byte "%XX" in upper-case hex. The target is cut before an
// escape that would not fit, so it always ends with its NUL inside capacity.
void EscapeUrl(const char* source, char* target, std::size_t capacity, bool plusForSpace);

// Removes every "{KEY}" and replaces every "{GAME}" by "THORNMERE", in any case; text that no
// longer fits the buffer is cut from its end.
void ExpandUrlWords(char* address, std::size_t capacity);

// The address with its words expanded and escaped, handed to the browser; its result.
bool OpenUrl(Browser& browser, const char* address);

} // namespace steward
