#include "highlights/HighlightItems.h"

#include <algorithm>

namespace steward {

const SampleRow SAMPLE_ROWS[SAMPLE_ROW_COUNT] = {
    {"Someone says, \"This is a message.\"", &Settings::SaysColor, 13},
    {"Someone whispers, \"This is a whispered message.\"", &Settings::WhispersColor, 17},
    {"You pick up someone's thought/link, \"A contact or link message.\"", &Settings::ThoughtColor,
     WHOLE_LINE},
    {"[Someone] \"Their message.\" (compressed contacts/links)", &Settings::CompressedThoughtColor,
     WHOLE_LINE},
};

void HighlightItems::OpenList(const HighlightList& list)
{
    items_.clear();
    for (std::size_t slot = 0; slot < HIGHLIGHT_SLOTS; ++slot) {
        if (list.Text(slot)[0] != '\0')
            items_.push_back(MakeItemText(list.Color(slot), list.Text(slot)));
    }
    samples_ = false;
    Select(0);
}

void HighlightItems::OpenSamples(const Settings& settings)
{
    items_.clear();
    for (const SampleRow& row : SAMPLE_ROWS)
        items_.push_back(MakeItemText(settings.*row.Field, row.Text));
    samples_ = true;
    Select(0);
}

void HighlightItems::Select(int index)
{
    selected_ =
        index >= 0 && static_cast<std::size_t>(index) < items_.size() ? index : NO_SELECTION;
}

int HighlightItems::SlotsLeft() const
{
    const std::size_t slots = samples_ ? SAMPLE_ROW_COUNT : HIGHLIGHT_SLOTS;
    return static_cast<int>(slots - items_.size());
}

bool HighlightItems::ComposeItem(int index, const ItemChanges& changes)
{
    const bool replace = index >= 0 && static_cast<std::size_t>(index) < items_.size();
    const HighlightItem start = replace ? Parsed(static_cast<std::size_t>(index)) : HighlightItem{};
    const std::string item = steward::ComposeItem(WithChanges(start, changes));
    if (!samples_ && PackedText(item).size() > HIGHLIGHT_TEXT_MAX)
        return false;
    if (replace) {
        items_[static_cast<std::size_t>(index)] = item;
        Select(index);
    } else {
        items_.push_back(item);
    }
    return true;
}

std::size_t HighlightItems::AskLimit() const
{
    if (!HasSelection())
        return HIGHLIGHT_ASK_LIMIT;
    const std::size_t index = static_cast<std::size_t>(selected_);
    const std::size_t markers = PackedText(items_[index]).size() - Parsed(index).Match.size();
    return std::min(HIGHLIGHT_ASK_LIMIT,
                    HIGHLIGHT_TEXT_MAX - std::min(markers, HIGHLIGHT_TEXT_MAX));
}

bool HighlightItems::New(const std::string& match)
{
    if (samples_ || Full() || match.empty())
        return false;
    ItemChanges changes;
    changes.Color = HIGHLIGHT_DEFAULT_COLOR;
    changes.Match = TypableText(match.substr(0, HIGHLIGHT_ASK_LIMIT));
    if (!ComposeItem(NO_SELECTION, changes))
        return false;
    Select(static_cast<int>(items_.size()) - 1);
    return true;
}

bool HighlightItems::Change(const std::string& match)
{
    if (samples_ || !HasSelection() || match.empty())
        return false;
    ItemChanges changes;
    changes.Match = TypableText(match);
    return ComposeItem(selected_, changes);
}

void HighlightItems::Delete()
{
    if (samples_ || !HasSelection())
        return;
    items_.erase(items_.begin() + selected_);
    Select(selected_);
}

void HighlightItems::SortItems()
{
    if (samples_)
        return;
    HighlightList sorted;
    Apply(sorted);
    SortByColor(sorted);
    OpenList(sorted);
}

void HighlightItems::SetAllBackgroundsTransparent()
{
    if (samples_)
        return;
    for (std::string& item : items_) {
        const HighlightItem parsed = ParseItem(item);
        const unsigned char low = parsed.Color & 0x0F;
        item = MakeItemText(low <= 1 ? HIGHLIGHT_DEFAULT_COLOR : low, PackedText(item).c_str());
    }
}

bool HighlightItems::SetFlag(HighlightFlag flag, bool on)
{
    if (samples_ || !HasSelection())
        return false;
    ItemChanges changes;
    if (flag == HighlightFlag::EntireLine)
        changes.EntireLine = on;
    else if (flag == HighlightFlag::NotOnWordBoundary)
        changes.NotOnWordBoundary = on;
    else
        changes.CaseSensitive = on;
    return ComposeItem(selected_, changes);
}

bool HighlightItems::SetSound(const std::string& sound)
{
    if (samples_ || !HasSelection())
        return false;
    ItemChanges changes;
    changes.Sound = sound;
    return ComposeItem(selected_, changes);
}

void HighlightItems::LeftClickCell(int cell)
{
    if (!HasSelection() || cell <= 0 || cell >= COLOR_CELL_COUNT)
        return;
    const unsigned char color = Parsed(static_cast<std::size_t>(selected_)).Color;
    SetColor(static_cast<unsigned char>((color & 0xF0) | cell));
}

void HighlightItems::RightClickCell(int cell)
{
    if (!HasSelection() || cell < 0 || cell >= COLOR_CELL_COUNT)
        return;
    const unsigned char color = Parsed(static_cast<std::size_t>(selected_)).Color;
    SetColor(static_cast<unsigned char>((color & 0x0F) | (cell << 4)));
}

void HighlightItems::SetColor(unsigned char color)
{
    std::string& item = items_[static_cast<std::size_t>(selected_)];
    item = MakeItemText(color, PackedText(item).c_str());
}

void HighlightItems::Apply(HighlightList& list)
{
    list.Clear();
    for (std::size_t i = 0; i < items_.size(); ++i) {
        list.SetColor(i, ParseItem(items_[i]).Color);
        list.SetText(i, PackedText(items_[i]).c_str());
    }
}

void HighlightItems::ApplySamples(Settings& settings)
{
    for (std::size_t row = 0; row < SAMPLE_ROW_COUNT && row < items_.size(); ++row)
        settings.*SAMPLE_ROWS[row].Field = ParseItem(items_[row]).Color;
}

} // namespace steward
