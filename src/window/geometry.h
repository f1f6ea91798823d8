#pragma once

namespace tavrelo::window {

/// A rectangle in pixels at 100 %, in the coordinates of the parent control.
struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const Rect&, const Rect&) = default;
};

/// A place in pixels at 100 %, counted downward from the top left.
struct Point {
    double x, y;
};

/// 1 pixel at 100 % is 15 twips.
inline constexpr int kTwipsPerPixel = 15;

/// In which of `count` cells of that size, side by side from 0 on, a place lies, from 0; -1 outside them.
constexpr int CellAt(double place, double size, int count) {
    // Compared before it is converted: a pointer can be anywhere.
    return place >= 0 && place < size * count ? static_cast<int>(place / size) : -1;
}

}  // namespace tavrelo::window
