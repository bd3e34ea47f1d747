#include "commands/MacroKeyTypes.h"

#include <cstdio>

namespace steward {

namespace {

constexpr KeyModifiers KEY_TYPE_MODIFIERS[MACRO_KEY_TYPE_COUNT] = {0, KEY_ALT, KEY_SHIFT, KEY_CTRL};
constexpr const char* KEY_TYPE_PREFIXES[MACRO_KEY_TYPE_COUNT] = {"", "Alt-", "Shift-", "Ctrl-"};

bool IsKeyType(int keyType)
{
    return keyType >= 0 && keyType < MACRO_KEY_TYPE_COUNT;
}

} // namespace

KeyModifiers KeyTypeModifiers(int keyType)
{
    return IsKeyType(keyType) ? KEY_TYPE_MODIFIERS[keyType] : 0;
}

const char* KeyTypePrefix(int keyType)
{
    return IsKeyType(keyType) ? KEY_TYPE_PREFIXES[keyType] : "";
}

void StoreMacroEdit(MacroStore& store, KeyModifiers modifiers, int virtualKey, const char* text)
{
    char kept[MACRO_EDIT_KEPT + 1];
    std::snprintf(kept, sizeof kept, "%s", text);
    store.SetMacro(modifiers, virtualKey, kept);
}

void StoreMacroSetName(MacroStore& store, const char* text)
{
    char kept[MACRO_SET_NAME_KEPT + 1];
    std::snprintf(kept, sizeof kept, "%s", text);
    store.SetMacroSetName(kept);
}

} // namespace steward
