#pragma once

namespace steward {

// The bit set made at each key press, by which macros are looked up.
enum KeyModifier : unsigned {
    KEY_ALT = 1,
    KEY_SHIFT = 2,
    KEY_CTRL = 4,
    KEY_EXTENDED = 8, // a dedicated navigation key or the keypad's Enter
    KEY_NUMLOCK = 16,
};
using KeyModifiers = unsigned;

// Virtual key numbers; letters and main-row digits are their capital ASCII codes.
enum VirtualKey : int {
    VK_TAB = 0x09,
    VK_CLEAR = 0x0C,
    VK_RETURN = 0x0D,
    VK_SHIFT = 0x10,
    VK_CONTROL = 0x11,
    VK_MENU = 0x12,
    VK_ESCAPE = 0x1B,
    VK_PRIOR = 0x21,
    VK_NEXT = 0x22,
    VK_END = 0x23,
    VK_HOME = 0x24,
    VK_LEFT = 0x25,
    VK_UP = 0x26,
    VK_RIGHT = 0x27,
    VK_DOWN = 0x28,
    VK_INSERT = 0x2D,
    VK_DELETE = 0x2E,
    VK_NUMPAD0 = 0x60,
    VK_NUMPAD9 = 0x69,
    VK_MULTIPLY = 0x6A,
    VK_ADD = 0x6B,
    VK_SUBTRACT = 0x6D,
    VK_DECIMAL = 0x6E,
    VK_DIVIDE = 0x6F,
    VK_F1 = 0x70,
    VK_F12 = 0x7B,
};

constexpr bool IsLetterKey(int key)
{
    return key >= 'A' && key <= 'Z';
}
constexpr bool IsDigitKey(int key)
{
    return key >= '0' && key <= '9';
}
constexpr bool IsFunctionKey(int key)
{
    return key >= VK_F1 && key <= VK_F12;
}

} // namespace steward
