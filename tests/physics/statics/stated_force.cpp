#include "statics/stated_force.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

#include "equations.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

constexpr std::array kSymbols = {"F",  "G",  "T",   "N",   "R",   "P",   "Q", "W",  "F1", "F2",
                                 "T1", "N2", "F12", "R13", "Tab", "Tcd", "f", "f1", "fb", "B"};
constexpr double kSameValue = 1e-6;
constexpr double kSameAngle = 1e-6;
constexpr int kFewestDecimals = 2;
constexpr double kDigitsOfForce = 4;
constexpr std::array kAngles = {"a", "b", "q", "a1", "t2", "alfa", "beta", "F", "x"};
constexpr std::array kAxes = {0.0, 90.0, 180.0, -90.0};
constexpr std::array kUsual = {30.0, 45.0, 60.0, 120.0, 135.0, 150.0, -30.0, -45.0, -60.0, -135.0, -150.0};

double Value(const StatedComponent& component, const Values& values) {
    return component.magnitude.empty() ? component.number
                                       : component.number * values.magnitudes.at(component.magnitude);
}

bool IsLevel(double direction) { return std::remainder(direction, 180) == 0; }
bool IsUpright(double direction) { return std::abs(std::remainder(direction, 180)) == 90; }

// "p30x" for 30 degrees: the quadrant, the angle and the axis from which it is measured.
std::string QuadrantText(Chance& chance, double direction) {
    const double turned = std::remainder(direction, 360);
    const bool right = std::abs(turned) <= 90;
    const char* quadrant = turned >= 0 ? (right ? "p" : "s") : (right ? "c" : "t");
    const double from_x = right ? std::abs(turned) : 180 - std::abs(turned);
    const bool by_x = chance.OneIn(2);
    return quadrant + Rounded(by_x ? from_x : 90 - from_x, 6).text + (by_x ? "x" : "y");
}

// "12", or a product of two numbers that is 12.
Typed TypedMagnitude(Chance& chance, double magnitude) {
    if (chance.OneIn(8)) {
        const Typed mass = Rounded(magnitude / 9.8, 2);
        if (mass.value > 0)
            return {mass.text + "*9.8", mass.value * 9.8};
    }
    const Typed typed = Significant(magnitude, 3 + static_cast<int>(chance.Below(4)));
    return typed.value > 0 ? typed : Typed{"1", 1};
}

StatedForce AlongAxis(const std::string& value, double number, bool level, const std::string& name) {
    StatedForce force = {(level ? "h" : "v") + value, {}, {}};
    (level ? force.x : force.y) = {number, name};
    return force;
}

// A blank or a colon that changes nothing.
void Decorate(Chance& chance, StatedForce& force) {
    if (chance.OneIn(10))
        force.text += ":";
    if (chance.OneIn(10))
        force.text = " " + force.text + " ";
}

std::string FactorText(double factor) { return factor == 1 ? "" : Rounded(factor, 6).text; }

StatedForce ByQuadrantComponent(Chance& chance, double magnitude, double direction) {
    const bool level = chance.OneIn(2);
    const double part = level ? std::abs(CosDegrees(direction)) : std::abs(SinDegrees(direction));
    const Typed typed = Significant(magnitude * part, 4);
    const double whole = typed.value / part;
    return {QuadrantText(chance, direction) + "," + typed.text + (level ? "h" : "v"),
            {whole * CosDegrees(direction)},
            {whole * SinDegrees(direction)}};
}

StatedForce ByMagnitude(Chance& chance, double magnitude, double direction) {
    const Typed typed = TypedMagnitude(chance, magnitude);
    const std::string at = Rounded(direction, 6).text;
    const std::array texts = {typed.text + "<" + at, typed.text + ";" + at,
                              QuadrantText(chance, direction) + "," + typed.text};
    return {chance.Of(texts), {typed.value * CosDegrees(direction)}, {typed.value * SinDegrees(direction)}};
}

}  // namespace

std::string Told(const Values& values) {
    std::string text;
    for (const auto& [name, value] : values.magnitudes)
        text += (text.empty() ? "" : ", ") + name + " = " + Digits(value);
    for (const auto& [name, value] : values.angles)
        text += (text.empty() ? "" : ", ") + name + " = " + Digits(value) + " degrees";
    return text;
}

bool AreEqual(const Values& first, const Values& second) {
    return std::ranges::equal(
               first.magnitudes, second.magnitudes,
               [](const auto& a, const auto& b) { return Agree(a.second, b.second, kSameValue); }) &&
           std::ranges::equal(first.angles, second.angles, [](const auto& a, const auto& b) {
               return std::abs(std::remainder(a.second - b.second, 360)) <= kSameAngle;
           });
}

std::string NameOf(const std::string& symbol) {
    std::string name = symbol;
    for (std::size_t k = symbol.starts_with('f') ? 1 : 0; k < name.size(); ++k)
        name[k] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[k])));
    return name;
}

