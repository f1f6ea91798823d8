// What one point says when neither the speed nor the angle of the launch is known, and the questions on
// values that were found.

#include <array>
#include <cstddef>

#include "mechanics/projectile/launch_lines.h"
#include "mechanics/projectile/parameter_checks.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;

constexpr std::string_view kSameTime = "Estás poniendo t igual al tiempo inicial.";
constexpr std::string_view kSameX = "Estás poniendo x igual a la del punto inicial.";
constexpr std::string_view kNone = "No hay solución posible con estos datos.";
constexpr std::string_view kOfLittleUse =
    "La ecuación a la que dan lugar estos datos es\ncomplicada y de poca utilidad.";

constexpr const char* kAngle = ";q!0";

/// Holds what the relations of one point name.
struct Relation {
    const Symbols& symbols;
    const Differences& data;
    int decimals;

    std::string Shown(double number) const { return text::NumText(Finite(number), decimals).Text(); }
    /// "v!0 cos ;q!0 = 15, v!0!x = 15".
    std::string Product(const char* function, const std::string& component, double value) const {
        return symbols.InitialSpeed() + " " + function + " " + kAngle + " = " + Shown(value) + ", " +
               component + " = " + Shown(value);
    }
    /// "A tan ;q!0 ;- B/(...) = C".
    std::string Sum(double a, double b, const std::string& denominator, double c) const {
        const EquationLine line = {
            SumText({{text::RoundTo(a, decimals), std::string("tan ") + kAngle},
                     {b < 0.0 ? 1.0 : -1.0, text::NumberToText(ShownCoefficient(b < 0.0 ? -b : b, decimals)) +
                                                "/(" + denominator + ")"}}),
            {{text::RoundTo(Finite(c), decimals), "1"}}};
        return ForReport(line);
    }
    std::string HorizontalSpeed() const { return symbols.InitialSpeed() + " cos " + kAngle; }
    std::string HorizontalSpeedSquared() const { return symbols.InitialSpeed() + "¡2 cos¡2 " + kAngle; }
};

std::string ByTimeX(const Relation& r) {
    return r.Product("cos", r.symbols.InitialVx(), r.data.x / r.data.d);
}
std::string ByTimeY(const Relation& r) {
    return r.Product("sen", r.symbols.InitialVy(),
                     (r.data.y + kHalfGravity * r.data.d * r.data.d) / r.data.d);
}
std::string ByXY(const Relation& r) {
    return r.Sum(r.data.x, kHalfGravity * r.data.x * r.data.x, r.HorizontalSpeedSquared(), r.data.y);
}
std::string ByTimeAngle(const Relation& r) {
    return r.Sum(1.0, kGravity * r.data.d, r.HorizontalSpeed(), numeric::TanD(r.data.angle));
}
std::string ByXAngle(const Relation& r) {
    return r.Sum(1.0, kGravity * r.data.x, r.HorizontalSpeedSquared(), numeric::TanD(r.data.angle));
}

// In the order of Pair, as far as a relation is of use.
constexpr std::array kRelations = {ByTimeX, ByTimeY, ByXY, ByTimeAngle, ByXAngle};

std::string_view FaultOf(Pair pair, const Differences& data) {
    if (HoldsTime(pair) && IsZero(data.d))
        return kSameTime;
    if (HoldsX(pair) && IsZero(data.x))
        return kSameX;
    return HoldsAngle(pair) && IsUpright(data.angle) ? kNone : std::string_view();
}

/// "Datos: en t = 2, x = 30".
std::string GivenLine(const Symbols& symbols, const PairData& data, int decimals) {
    std::string line;
    const auto add = [&](std::string_view name, double number, const char* unit = "") {
        line += (line.empty() ? "" : ", ") + std::string(name) + " = " +
                text::NumText(number, decimals).Text() + unit;
    };
    if (HoldsTime(data.pair))
        add("en t", data.t);
    if (HoldsX(data.pair))
        add(symbols.x, data.x);
    if (HoldsY(data.pair))
        add(symbols.y, data.y);
    if (HoldsAngle(data.pair))
        add(";a", data.angle, "°");
    return "Datos: " + line;
}

constexpr std::string_view kQuestion = "¿Deseas replantear las ecuaciones de movimiento ";

}  // namespace

std::variant<text::Refusal, std::vector<std::string>> RelationsFor(int mover, const Launch& launch,
                                                                   const PairData& data, int decimals) {
    const auto index = static_cast<std::size_t>(data.pair);
    if (index >= kRelations.size())
        return text::Refusal{std::string(kOfLittleUse)};
    const Differences differences = DifferencesOf(launch, data, 0.0);
    if (const std::string_view fault = FaultOf(data.pair, differences); !fault.empty())
        return text::Refusal{std::string(fault)};
    const Symbols& symbols = SymbolsOf(mover);
    return std::vector{GivenLine(symbols, data, decimals),
                       kRelations[index](Relation{symbols, differences, decimals})};
}

std::string SpeedQuestion(const std::string& name, const std::vector<double>& values) {
    const std::string question(kQuestion);
    if (values.size() == 1)
        return question + "con este valor calculado de " + name + "?";
    return question + "con alguno de los 2 valores calculados de " + name +
           "?. Si escoges el primero oprime el botón \"Sí\". Para el segundo oprime \"No\".";
}

std::string AngleQuestion(const std::vector<double>& values, int decimals) {
    const std::string question(kQuestion);
    if (values.size() == 1)
        return question + "con este valor calculado de theta0?";
    return question +
           "con alguno de estos valores del ángulo?\ntheta1 = " + text::RoundedText(values[0], decimals) +
           "°,  theta2 = " + text::RoundedText(values[1], decimals) +
           "\nSi deseas tomar el primer valor oprime el botón \"Sí\". Para el segundo valor oprime el botón "
           "\"No\".";
}

std::string ComponentQuestion(const std::string& name, const std::vector<double>& values) {
    const std::string question(kQuestion);
    if (values.size() == 1)
        return question + "con este valor calculado de " + name + "?";
    return question + "con alguno de los dos valores calculados de " + name +
           "?\nPara escoger el primero oprime el botón \"Sí\". Para el segundo oprime el botón \"No\".";
}

}  // namespace tavrelo::mechanics::projectile
