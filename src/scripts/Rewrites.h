#pragma once

#include <cstddef>

namespace steward {

constexpr std::size_t DRAG_TARGET_SIZE = 64;
// The longest name that `name:message` turns into a contact command.
constexpr std::size_t CONTACT_NAME_LIMIT = 25;

// `name:message` becomes "contact name message", in place, cut at the buffer's end.
void ContactRewrite(char* text, std::size_t capacity);
// A move word at the start becomes "drag target move...", in place, when someone is dragged.
void DragRewrite(char* text, std::size_t capacity, const char* dragTarget);

} // namespace steward
