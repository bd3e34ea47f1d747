#include "terminal/ColorStacks.h"

namespace steward {
namespace {

constexpr std::int16_t TOP_DEPTH = static_cast<std::int16_t>(COLOR_STACK_SIZE - 1);

void Push(std::array<COLORREF, COLOR_STACK_SIZE>& stack, std::int16_t& depth, COLORREF color)
{
    stack[static_cast<std::size_t>(depth)] = color;
    if (++depth > TOP_DEPTH)
        depth = TOP_DEPTH;
}

COLORREF Pop(const std::array<COLORREF, COLOR_STACK_SIZE>& stack, std::int16_t& depth)
{
    if (--depth < 0)
        depth = 0;
    return stack[static_cast<std::size_t>(depth)];
}

} // namespace

void ColorStacks::PushFore(const DrawingLayer& layer)
{
    Push(ForeStack, ForeDepth, layer.GetTextColor());
}

void ColorStacks::PopFore(DrawingLayer& layer)
{
    layer.SetTextColor(Pop(ForeStack, ForeDepth));
}

void ColorStacks::PushBack(const DrawingLayer& layer)
{
    Push(BackStack, BackDepth, layer.GetBkColor());
}

void ColorStacks::PopBack(DrawingLayer& layer)
{
    layer.SetBkColor(Pop(BackStack, BackDepth));
}

} // namespace steward
