#include "drawing/curve_words.h"

#include <algorithm>
#include <cmath>

#include "drawing/words.h"

namespace tavrelo::drawing {
namespace {

constexpr std::size_t kLongestList = 8;  // items that are told one by one
constexpr double kLevel = 1e-9;          // part of the extent that counts as no change

using Values = std::span<const double>;

/// The largest number that counts as no change, and as zero, beside the others.
double LevelOf(Values ys) {
    double largest = 0;
    for (const double y : ys)
        largest = std::max(largest, std::abs(y));
    return kLevel * largest;
}

/// A change of sign where the curve grows towards both sides of the gap is a jump over zero.
bool IsJump(Values ys, std::size_t k) {
    const bool grows_before = k > 0 && std::abs(ys[k]) > std::abs(ys[k - 1]);
    const bool falls_behind = k + 2 < ys.size() && std::abs(ys[k + 1]) > std::abs(ys[k + 2]);
    return grows_before && falls_behind;
}

std::string At(std::string_view name, double value, int decimals) {
    return std::string(name) + " " + NumberWords(value, decimals);
}

std::string ZeroWords(const ToldCurve& curve, int decimals) {
    std::vector<std::string> places;
    for (const double zero : ZerosOf(curve.xs, curve.ys)) {
        std::string place = At(curve.across, zero, decimals);
        if (places.empty() || places.back() != place)
            places.push_back(std::move(place));
    }
    if (places.empty())
        return " Sin ceros.";
    if (places.size() > kLongestList)
        return " " + std::to_string(places.size()) + " ceros, de " + places.front() + " a " + places.back() +
               ".";
    return " Cero en " + Listed(places) + ".";
}

std::string StretchWords(const ToldCurve& curve, int decimals) {
    std::vector<std::string> told;
    const std::vector<Stretch> stretches = StretchesOf(curve.xs, curve.ys);
    for (const Stretch& each : stretches) {
        const char* verb = each.sense > 0 ? "sube" : each.sense < 0 ? "baja" : "constante";
        told.push_back(std::string(verb) + " de " + At(curve.across, each.from, decimals) + " a " +
                       At(curve.across, each.to, decimals));
    }
    if (told.size() <= kLongestList)
        return " " + AsSentence(Listed(told)) + ".";
    const auto rises = std::ranges::count(stretches, 1, &Stretch::sense);
    const auto falls = std::ranges::count(stretches, -1, &Stretch::sense);
    return " Sube en " + std::to_string(rises) + " tramos y baja en " + std::to_string(falls) + ".";
}

}  // namespace

std::vector<double> ZerosOf(Values xs, Values ys) {
    // What arithmetic leaves of a zero counts as one.
    const double level = LevelOf(ys);
    const auto is_zero = [&](std::size_t k) { return std::abs(ys[k]) <= level; };
    std::vector<double> zeros;
    for (std::size_t k = 0; k < ys.size(); ++k) {
        if (is_zero(k)) {
            if (k == 0 || !is_zero(k - 1))
                zeros.push_back(xs[k]);
            continue;
        }
        const bool crosses = k + 1 < ys.size() && !is_zero(k + 1) && (ys[k] < 0) != (ys[k + 1] < 0);
        if (crosses && !IsJump(ys, k))
            zeros.push_back(xs[k] + (xs[k + 1] - xs[k]) * (ys[k] / (ys[k] - ys[k + 1])));
    }
    return zeros;
}

std::vector<Stretch> StretchesOf(Values xs, Values ys) {
    std::vector<Stretch> stretches;
    if (ys.empty())
        return stretches;
    const double level = LevelOf(ys);
    for (std::size_t k = 1; k < ys.size(); ++k) {
        const double change = ys[k] - ys[k - 1];
        const int sense = std::abs(change) <= level ? 0 : change > 0 ? 1 : -1;
        if (stretches.empty() || stretches.back().sense != sense)
            stretches.push_back({sense, xs[k - 1], xs[k]});
        stretches.back().to = xs[k];
    }
    // A level sample beside a summit belongs to the summit.
    std::vector<Stretch> merged;
    for (std::size_t k = 0; k < stretches.size(); ++k) {
        const Stretch& each = stretches[k];
        const double step =
            (xs.back() - xs.front()) / static_cast<double>(std::max<std::size_t>(xs.size() - 1, 1));
        const bool is_summit = each.sense == 0 && stretches.size() > 1 && each.to - each.from < 1.5 * step;
        if (!merged.empty() && (is_summit || merged.back().sense == each.sense))
            merged.back().to = each.to;
        else if (!is_summit)
            merged.push_back(each);
    }
    return merged;
}

std::string CurveWords(const ToldCurve& curve, int decimals) {
    if (curve.ys.empty())
        return {};
    const auto low = std::ranges::min_element(curve.ys);
    const auto high = std::ranges::max_element(curve.ys);
    const auto place = [&](auto value) {
        return At(curve.across, curve.xs[static_cast<std::size_t>(value - curve.ys.begin())], decimals);
    };
    std::string words = std::string(curve.upward) + " frente a " + std::string(curve.across) + ", de " +
                        At(curve.across, curve.xs.front(), decimals) + " a " +
                        At(curve.across, curve.xs.back(), decimals) + ".";
    if (*low == *high)
        return words + " " + std::string(curve.upward) + " constante: " + NumberWords(*low, decimals) + ".";
    words += " Mínimo " + NumberWords(*low, decimals) + " en " + place(low) + "; máximo " +
             NumberWords(*high, decimals) + " en " + place(high) + ".";
    return words + ZeroWords(curve, decimals) + StretchWords(curve, decimals);
}

std::string PathWords(const ToldCurve& path, int decimals) {
    if (path.xs.empty())
        return {};
    const auto place = [&](double x, double y) {
        return At(path.across, x, decimals) + ", " + At(path.upward, y, decimals);
    };
    const auto extent = [&](std::string_view name, Values values) {
        const auto [low, high] = std::ranges::minmax(values);
        return std::string(name) + " de " + NumberWords(low, decimals) + " a " + NumberWords(high, decimals);
    };
    return "empieza en " + place(path.xs.front(), path.ys.front()) + " y termina en " +
           place(path.xs.back(), path.ys.back()) + ". Abarca " + extent(path.across, path.xs) + ", " +
           extent(path.upward, path.ys) + ".";
}

}  // namespace tavrelo::drawing
