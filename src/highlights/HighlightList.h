#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace steward {

constexpr std::size_t HIGHLIGHT_SLOTS = 4096;
// A packed text holds at most this many bytes, markers included.
constexpr std::size_t HIGHLIGHT_TEXT_MAX = 80;
// Each slot's text buffer, with room for the NUL and one spare byte.
constexpr std::size_t HIGHLIGHT_SLOT_SIZE = 82;
constexpr unsigned char HIGHLIGHT_DEFAULT_COLOR = 14;

// One entry: the packed text "{sound}$*@match" (every part but the match optional) and a
// colour byte, low nibble the foreground and high nibble the background.
struct HighlightEntry {
    char Text[HIGHLIGHT_SLOT_SIZE] = {};
    unsigned char Color = HIGHLIGHT_DEFAULT_COLOR;
};
static_assert(sizeof(HighlightEntry) == HIGHLIGHT_SLOT_SIZE + 1);

// A fixed list of slots whose entries in use run from slot 0 up; an empty text is a free slot.
class HighlightList {
  public:
    HighlightList();
    // A copy, and a list assigned to, get a version of their own, so that no index built over
    // a list takes another list's slots for its own; moves are copies for the same reason.
    HighlightList(const HighlightList& other);
    HighlightList& operator=(const HighlightList& other);

    // Empties every slot's text; the colours stay.
    void Clear();
    // Copies text into the slot, unless it is longer than HIGHLIGHT_TEXT_MAX.
    void SetText(std::size_t index, const char* text);
    void SetColor(std::size_t index, unsigned char color);
    // Takes the first free slot: sets its colour, then its text; a full list does nothing.
    void Add(const char* text, unsigned char color);

    // Reads a .Highlights or .Names file; a missing file leaves the list empty.
    void Load(const char* path);
    // Writes every entry in use, in slot order; errors are silent.
    [[nodiscard]] bool Save(const char* path) const;

    const HighlightEntry& Entry(std::size_t index) const { return slots_[index]; }
    const char* Text(std::size_t index) const { return slots_[index].Text; }
    unsigned char Color(std::size_t index) const { return slots_[index].Color; }

    // A stamp that differs after every change, so that an index built over the list knows
    // when it is stale.
    std::uint64_t Version() const { return version_; }

  private:
    void Changed();

    std::vector<HighlightEntry> slots_;
    std::uint64_t version_ = 0;
};

// Reorders the entries by their whole colour byte, ascending and stable; free slots are dropped.
void SortByColor(HighlightList& list);

} // namespace steward
