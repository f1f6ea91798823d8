#include "equations.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace tavrelo::physics {
namespace {

// A hair above the bound: a sum at the bound itself may come out on either side of it.
constexpr double kLargestRest = 0.001 * (1 + 1e-9);
constexpr double kPartOfLargestTerm = 0.001;
constexpr double kRounding = 1e-9;

}  // namespace

void Sum::Add(double term) {
    m_value += term;
    m_largest = std::max(m_largest, std::abs(term));
}

bool Sum::Vanishes() const { return VanishesBeside(m_largest); }

bool Sum::VanishesBeside(double largest_of_all) const {
    const double rest = std::min(kLargestRest, kPartOfLargestTerm * m_largest);
    return std::abs(m_value) <= std::max(rest, kRounding * std::max(m_largest, largest_of_all));
}

bool Sum::VanishesWithin(double part) const { return std::abs(m_value) <= part * m_largest; }

std::string Sum::Told() const { return Digits(m_value) + " of " + Digits(m_largest); }

Sum SumOf(const std::vector<double>& terms) {
    Sum sum;
    for (const double term : terms)
        sum.Add(term);
    return sum;
}

bool Agree(double found, double expected, double part, double scale) {
    return std::abs(found - expected) <= part * std::max(std::abs(expected), scale);
}

double SinDegrees(double degrees) {
    const double turned = std::remainder(degrees, 360);
    if (std::remainder(turned, 180) == 0)
        return 0;
    return std::sin(turned * std::numbers::pi / 180);
}

double CosDegrees(double degrees) {
    const double turned = std::remainder(degrees, 360);
    if (std::abs(turned) == 90)
        return 0;
    return std::cos(turned * std::numbers::pi / 180);
}

std::string Digits(double number) {
    char text[40];
    std::snprintf(text, sizeof text, "%.15g", number);
    return text;
}

}  // namespace tavrelo::physics
