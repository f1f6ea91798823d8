#include "mechanics/projectile/crossing.h"

#include <algorithm>
#include <cmath>

#include "mechanics/projectile/real_roots.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/quadrature.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;

/// Of a path length. A millionth is not enough: the first coarse results of the rule at times agree so far by
/// chance, and the third decimal is false.
constexpr double kLengthAccuracy = 1e-10;
constexpr const char* kMissingTrajectory = "Me falta una de las ecuaciones de trayectoria.";
constexpr const char* kOtherRoutine = "Maneja este caso con otra rutina.";
constexpr const char* kNoCrossing = "Las trayectorias no se intersecan.";

/// Times that differ by no more are one.
constexpr double kSameTime = 1e-6;

bool AreEqual(double a, double b) {
    return std::abs(a - b) <= kRounding * std::max(std::abs(a), std::abs(b));
}

double ValueAt(const Parabola& parabola, double x) {
    return Finite((parabola.a * x + parabola.b) * x + parabola.c);
}

/// The x in which two parabolas meet. Square coefficients that differ by rounding only are one.
std::vector<double> MeetingPlaces(const Parabola& first, const Parabola& second) {
    if (!AreEqual(first.a, second.a))
        return RealRoots(first.a - second.a, first.b - second.b, first.c - second.c);
    if (AreEqual(first.b, second.b))
        return {};
    return {Finite((second.c - first.c) / (first.b - second.b))};
}

std::string PointText(double x, double y, int decimals) {
    return "(" + Shown(x, decimals) + ", " + Shown(y, decimals) + ")";
}

}  // namespace

bool Crossing::IsCollision() const { return std::abs(first_time - second_time) <= kSameTime; }

std::variant<text::Refusal, std::vector<Crossing>> CrossTrajectories(const Equations& first,
                                                                     const Equations& second) {
    if (!first.IsComplete() || !second.IsComplete())
        return text::Refusal{kMissingTrajectory};
    const Flight first_flight = ExactFlight(first);
    const Flight second_flight = ExactFlight(second);
    const auto& first_curve = first_flight.trajectory;
    const auto& second_curve = second_flight.trajectory;
    if (!first_curve || !second_curve)
        return text::Refusal{kOtherRoutine};
    std::vector<Crossing> crossings;
    for (const double x : MeetingPlaces(*first_curve, *second_curve))
        crossings.push_back(
            {x, ValueAt(*first_curve, x), TimeAtX(first_flight, x), TimeAtX(second_flight, x)});
    if (crossings.empty())
        return text::Refusal{kNoCrossing};
    return crossings;
}

std::vector<std::string> CrossingReport(const std::vector<Crossing>& crossings, int decimals) {
    const auto collision = std::ranges::find_if(crossings, &Crossing::IsCollision);
    if (collision != crossings.end())
        return {"Los móviles chocan en el punto:", PointText(collision->x, collision->y, decimals),
                "por donde pasan en t = " + Shown(collision->first_time, decimals)};
    std::vector<std::string> report;
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        const Crossing& each = crossings[i];
        report.push_back("Punto de intersección " + std::to_string(i + 1) + ":");
        report.push_back(PointText(each.x, each.y, decimals));
        report.push_back("Los móviles 1 y 2 pasan respectivamente por allí en t = " +
                         Shown(each.first_time, decimals) + " y en t = " + Shown(each.second_time, decimals));
    }
    return report;
}

std::variant<text::Refusal, std::vector<InclineHit>> RangeOnPlane(int mover, const Equations& equations,
                                                                  double x, double y, double degrees) {
    if (!equations.IsComplete() || IsUpright(degrees))
        return text::Refusal{kSolveOtherwise};
    const Flight flight = ExactFlight(equations);
    const auto& curve = flight.trajectory;
    if (!curve)
        return text::Refusal{kSolveOtherwise};
    const double slope = numeric::TanD(degrees);
    std::vector<InclineHit> hits;
    for (const double at : RealRoots(curve->a, curve->b - slope, Finite(curve->c - y + slope * x))) {
        const double height = Finite(y + slope * (at - x));
        hits.push_back({at, height, TimeAtX(flight, at), numeric::Hypot(at - x, height - y)});
    }
    if (hits.empty())
        return text::Refusal{"La trayectoria del móvil " + std::to_string(mover) + " no interseca la recta."};
    return hits;
}

std::vector<std::string> InclineReport(const std::vector<InclineHit>& hits, int decimals) {
    std::vector<std::string> report;
    for (std::size_t i = 0; i < hits.size(); ++i) {
        const InclineHit& hit = hits[i];
        const std::string number = std::to_string(i + 1);
        report.push_back("Solución " + number + ":");
        report.push_back("$r!c = " + PointText(hit.x, hit.y, decimals) + ", t!c = " + Shown(hit.t, decimals));
        report.push_back("Alcance sobre el plano inclinado: R!" + number + " = " +
                         Shown(hit.range, decimals));
    }
    return report;
}

std::optional<double> PathLength(const Flight& flight, double first_time, double second_time) {
    if (!flight.trajectory)
        return std::nullopt;
    const auto element = [&curve = *flight.trajectory](double x) {
        const double slope = curve.b + 2.0 * curve.a * x;
        return std::sqrt(1.0 + slope * slope);
    };
    const auto [first, last] = std::minmax({StateAt(flight, first_time).x, StateAt(flight, second_time).x});
    // At the top the slope changes its sign: the steeper the branches, the sharper is the bend of the element
    // there, over which the rule loses its digits.
    const double top = -flight.trajectory->b / (2.0 * flight.trajectory->a);
    if (top <= first || top >= last)
        return numeric::Integrate(element, first, last, kLengthAccuracy);
    return numeric::Integrate(element, first, top, kLengthAccuracy) +
           numeric::Integrate(element, top, last, kLengthAccuracy);
}

std::vector<std::string> PathReport(int mover, const Flight& flight, double first_time, double second_time,
                                    double length, int decimals) {
    return {"La distancia recorrida por el móvil " + std::to_string(mover) + " entre",
            "los tiempos " + Shown(first_time, decimals) + " y " + Shown(second_time, decimals) +
                ", correspondientes a las posiciones",
            "x = " + Shown(StateAt(flight, first_time).x, decimals) +
                " y x = " + Shown(StateAt(flight, second_time).x, decimals) + " es:",
            Shown(length, decimals)};
}

}  // namespace tavrelo::mechanics::projectile
