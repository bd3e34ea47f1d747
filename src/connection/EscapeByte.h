#pragma once

namespace steward {

// The game's escape byte: it opens colour tokens and, doubled, status records; a typed one
// goes to the game as a blank.
constexpr char ESC = 0x1B;

} // namespace steward