Components At(const StatedForce& force, const Values& values) {
    const double x = Value(force.x, values), y = Value(force.y, values);
    if (force.angle.empty())
        return {x, y};
    const double angle = values.angles.at(force.angle);
    return {x * CosDegrees(angle), y * SinDegrees(angle)};
}

double TypedDirection(Chance& chance) {
    switch (chance.Below(4)) {
        case 0:
            return chance.Of(kAxes);
        case 1:
            return chance.Of(kUsual);
        default:
            return Rounded(chance.Between(-179.9, 179.9), static_cast<int>(chance.Below(3))).value;
    }
}

StatedForce KnownForce(Chance& chance, double magnitude, double direction) {
    StatedForce force;
    const std::size_t way = chance.Below(6);
    if (way == 0) {
        force = KnownComponents(magnitude * CosDegrees(direction), magnitude * SinDegrees(direction),
                                DecimalsFor(magnitude));
    } else if (way <= 3 && (IsLevel(direction) || IsUpright(direction))) {
        const Typed typed = TypedMagnitude(chance, magnitude);
        const bool level = IsLevel(direction);
        const bool back = (level ? CosDegrees(direction) : SinDegrees(direction)) < 0;
        force = AlongAxis((back ? "-" : "") + typed.text, back ? -typed.value : typed.value, level, "");
    } else if (way == 1 && !IsLevel(direction) && !IsUpright(direction)) {
        force = ByQuadrantComponent(chance, magnitude, direction);
    } else {
        force = ByMagnitude(chance, magnitude, direction);
    }
    Decorate(chance, force);
    return force;
}

int DecimalsFor(double size) {
    return std::max(kFewestDecimals, static_cast<int>(std::ceil(kDigitsOfForce - std::log10(size))));
}

StatedForce KnownComponents(double x, double y, int decimals) {
    Typed first = Rounded(x, decimals);
    const Typed second = Rounded(y, decimals);
    if (first.value == 0 && second.value == 0)
        first = Rounded(std::pow(10, -decimals), decimals);
    return {first.text + "," + second.text, {first.value}, {second.value}};
}

StatedForce UnknownMagnitude(Chance& chance, const std::string& symbol, double factor, double direction) {
    const std::string value = FactorText(factor) + symbol;
    const std::string name = NameOf(symbol);
    StatedForce force;
    if ((IsLevel(direction) || IsUpright(direction)) && !chance.OneIn(4)) {
        const bool level = IsLevel(direction);
        const bool back = (level ? CosDegrees(direction) : SinDegrees(direction)) < 0;
        force = AlongAxis((back ? "-" : "") + value, back ? -factor : factor, level, name);
    } else {
        const std::string at = Rounded(direction, 6).text;
        const std::array texts = {value + "<" + at, value + ";" + at,
                                  QuadrantText(chance, direction) + "," + value};
        force = {
            chance.Of(texts), {factor * CosDegrees(direction), name}, {factor * SinDegrees(direction), name}};
    }
    Decorate(chance, force);
    return force;
}

StatedForce UnknownDirection(Chance& chance, double magnitude, const std::string& angle) {
    const Typed typed = TypedMagnitude(chance, magnitude);
    const std::string name = NameOf(angle);
    if (typed.value == 1 && chance.OneIn(2))
        return {"u" + angle, {1}, {1}, name};
    return {typed.text + (chance.OneIn(2) ? "<" : ";") + angle, {typed.value}, {typed.value}, name};
}

StatedForce UnknownForce(const std::string& symbol, double factor, const std::string& angle) {
    const StatedComponent component = {factor, NameOf(symbol)};
    return {FactorText(factor) + symbol + "<" + angle, component, component, NameOf(angle)};
}

StatedForce UnknownComponents(const std::string& x, const std::string& y) {
    return {x + "," + y, {1, NameOf(x)}, {1, NameOf(y)}};
}

std::vector<std::string> Symbols(Chance& chance, std::size_t count) {
    std::vector<std::string> left(kSymbols.begin(), kSymbols.end());
    std::vector<std::string> taken;
    while (taken.size() < count && !left.empty()) {
        const auto at = left.begin() + static_cast<std::ptrdiff_t>(chance.Below(left.size()));
        taken.push_back(*at);
        left.erase(at);
    }
    return taken;
}

std::vector<std::string> AngleSymbols(Chance& chance, std::size_t count) {
    std::vector<std::string> taken;
    while (taken.size() < count) {
        const std::string angle = chance.Of(kAngles);
        if (taken.empty() || taken.front() != angle)
            taken.push_back(angle);
    }
    return taken;
}

double TypedFactor(Chance& chance) {
    constexpr std::array kFactors = {1.0, 1.0, 1.0, 2.0, 0.5, 3.0};
    return chance.Of(kFactors);
}

}  // namespace tavrelo::physics
