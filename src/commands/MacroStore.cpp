#include "commands/MacroStore.h"

#include "commands/MacroSlots.h"

#include <cstring>

namespace steward {

namespace {

int SlotIndex(KeyModifiers modifiers, int virtualKey, int set)
{
    if (IsLetterKey(virtualKey)) {
        int letter = virtualKey - 'A';
        if (modifiers & KEY_ALT)
            return ALT_LETTERS + letter;
        if (modifiers & KEY_CTRL)
            return CTRL_LETTERS + letter;
        return -1;
    }
    if (IsFunctionKey(virtualKey)) {
        int key = virtualKey - VK_F1;
        if (modifiers & KEY_ALT)
            return FunctionSlot(FUNCTION_ALT, set, key);
        if (modifiers & KEY_SHIFT)
            return FunctionSlot(FUNCTION_SHIFT, set, key);
        if (modifiers & KEY_CTRL)
            return FunctionSlot(FUNCTION_CTRL, set, key);
        return FunctionSlot(FUNCTION_PLAIN, set, key);
    }
    int pad = KeypadIndex(virtualKey);
    if (pad < 0)
        return -1;
    if (modifiers & KEY_ALT)
        return KEYPAD_ALT + pad;
    if (modifiers & KEY_SHIFT)
        return KEYPAD_SHIFT + pad;
    if (modifiers & KEY_CTRL)
        return KEYPAD_CTRL + pad;
    return KEYPAD_PLAIN + pad;
}

} // namespace

int KeypadIndex(int virtualKey)
{
    for (int i = 0; i < KEYPAD_KEY_COUNT; ++i) {
        if (KEYPAD_KEYS[i] == virtualKey)
            return i;
    }
    return -1;
}

MacroStore::MacroStore() : slots_(new MacroSlot[MACRO_SLOT_COUNT]()) {}

char* MacroStore::SlotFor(KeyModifiers modifiers, int virtualKey) const
{
    int index = SlotIndex(modifiers, virtualKey, current_);
    return index < 0 ? nullptr : Slot(index);
}

const char* MacroStore::LookupMacro(KeyModifiers modifiers, int virtualKey) const
{
    return SlotFor(modifiers, virtualKey);
}

void MacroStore::SetMacro(KeyModifiers modifiers, int virtualKey, const char* text)
{
    char* slot = SlotFor(modifiers, virtualKey);
    if (!slot || std::strlen(text) >= MACRO_TEXT_LIMIT)
        return;
    if (std::strcmp(slot, text) != 0)
        std::strcpy(slot, text);
}

void MacroStore::SetDefaultMacro(KeyModifiers modifiers, int virtualKey, const char* text)
{
    const char* slot = SlotFor(modifiers, virtualKey);
    if (slot && slot[0] == 0)
        SetMacro(modifiers, virtualKey, text);
}

void MacroStore::SelectMacroSet(int index)
{
    if (index >= 0 && index < MACRO_SET_COUNT)
        current_ = index;
}

void MacroStore::PreviousMacroSet()
{
    current_ = (current_ + MACRO_SET_COUNT - 1) % MACRO_SET_COUNT;
}

void MacroStore::NextMacroSet()
{
    current_ = (current_ + 1) % MACRO_SET_COUNT;
}

void MacroStore::SetMacroSetName(const char* text)
{
    if (std::strlen(text) < MACRO_SET_NAME_SIZE)
        std::strcpy(names_[current_], text);
}

const char* MacroStore::MacroSetName(int index) const
{
    if (index < 0 || index >= MACRO_SET_COUNT)
        return "";
    return names_[index];
}

void MacroStore::Clear()
{
    std::memset(slots_.get(), 0, sizeof(MacroSlot) * MACRO_SLOT_COUNT);
    std::memset(names_, 0, sizeof names_);
    current_ = 0;
}

void SetDefaultMacros(MacroStore& store, bool newProfile)
{
    static constexpr struct {
        int Key;
        const char* Text;
    } KEYPAD_DEFAULTS[] = {
        {VK_NUMPAD0, "\\xgo door\\r"}, {VK_NUMPAD0 + 1, "\\xsw\\r"},
        {VK_NUMPAD0 + 2, "\\xs\\r"},   {VK_NUMPAD0 + 3, "\\xse\\r"},
        {VK_NUMPAD0 + 4, "\\xw\\r"},   {VK_NUMPAD0 + 5, "\\xgo gate\\r"},
        {VK_NUMPAD0 + 6, "\\xe\\r"},   {VK_NUMPAD0 + 7, "\\xnw\\r"},
        {VK_NUMPAD0 + 8, "\\xn\\r"},   {VK_NUMPAD9, "\\xne\\r"},
        {VK_DECIMAL, "\\xup\\r"},      {VK_DIVIDE, "\\xhealth\\r"},
        {VK_MULTIPLY, "\\xexp\\r"},    {VK_ADD, "\\xlook\\r"},
    };
    for (const auto& entry : KEYPAD_DEFAULTS)
        store.SetDefaultMacro(0, entry.Key, entry.Text);
    store.SetDefaultMacro(KEY_CTRL, 'C', "{copy}");
    store.SetDefaultMacro(KEY_CTRL, 'X', "{cut}");
    store.SetDefaultMacro(KEY_CTRL, 'V', "{paste}");
    if (newProfile)
        store.SetDefaultMacro(KEY_ALT, 'A', "attack\\r");
}

} // namespace steward
