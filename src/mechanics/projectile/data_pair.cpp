#include "mechanics/projectile/data_pair.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

struct Contents {
    bool time, x, y, speed, angle;

    friend bool operator==(const Contents&, const Contents&) = default;
};
// In the order of Pair.
constexpr std::array<Contents, kPairs> kContents = {{
    {true, true, false, false, false},  // TimeX
    {true, false, true, false, false},  // TimeY
    {false, true, true, false, false},  // XY
    {true, false, false, false, true},  // TimeAngle
    {false, true, false, false, true},  // XAngle
    {false, false, true, false, true},  // YAngle
    {true, false, false, true, false},  // TimeSpeed
    {false, true, false, true, false},  // XSpeed
    {false, false, true, true, false},  // YSpeed
}};

const Contents& ContentsOf(Pair pair) { return kContents[static_cast<std::size_t>(pair)]; }

}  // namespace

bool HoldsTime(Pair pair) { return ContentsOf(pair).time; }
bool HoldsX(Pair pair) { return ContentsOf(pair).x; }
bool HoldsY(Pair pair) { return ContentsOf(pair).y; }
bool HoldsSpeed(Pair pair) { return ContentsOf(pair).speed; }
bool HoldsAngle(Pair pair) { return ContentsOf(pair).angle; }

std::optional<PairData> PairOf(const std::optional<double>& t, const std::optional<double>& x,
                               const std::optional<double>& y, const std::optional<double>& speed,
                               const std::optional<double>& angle) {
    const Contents given = {t.has_value(), x.has_value(), y.has_value(), speed.has_value(),
                            angle.has_value()};
    const auto row = std::ranges::find(kContents, given);
    if (row == kContents.end())
        return std::nullopt;
    return PairData{static_cast<Pair>(row - kContents.begin()),
                    t.value_or(0.0),
                    x.value_or(0.0),
                    y.value_or(0.0),
                    speed.value_or(0.0),
                    angle.value_or(0.0)};
}

std::string PairText(int mover, int point, const PairData& data, int decimals) {
    const Symbols& symbols = SymbolsOf(mover);
    const std::string index = "!" + std::to_string(point);
    std::string text;
    const auto add = [&text, decimals](const std::string& name, double number, const char* unit = "") {
        text += (text.empty() ? "" : ", ") + name + " = " + text::NumText(number, decimals).Text() + unit;
    };
    const Contents& holds = ContentsOf(data.pair);
    if (holds.time)
        add("t" + index, data.t);
    if (holds.x)
        add(std::string(symbols.x) + index, data.x);
    if (holds.y)
        add(std::string(symbols.y) + index, data.y);
    if (holds.speed)
        add(std::string(symbols.v) + index, data.speed);
    if (holds.angle)
        add(";a", data.angle, "°");
    return text;
}

}  // namespace tavrelo::mechanics::projectile
