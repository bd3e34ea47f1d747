#pragma once

#include "commands/KeyModifiers.h"

#include <cstddef>
#include <memory>
#include <string>

namespace steward {

constexpr std::size_t MACRO_SLOT_SIZE = 202;
constexpr int MACRO_LETTER_COUNT = 26;
constexpr int KEYPAD_KEY_COUNT = 15;
constexpr int FUNCTION_KEY_COUNT = 12;
constexpr int MACRO_SET_COUNT = 10;
constexpr int MACRO_SLOT_COUNT =
    2 * MACRO_LETTER_COUNT + 4 * KEYPAD_KEY_COUNT + 4 * MACRO_SET_COUNT * FUNCTION_KEY_COUNT;
static_assert(MACRO_SLOT_COUNT == 592);
constexpr std::size_t MACRO_SET_NAME_SIZE = 65;
// SetMacro holds up to 200 characters; the file reader takes up to 199.
constexpr std::size_t MACRO_TEXT_LIMIT = 201;
constexpr std::size_t MACRO_FILE_TEXT_LIMIT = 200;
constexpr std::size_t MACRO_FILE_NAME_LIMIT = 64;
// A line of the file is read in a buffer of this size, so at most 254 characters at a time.
constexpr std::size_t MACRO_FILE_LINE_SIZE = 255;

struct MacroSlot {
    char Text[MACRO_SLOT_SIZE];
};
static_assert(sizeof(MacroSlot) == MACRO_SLOT_SIZE);

// Keypad index of a virtual key (0 to 14), or -1 for a key off the keypad.
int KeypadIndex(int virtualKey);

// Receives the debug trace lines of loading and saving, which the user never sees.

// Every macro key of the current character: the Alt and Ctrl letters and the keypad, which no
// set owns, and the function keys of ten named sets.
class MacroStore {
  public:
    MacroStore();

    // The text of a key, or null for a key without a slot. Alt wins over Shift, Shift over Ctrl.
    const char* LookupMacro(KeyModifiers modifiers, int virtualKey) const;
    void SetMacro(KeyModifiers modifiers, int virtualKey, const char* text);
    // SetMacro, only while the slot is empty.
    void SetDefaultMacro(KeyModifiers modifiers, int virtualKey, const char* text);

    void SelectMacroSet(int index);
    void PreviousMacroSet();
    void NextMacroSet();
    int CurrentMacroSet() const { return current_; }
    void SetMacroSetName(const char* text);
    const char* MacroSetName(int index) const;

    // Empties the store, then reads the file if it opens; bad lines are skipped silently.
    void LoadMacros(const char* path);
    // Writes every slot and name that is not empty; silent when the file cannot be written.
    [[nodiscard]] bool SaveMacros(const char* path) const;

  private:
    void Clear();
    void ReadLine(const char* line);
    char* SlotFor(KeyModifiers modifiers, int virtualKey) const;
    char* Slot(int index) const { return slots_[index].Text; }

    std::unique_ptr<MacroSlot[]> slots_;
    char names_[MACRO_SET_COUNT][MACRO_SET_NAME_SIZE] = {};
    int current_ = 0;
};

// The keys that take their default text again after each load of a profile; a brand-new
// profile also gets Alt-A.
void SetDefaultMacros(MacroStore& store, bool newProfile);

} // namespace steward
