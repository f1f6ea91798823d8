#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/forces/sum_equation.h"
#include "mechanics/rigid/body_force.h"

namespace tavrelo::mechanics::rigid {

/// The three sums of one body, in the order of the equations.
enum class BodySum { X, Y, M };
/// "x", "y", "m".
std::string_view LetterOf(BodySum sum);

/// A body whose equations are wanted, and the point about which its moments are taken.
struct ChosenBody {
    int number = 1;
    bool is_particle = false;  // one point: no moments
    double x0 = 0;             // of the reference point
    double y0 = 0;
};

/// A coefficient and the unknown that it multiplies, as the first force that holds it writes it.
using BodyTerm = forces::SumTerm;

/// A sum equal to zero. An empty one still counts as an equation.
struct BodyEquation {
    int body;
    BodySum sum;
    std::vector<BodyTerm> terms;
    double constant = 0;
};

struct BodyEquations {
    std::vector<BodyEquation> equations;  // by bodies as chosen, x, y, m; without the suppressed ones
    std::vector<std::string> unknowns;    // names in order of appearance: all x, then all y, then all m; an
                                          // angle once, by its own name
    std::vector<std::string> magnitudes;  // those of them that are no angle: forces, components, couples
    std::vector<std::string> angles;      // the others
};

/// The equations of equilibrium of the chosen bodies; moments are positive counter-clockwise. `suppressed`
/// names equations to leave out: "1x, 3m"; what names none changes nothing. Refused without unknowns. Fails
/// with Overflow.
std::variant<text::Refusal, BodyEquations> BuildEquations(const BodyForces& forces,
                                                          std::span<const ChosenBody> bodies,
                                                          std::string_view suppressed);

/// Why equations with an unknown angle are not for this program: too many angles, or too many bodies;
/// nothing when there is no angle, or one on a single body.
std::optional<text::Refusal> CheckAngles(const BodyEquations& equations, std::size_t bodies);

}  // namespace tavrelo::mechanics::rigid
