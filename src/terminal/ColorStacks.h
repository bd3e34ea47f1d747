#pragma once

#include "terminal/DrawingLayer.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace steward {

constexpr std::size_t COLOR_STACK_SIZE = 32;

// The saved text and background colours of one paint. A push past the last entry overwrites
// the top one, and a pop from the empty stack sets entry 0 again.
struct ColorStacks {
    std::array<COLORREF, COLOR_STACK_SIZE> ForeStack = {};
    std::array<COLORREF, COLOR_STACK_SIZE> BackStack = {};
    std::int16_t ForeDepth = 0;
    std::int16_t BackDepth = 0;

    void PushFore(const DrawingLayer& layer);
    void PopFore(DrawingLayer& layer);
    void PushBack(const DrawingLayer& layer);
    void PopBack(DrawingLayer& layer);
};

} // namespace steward
