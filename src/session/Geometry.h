#pragma once

namespace steward {

// A rectangle in pixels of its parent's client area.
struct Rect {
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;

    friend bool operator==(const Rect&, const Rect&) = default;
};

struct Point {
    int X = 0;
    int Y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

} // namespace steward
