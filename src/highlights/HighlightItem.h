#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace steward {

// A list item of the highlight sheet is "%03d,%s": the colour byte in three decimal digits, a
// comma, then the text (a packed entry, or a sample line on the colours page).
constexpr std::size_t ITEM_TEXT_OFFSET = 4;

// The fields of one item, as ParseItem reads them.
struct HighlightItem {
    unsigned char Color = 0;
    // In the form the sound list shows: lower case with the first letter in upper case; empty
    // for no sound.
    std::string Sound;
    bool EntireLine = false;
    bool NotOnWordBoundary = false;
    bool CaseSensitive = false;
    std::string Match;
};

// The fields that ComposeItem replaces; the others stay as the item had them.
struct ItemChanges {
    std::optional<unsigned char> Color;
    std::optional<std::string> Sound;
    std::optional<bool> EntireLine;
    std::optional<bool> NotOnWordBoundary;
    std::optional<bool> CaseSensitive;
    std::optional<std::string> Match;
};

// "014,{Gong}$Text" from a colour and a packed text.
std::string MakeItemText(unsigned char color, const char* text);
HighlightItem ParseItem(const std::string& item);
// The item text with the markers always in the order sound, "$", "*", "@".
std::string ComposeItem(const HighlightItem& item);
HighlightItem WithChanges(HighlightItem item, const ItemChanges& changes);

// The packed entry of an item: its text behind the comma.
std::string PackedText(const std::string& item);
// The sound list's form of a name: lower case but for the first letter.
std::string SoundChoiceName(const std::string& name);
// A wave file's name as the sound list shows it: cut at its last dot, in SoundChoiceName form.
std::string SoundChoiceOfFile(const std::string& fileName);

// An asked text as an entry takes it: without trailing blanks, and with characters outside
// printable ASCII as "?", as typed ones are, so that no entry typed in the sheet can hold a
// colour code.
std::string TypableText(const std::string& text);

} // namespace steward
