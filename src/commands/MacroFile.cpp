#include "base/Trace.h"
#include "commands/MacroSlots.h"
#include "commands/MacroStore.h"
#include "config/AtomicFile.h"
#include "config/FileHandle.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string>

namespace steward {

namespace {

// Where one line of the file puts its text, found by the column tests.
struct LineTarget {
    char* Text = nullptr;
    std::size_t Limit = 0; // the text must be shorter than this
    int Start = 0;         // column where the text begins
};

bool BlanksAt(const char* line, std::initializer_list<int> columns)
{
    for (int column : columns) {
        if (line[column] != ' ')
            return false;
    }
    return true;
}

// The leading decimal number of the text, as the C library's atoi reads it.
int NumberAt(const char* text)
{
    return static_cast<int>(std::strtol(text, nullptr, 10));
}

int ModifierGroup(char modifier, int plain, int alt, int ctrl, int shift)
{
    switch (modifier) {
    case 'N':
        return plain;
    case 'A':
        return alt;
    case 'C':
        return ctrl;
    case 'S':
        return shift;
    default:
        return -1;
    }
}

int KeypadIndexOfCharacter(char c)
{
    const char* at = c ? std::strchr(KEYPAD_FILE_CHARACTERS, c) : nullptr;
    return at ? static_cast<int>(at - KEYPAD_FILE_CHARACTERS) : 0;
}

void WriteText(std::FILE* file, const char* head, const char* text)
{
    if (text[0] != 0)
        std::fprintf(file, "%s \"%s\"\n", head, text);
}

} // namespace

void MacroStore::LoadMacros(const char* path)
{
    Trace("MACROS: Loading from \"%s\"\n", path);
    Clear();
    File file(std::fopen(path, "r"));
    if (!file)
        return;
    char line[MACRO_FILE_LINE_SIZE];
    while (std::fgets(line, sizeof line, file.get()))
        ReadLine(line);
}

void MacroStore::ReadLine(const char* line)
{
    if (std::strlen(line) < 6)
        return;
    LineTarget target;
    char kind = line[0];
    if (kind >= '0' && kind <= '9') {
        int key = NumberAt(line + 4);
        int group =
            ModifierGroup(line[2], FUNCTION_PLAIN, FUNCTION_ALT, FUNCTION_CTRL, FUNCTION_SHIFT);
        if (!BlanksAt(line, {1, 3, 6}) || key < 0 || key >= FUNCTION_KEY_COUNT || line[7] != '"' ||
            group < 0)
            return;
        target = {Slot(FunctionSlot(group, kind - '0', key)), MACRO_FILE_TEXT_LIMIT, 8};
    } else if (kind == 'A' || kind == 'C') {
        if (!BlanksAt(line, {1, 3}) || line[2] < 'A' || line[2] > 'Z' || line[4] != '"')
            return;
        int group = kind == 'A' ? ALT_LETTERS : CTRL_LETTERS;
        target = {Slot(group + line[2] - 'A'), MACRO_FILE_TEXT_LIMIT, 5};
    } else if (kind == 'K') {
        int group = ModifierGroup(line[2], KEYPAD_PLAIN, KEYPAD_ALT, KEYPAD_CTRL, KEYPAD_SHIFT);
        if (!BlanksAt(line, {1, 3}) || line[6] != '"' || group < 0)
            return;
        target = {Slot(group + KeypadIndexOfCharacter(line[4])), MACRO_FILE_TEXT_LIMIT, 7};
    } else if (kind == 'N') {
        int set = NumberAt(line + 2);
        if (!BlanksAt(line, {1, 3}) || line[4] != '"' || set < 0 || set >= MACRO_SET_COUNT)
            return;
        target = {names_[set], MACRO_FILE_NAME_LIMIT, 5};
    } else {
        return;
    }
    const char* text = line + target.Start;
    const char* end = std::strrchr(text, '"');
    if (!end)
        return;
    std::size_t length = static_cast<std::size_t>(end - text);
    if (length >= target.Limit)
        return;
    std::memcpy(target.Text, text, length);
    target.Text[length] = 0;
}

bool MacroStore::SaveMacros(const char* path) const
{
    if (!path || path[0] == 0)
        return true;
    Trace("MACROS: Saving to \"%s\"\n", path);
    AtomicFile file(path);
    std::FILE* out = file.Get();
    if (!out)
        return false;
    char head[16];
    for (int group : {ALT_LETTERS, CTRL_LETTERS}) {
        for (int letter = 0; letter < MACRO_LETTER_COUNT; ++letter) {
            std::snprintf(head, sizeof head, "%c %c", group == ALT_LETTERS ? 'A' : 'C',
                          'A' + letter);
            WriteText(out, head, Slot(group + letter));
        }
    }
    static constexpr struct {
        int Group;
        char Name;
    } KEYPADS[] = {{KEYPAD_PLAIN, 'N'}, {KEYPAD_ALT, 'A'}, {KEYPAD_CTRL, 'C'}, {KEYPAD_SHIFT, 'S'}};
    for (const auto& pad : KEYPADS) {
        for (int index = 0; index < KEYPAD_KEY_COUNT; ++index) {
            std::snprintf(head, sizeof head, "K %c %c", pad.Name, KEYPAD_FILE_CHARACTERS[index]);
            WriteText(out, head, Slot(pad.Group + index));
        }
    }
    static constexpr struct {
        int Group;
        char Name;
    } FUNCTIONS[] = {
        {FUNCTION_PLAIN, 'N'}, {FUNCTION_ALT, 'A'}, {FUNCTION_SHIFT, 'S'}, {FUNCTION_CTRL, 'C'}};
    for (int set = 0; set < MACRO_SET_COUNT; ++set) {
        std::snprintf(head, sizeof head, "N %d", set);
        WriteText(out, head, names_[set]);
        for (const auto& function : FUNCTIONS) {
            for (int key = 0; key < FUNCTION_KEY_COUNT; ++key) {
                std::snprintf(head, sizeof head, "%d %c %02d", set, function.Name, key);
                WriteText(out, head, Slot(FunctionSlot(function.Group, set, key)));
            }
        }
    }
    return file.Commit();
}

} // namespace steward
