#pragma once

namespace steward {

// A rectangle in pixels; right and bottom lie just outside it.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }

    friend bool operator==(const Rect&, const Rect&) = default;
};

// The rectangle with its top left corner at (x, y) and the given size.
constexpr Rect RectAt(int x, int y, int width, int height)
{
    return {x, y, x + width, y + height};
}

// A point in pixels of its parent's client area.
struct Corner {
    int X = 0;
    int Y = 0;

    friend bool operator==(const Corner&, const Corner&) = default;
};

} // namespace steward
