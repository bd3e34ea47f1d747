#pragma once

#include "commands/KeyModifiers.h"
#include "commands/MacroStore.h"

#include <cstddef>

namespace steward {

// The key types of the macro sheet's function key and keypad pages, in the order of their
// radio buttons.
enum MacroKeyType : int {
    KEY_TYPE_STANDARD = 0,
    KEY_TYPE_ALT = 1,
    KEY_TYPE_SHIFT = 2,
    KEY_TYPE_CTRL = 3,
};
constexpr int MACRO_KEY_TYPE_COUNT = 4;

// A macro edit takes 200 characters, of which the store keeps 199; a set name edit 64, of
// which it keeps 63.
constexpr int MACRO_EDIT_LIMIT = 200;
constexpr std::size_t MACRO_EDIT_KEPT = 199;
constexpr int MACRO_SET_NAME_EDIT_LIMIT = 64;
constexpr std::size_t MACRO_SET_NAME_KEPT = 63;
// The function key that the Alt key type cannot edit: Alt-F6.
constexpr int ALT_HIDDEN_FUNCTION_KEY = 5;

KeyModifiers KeyTypeModifiers(int keyType);
// "", "Alt-", "Shift-" or "Ctrl-".
const char* KeyTypePrefix(int keyType);

// SetMacro with at most MACRO_EDIT_KEPT characters of text.
void StoreMacroEdit(MacroStore& store, KeyModifiers modifiers, int virtualKey, const char* text);
// SetMacroSetName with at most MACRO_SET_NAME_KEPT characters of text.
void StoreMacroSetName(MacroStore& store, const char* text);

} // namespace steward
