#pragma once

namespace tovrel {

/// A point in logical pixels; y grows upwards.
struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width = 0;
    double height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

/// `origin` is the corner with the smallest coordinates.
struct Rect {
    Point origin;
    Size size;

    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace tovrel
