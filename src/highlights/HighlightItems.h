#pragma once

#include "config/Settings.h"
#include "highlights/HighlightItem.h"
#include "highlights/HighlightList.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace steward {

// A row of the colours page: a sample line, the Settings colour it shows, and how many of its
// bytes stand in that colour (the rest in the window's text colour).
struct SampleRow {
    const char* Text;
    std::uint8_t Settings::*Field;
    std::size_t ColoredBytes;
};
constexpr std::size_t SAMPLE_ROW_COUNT = 4;
constexpr std::size_t WHOLE_LINE = static_cast<std::size_t>(-1);
extern const SampleRow SAMPLE_ROWS[SAMPLE_ROW_COUNT];

// The sheet asks for a match text of at most this many characters.
constexpr std::size_t HIGHLIGHT_ASK_LIMIT = 79;
// The number of colour cells: one per Palette entry.
constexpr int COLOR_CELL_COUNT = 16;

enum class HighlightFlag { EntireLine, NotOnWordBoundary, CaseSensitive };
constexpr int HIGHLIGHT_FLAG_COUNT = 3;

// The working copy of one page of the highlight sheet: its list items, the selected one, and
// whether it differs from what was last applied. The stored list changes only in Apply. Every
// item keeps its packed text within HIGHLIGHT_TEXT_MAX, so that Apply never drops one.
class HighlightItems {
  public:
    static constexpr int NO_SELECTION = -1;

    // Items of the slots in use, in slot order, without any gap; item 0 selected.
    void OpenList(const HighlightList& list);
    // The four sample rows in the colours of settings.
    void OpenSamples(const Settings& settings);

    std::size_t Count() const { return items_.size(); }
    const std::string& Item(std::size_t index) const { return items_[index]; }
    HighlightItem Parsed(std::size_t index) const { return ParseItem(items_[index]); }
    int Selected() const { return selected_; }
    void Select(int index);
    bool HasSelection() const { return selected_ != NO_SELECTION; }
    // 4096 less the items of a list page; always 0 on the colours page.
    int SlotsLeft() const;
    bool Full() const { return items_.size() >= HIGHLIGHT_SLOTS; }

    // Writes the item with the changes; index below 0 adds it at the end. False, with nothing
    // changed, when the packed text would pass HIGHLIGHT_TEXT_MAX.
    bool ComposeItem(int index, const ItemChanges& changes);
    // The longest match text that the selected item (or a new one) can take.
    std::size_t AskLimit() const;

    // The buttons and fields of a list page, each on the selected item.
    bool New(const std::string& match);
    bool Change(const std::string& match);
    void Delete();
    void SortItems();
    void SetAllBackgroundsTransparent();
    bool SetFlag(HighlightFlag flag, bool on);
    bool SetSound(const std::string& sound);
    // The colour cells: left sets the foreground (cell 0 does nothing), right the background.
    void LeftClickCell(int cell);
    void RightClickCell(int cell);

    // The stored list becomes the items, slot for slot.
    void Apply(HighlightList& list);
    void ApplySamples(Settings& settings);

  private:
    void SetColor(unsigned char color);

    std::vector<std::string> items_;
    int selected_ = NO_SELECTION;
    bool samples_ = false;
};

} // namespace steward
