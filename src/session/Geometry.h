#pragma once

namespace steward {

// A rectangle in pixels of its parent's client area, by corner and size.
struct Area {
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;

    friend bool operator==(const Area&, const Area&) = default;
};

// A point in pixels of its parent's client area.
struct Corner {
    int X = 0;
    int Y = 0;

    friend bool operator==(const Corner&, const Corner&) = default;
};

} // namespace steward
