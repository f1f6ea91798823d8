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

/// 1 pixel at 100 % is 15 twips.
inline constexpr int kTwipsPerPixel = 15;

}  // namespace tavrelo::window
