#pragma once

#include <algorithm>
#include <cstdint>

namespace steward {

// While a window is scrolled back, its rows can be shared between the frozen view above and
// the live end of the text below, with one row for the bar between them.
constexpr std::int32_t MIN_PANE_ROWS = 2;
constexpr std::int32_t SPLIT_BAR_ROWS = 1;
// A wanted tail of no rows asks for the default share, a third of the window.
constexpr std::int32_t DEFAULT_TAIL_ROWS = 0;

struct TailSplit {
    std::int32_t ViewRows;
    // 0: the frozen view alone.
    std::int32_t TailRows;
};

// The wanted tail is kept as far as both panes keep MIN_PANE_ROWS; a window too low for two
// panes shows the frozen view alone.
constexpr TailSplit SplitRows(std::int32_t rows, std::int32_t wantedTailRows)
{
    const std::int32_t most = rows - SPLIT_BAR_ROWS - MIN_PANE_ROWS;
    if (most < MIN_PANE_ROWS)
        return {rows, 0};
    const std::int32_t wanted = wantedTailRows > 0 ? wantedTailRows : rows / 3;
    const std::int32_t tail = std::clamp(wanted, MIN_PANE_ROWS, most);
    return {rows - SPLIT_BAR_ROWS - tail, tail};
}

} // namespace steward
