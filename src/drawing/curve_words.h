#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tavrelo::drawing {

/// A curve as it was sampled for its drawing; lists of equal length, the first one rising.
struct ToldCurve {
    std::string_view across;  // name of the quantity of xs: "t"
    std::string_view upward;  // and of ys: "v"
    std::span<const double> xs;
    std::span<const double> ys;
};

/// Where a sampled curve crosses or touches zero, in between by a straight line. A jump over zero, as at a
/// pole, is no crossing.
std::vector<double> ZerosOf(std::span<const double> xs, std::span<const double> ys);

/// A stretch on which the samples rise, fall or stay.
struct Stretch {
    int sense;  // 1, -1 or 0
    double from, to;
};
std::vector<Stretch> StretchesOf(std::span<const double> xs, std::span<const double> ys);

/// Extent, least and greatest value and where, zeros, and where it rises and falls: "y va de menos 1, en x 2,
/// a 8, en x 5. Cero en x 1 y x 3. Baja de x 0 a x 2, sube de x 2 a x 5." Nothing for no samples.
std::string CurveWords(const ToldCurve& curve, int decimals);

/// A path, begun in small letters: where it begins, where it ends and what it covers; the samples in the
/// order of the motion.
std::string PathWords(const ToldCurve& path, int decimals);

}  // namespace tavrelo::drawing
