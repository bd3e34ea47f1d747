#pragma once

#include "commands/MacroStore.h"

namespace steward {

// Where each group of keys starts among the slots, in the order of the file's groups.
enum MacroGroup : int {
    ALT_LETTERS = 0,
    CTRL_LETTERS = ALT_LETTERS + MACRO_LETTER_COUNT,
    KEYPAD_PLAIN = CTRL_LETTERS + MACRO_LETTER_COUNT,
    KEYPAD_ALT = KEYPAD_PLAIN + KEYPAD_KEY_COUNT,
    KEYPAD_CTRL = KEYPAD_ALT + KEYPAD_KEY_COUNT,
    KEYPAD_SHIFT = KEYPAD_CTRL + KEYPAD_KEY_COUNT,
    FUNCTION_PLAIN = KEYPAD_SHIFT + KEYPAD_KEY_COUNT,
    FUNCTION_ALT = FUNCTION_PLAIN + MACRO_SET_COUNT * FUNCTION_KEY_COUNT,
    FUNCTION_CTRL = FUNCTION_ALT + MACRO_SET_COUNT * FUNCTION_KEY_COUNT,
    FUNCTION_SHIFT = FUNCTION_CTRL + MACRO_SET_COUNT * FUNCTION_KEY_COUNT,
    MACRO_GROUP_END = FUNCTION_SHIFT + MACRO_SET_COUNT * FUNCTION_KEY_COUNT,
};
static_assert(MACRO_GROUP_END == MACRO_SLOT_COUNT);

constexpr int FunctionSlot(int group, int set, int key)
{
    return group + set * FUNCTION_KEY_COUNT + key;
}

// The keypad keys in index order.
constexpr int KEYPAD_KEYS[KEYPAD_KEY_COUNT] = {
    VK_NUMPAD0,     VK_NUMPAD0 + 1, VK_NUMPAD0 + 2, VK_NUMPAD0 + 3, VK_NUMPAD0 + 4,
    VK_NUMPAD0 + 5, VK_NUMPAD0 + 6, VK_NUMPAD0 + 7, VK_NUMPAD0 + 8, VK_NUMPAD9,
    VK_DECIMAL,     VK_DIVIDE,      VK_MULTIPLY,    VK_SUBTRACT,    VK_ADD,
};

// The character that stands for each keypad index in the file.
constexpr char KEYPAD_FILE_CHARACTERS[KEYPAD_KEY_COUNT + 1] = "0123456789./*-+";

} // namespace steward
