#include "drawing/force_words.h"

#include <cmath>

#include "drawing/words.h"
#include "text/symbols.h"

namespace tavrelo::drawing {
namespace {

using notation::Force;
using notation::ForceComponent;
using notation::Knowledge;

/// A magnitude is positive to the ear: one below zero points the other way.
struct Pointing {
    double size;
    double degrees;
};
Pointing PointingOf(double magnitude, double degrees) {
    constexpr double kHalfTurn = 180;
    if (magnitude >= 0)
        return {magnitude, degrees};
    return {-magnitude, degrees > 0 ? degrees - kHalfTurn : degrees + kHalfTurn};
}

/// "2 T", "menos 0.4 N", or the number.
std::string ComponentWords(const ForceComponent& component, int decimals) {
    if (component.number)
        return NumberWords(*component.number, decimals);
    const std::string term = text::FactorText(component.coefficient, TextOf(component.unknown), decimals);
    return term.starts_with('-') ? "menos " + term.substr(1) : term;
}

const std::string& AngleName(const Force& force) {
    return force.x.unknown.HasAngle() ? force.x.unknown.angle : force.y.unknown.angle;
}

bool HasUnknownAngle(const Force& force) { return !force.direction && !AngleName(force).empty(); }

std::string KnownWords(const ToldForce& told, int decimals) {
    const auto [size, degrees] = PointingOf(*told.force.magnitude, *told.force.direction);
    std::string words = told.name.empty() ? "" : told.name + ": ";
    words += NumberWords(size, decimals) + " " + DirectionWords(degrees, decimals);
    if (told.force.knowledge == Knowledge::Found)
        words += ", hallada";
    return words;
}

std::string UnknownAngleWords(const ToldForce& told, int decimals) {
    const Force& force = told.force;
    std::string words = force.magnitude ? NumberWords(std::abs(*force.magnitude), decimals) : told.name;
    words += force.magnitude ? " de ángulo desconocido " : " desconocida, de ángulo desconocido ";
    words += AngleName(force);
    if (told.drawn_direction)
        words += ", dibujada " + DirectionWords(*told.drawn_direction, decimals);
    return words;
}

std::string UnknownWords(const ToldForce& told, int decimals) {
    const Force& force = told.force;
    if (force.direction && !force.magnitude)
        return told.name + " " + DirectionWords(*force.direction, decimals) + ", desconocida";
    std::string drawn;
    if (told.drawn_direction)
        drawn = ", dibujada " + DirectionWords(*told.drawn_direction, decimals);
    return "componente x " + ComponentWords(force.x, decimals) + ", componente y " +
           ComponentWords(force.y, decimals) + ", desconocida" + drawn;
}

}  // namespace

std::string NameWords(const Force& force) {
    const std::string& x = force.x.unknown.magnitude;
    const std::string& y = force.y.unknown.magnitude;
    if (x.empty() || y.empty() || text::SameSymbol(x, y))
        return x.empty() ? y : x;
    return x + ", " + y;
}

std::string ForceWords(const ToldForce& told, int decimals) {
    std::string words;
    if (told.force.magnitude && told.force.direction)
        words = KnownWords(told, decimals);
    else if (HasUnknownAngle(told.force))
        words = UnknownAngleWords(told, decimals);
    else
        words = UnknownWords(told, decimals);
    return words + (told.leaves ? "" : ", llega al punto");
}

std::string ComponentsWords(const Force& force, int decimals) {
    if (!force.HasComponents())
        return {};
    return "componentes x " + NumberWords(*force.x.number, decimals) + ", y " +
           NumberWords(*force.y.number, decimals);
}

}  // namespace tavrelo::drawing
