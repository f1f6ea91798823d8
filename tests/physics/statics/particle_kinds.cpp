#include "statics/particle_kinds.h"

#include <algorithm>
#include <cmath>

#include "equations.h"
#include "plane.h"
#include "statics/particle_answers.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

constexpr int kAllDecimals = 15;
constexpr double kLeastMagnitude = 0.5;
constexpr double kGreatestMagnitude = 500;
constexpr double kSmallestScale = 1e-6;
constexpr double kLargestScale = 1e6;
// Parallel but for so little (the sine of the angle between) two forces may count as parallel.
constexpr double kNearlyParallel = 1e-3;
// Beside the largest sine or cosine the two solutions become one and the solver may refuse.
constexpr double kClearlyTwo = 0.999;
// Solutions whose magnitude is nothing beside the forces belong to neither side.
constexpr double kNoMagnitude = 1e-3;

double AnyMagnitude(Problem& problem) {
    return problem.scale * problem.chance.Size(kLeastMagnitude, kGreatestMagnitude);
}

// Up to three known forces, and the load that brings all into equilibrium for the known values, its
// components with few decimals or with all.
class Loads {
  public:
    explicit Loads(Problem& problem)
        : m_decimals(problem.chance.OneIn(2) ? DecimalsFor(kGreatestMagnitude * problem.scale)
                                             : kAllDecimals) {
        for (std::size_t k = problem.chance.Below(4); k > 0; --k)
            Add(KnownForce(problem.chance, AnyMagnitude(problem), TypedDirection(problem.chance)));
    }

    /// Adds the force that balances the loads and `unknown`, the sum of the forces with unknowns.
    void Balance(const Vector& unknown) {
        const Vector missing = -(m_sum + unknown);
        Add(KnownComponents(missing.x, missing.y, m_decimals));
    }
    void Add(const StatedForce& force) {
        m_forces.push_back(force);
        m_sum = m_sum + Vector{force.x.number, force.y.number};
    }

    const Vector& Total() const { return m_sum; }
    std::vector<StatedForce> With(const std::vector<StatedForce>& unknown) const {
        std::vector<StatedForce> all = m_forces;
        all.insert(all.end(), unknown.begin(), unknown.end());
        return all;
    }

  private:
    int m_decimals;
    std::vector<StatedForce> m_forces;
    Vector m_sum;
};

// What one unknown magnitude multiplies: the sum of its forces at 1.
struct Column {
    std::vector<StatedForce> forces;
    Vector per_unit;

    void Add(const StatedForce& force) {
        forces.push_back(force);
        per_unit = per_unit + Vector{force.x.number, force.y.number};
    }
};

Column ColumnOf(Chance& chance, const std::string& symbol) {
    Column column;
    for (std::size_t k = chance.OneIn(5) ? 2 : 1; k > 0; --k)
        column.Add(UnknownMagnitude(chance, symbol, TypedFactor(chance), TypedDirection(chance)));
    return column;
}

// The verdict on a problem that has so many solutions; `is_regular` where the solver must find them all.
// Forces of unusual size may be refused, as sums below 0.001 count as nothing.
Verdict Judged(const Problem& problem, const ParticleAnswers& answers, std::size_t solutions,
               bool is_regular) {
    is_regular = is_regular && problem.scale == 1;
    if (!answers.fault.empty())
        return Wrong(answers.fault);
    if (answers.solutions.empty())
        return is_regular && solutions > 0 ? Wrong("refused although regular: " + answers.refusal)
                                           : Refused(answers.refusal);
    // Equal solutions may be offered twice.
    const std::size_t offered =
        answers.solutions.size() == 2 && AreEqual(answers.solutions[0], answers.solutions[1])
            ? 1
            : answers.solutions.size();
    if (is_regular && offered != solutions)
        return Wrong("offers " + std::to_string(offered) + " solutions of " + std::to_string(solutions));
    return Right();
}

// Any solution of a problem that has none, or more than the solver could tell, is wrong.
Verdict MustBeRefused(const ParticleAnswers& answers) {
    if (answers.solutions.empty())
        return Refused(answers.refusal);
    return Wrong("solved although it has no single answer");
}

}  // namespace

Verdict PlayTwoMagnitudes(Problem& problem) {
    Chance& chance = problem.chance;
    const std::vector<std::string> symbols = Symbols(chance, 2);
    Column first, second;
    std::vector<StatedForce> forces;
    if (chance.OneIn(5)) {
        first.per_unit = {1, 0};
        second.per_unit = {0, 1};
        forces = {UnknownComponents(symbols[0], symbols[1])};
    } else {
        first = ColumnOf(chance, symbols[0]);
        second = ColumnOf(chance, symbols[1]);
        forces = first.forces;
        forces.insert(forces.end(), second.forces.begin(), second.forces.end());
    }
    Loads loads(problem);
    loads.Balance(chance.Sign() * AnyMagnitude(problem) * first.per_unit +
                  chance.Sign() * AnyMagnitude(problem) * second.per_unit);
    const double sine = std::abs(Cross(first.per_unit, second.per_unit)) /
                        std::max(first.per_unit.Length() * second.per_unit.Length(), 1e-9);
    const bool is_regular = sine > kNearlyParallel && first.per_unit.Length() > kNearlyParallel &&
                            second.per_unit.Length() > kNearlyParallel;
    return Judged(problem, SolveParticle(problem, loads.With(forces)), 1, is_regular);
}

Verdict PlayEquilibrant(Problem& problem) {
    Chance& chance = problem.chance;
    const StatedForce force =
        UnknownForce(Symbols(chance, 1)[0], TypedFactor(chance), AngleSymbols(chance, 1)[0]);
    Loads loads(problem);
    loads.Balance(Along(TypedDirection(chance), AnyMagnitude(problem)));
    return Judged(problem, SolveParticle(problem, loads.With({force})), 1, true);
}

namespace {

// A magnitude along `column`, forces of altogether `size` at an unknown angle, and the loads: what across the
// column the turning force must hold decides on its angle.
struct Turning {
    double sine;       // of the angle from the column to the force
    std::size_t held;  // solutions whose magnitude is above 0
    bool is_clear;     // none of them lies near a limit
};

Turning TurningOf(const Vector& column, double size, const Vector& load) {
    Turning turning{-Cross(column, load) / (column.Length() * size), 0, true};
    turning.is_clear = std::abs(turning.sine) < kClearlyTwo;
    if (std::abs(turning.sine) > 1)
        return turning;
    const double along = (column.x * load.x + column.y * load.y) / column.Length();
    for (const double sign : {1.0, -1.0}) {
        const double magnitude =
            -(along + sign * size * std::sqrt(1 - turning.sine * turning.sine)) / column.Length();
        if (magnitude > 0)
            ++turning.held;
        turning.is_clear = turning.is_clear && std::abs(magnitude) * column.Length() > kNoMagnitude * size;
    }
    return turning;
}

}  // namespace

Verdict PlayMagnitudeAndAngle(Problem& problem) {
    Chance& chance = problem.chance;
    const std::string angle = AngleSymbols(chance, 1)[0];
    const Column column = ColumnOf(chance, Symbols(chance, 1)[0]);
    std::vector<StatedForce> forces = column.forces;
    double size = 0;
    for (std::size_t k = chance.OneIn(6) ? 2 : 1; k > 0; --k) {
        forces.push_back(UnknownDirection(
            chance, chance.OneIn(10) && problem.scale == 1 ? 1 : AnyMagnitude(problem), angle));
        size += forces.back().x.number;
    }
    Loads loads(problem);
    loads.Balance(AnyMagnitude(problem) * column.per_unit + Along(chance.Between(-180.0, 180.0), size));
    const Turning turning = TurningOf(column.per_unit, size, loads.Total());
    const bool is_regular = turning.is_clear && column.per_unit.Length() > kNearlyParallel;
    return Judged(problem, SolveParticle(problem, loads.With(forces)), turning.held, is_regular);
}

Verdict PlayTwoAngles(Problem& problem) {
    Chance& chance = problem.chance;
    const std::vector<std::string> angles = AngleSymbols(chance, 2);
    const double magnitude = AnyMagnitude(problem);
    const StatedForce first = UnknownDirection(chance, magnitude, angles[0]);
    const StatedForce second = UnknownDirection(chance, magnitude * chance.Size(0.1, 10), angles[1]);
    Loads loads(problem);
    loads.Balance(Along(chance.Between(-180.0, 180.0), first.x.number) +
                  Along(chance.Between(-180.0, 180.0), second.x.number));
    // The triangle of the two forces and the load: the cosines of its angles at the load.
    const double load = loads.Total().Length(), a = first.x.number, b = second.x.number;
    const double at_first = (a * a + load * load - b * b) / (2 * a * load);
    const double at_second = (b * b + load * load - a * a) / (2 * b * load);
    const bool is_regular = load > kNoMagnitude * (a + b) && std::abs(at_first) < kClearlyTwo &&
                            std::abs(at_second) < kClearlyTwo;
    return Judged(problem, SolveParticle(problem, loads.With({first, second})), 2, is_regular);
}

Verdict PlayPulley(Problem& problem) {
    Chance& chance = problem.chance;
    const std::string rope = Symbols(chance, 1)[0], angle = AngleSymbols(chance, 1)[0];
    const double factor = TypedFactor(chance), direction = TypedDirection(chance);
    const std::vector<StatedForce> forces = {UnknownMagnitude(chance, rope, factor, direction),
                                             UnknownForce(rope, factor, angle)};
    Loads loads(problem);
    const double turned = direction + chance.Sign() * chance.Between(5.0, 175.0);
    loads.Balance(AnyMagnitude(problem) * factor * (Along(direction) + Along(turned)));
    // The load halves the angle between the ropes; a load straight up or down is refused.
    const Vector& load = loads.Total();
    const double cosine = -(load.x * CosDegrees(direction) + load.y * SinDegrees(direction)) / load.Length();
    const double sine = std::sqrt(std::max(1 - cosine * cosine, 0.0));
    const bool is_regular =
        std::abs(load.x) > 0.01 * load.Length() && cosine > 0 && std::max(sine, cosine) < kClearlyTwo;
    return Judged(problem, SolveParticle(problem, loads.With(forces)), 1, is_regular);
}

Verdict PlayNearTangent(Problem& problem) {
    Chance& chance = problem.chance;
    const double beside = 1 + (chance.OneIn(10) ? 0 : chance.Sign() * chance.Size(1e-9, 0.01));
    const double direction = TypedDirection(chance);
    std::vector<StatedForce> forces;
    Loads loads(problem);
    if (chance.OneIn(2)) {
        const Column column = ColumnOf(chance, Symbols(chance, 1)[0]);
        forces = column.forces;
        forces.push_back(UnknownDirection(chance, AnyMagnitude(problem), AngleSymbols(chance, 1)[0]));
        const double length = std::max(column.per_unit.Length(), 1e-9);
        const Vector across = {-column.per_unit.y / length, column.per_unit.x / length};
        loads.Balance(AnyMagnitude(problem) * column.per_unit + forces.back().x.number * beside * across);
    } else {
        const std::vector<std::string> angles = AngleSymbols(chance, 2);
        forces = {UnknownDirection(chance, AnyMagnitude(problem), angles[0]),
                  UnknownDirection(chance, AnyMagnitude(problem), angles[1])};
        const double together = forces[0].x.number + chance.Sign() * forces[1].x.number;
        loads.Balance(Along(direction, together * beside));
    }
    return Judged(problem, SolveParticle(problem, loads.With(forces)), 0, false);
}

Verdict PlayUnsolvableParticle(Problem& problem) {
    Chance& chance = problem.chance;
    const double direction = TypedDirection(chance);
    const std::vector<std::string> angles = AngleSymbols(chance, 2);
    std::vector<StatedForce> forces;
    Loads loads(problem);
    switch (chance.Below(3)) {
        case 0: {  // two ropes on one line, and a load across it
            for (const std::string& symbol : Symbols(chance, 2))
                forces.push_back(
                    UnknownMagnitude(chance, symbol, TypedFactor(chance),
                                     chance.OneIn(2) ? direction : std::remainder(direction + 180, 360)));
            loads.Balance(Along(direction + 90, AnyMagnitude(problem)));
            break;
        }
        case 1: {  // a force too weak to hold what lies across the other one
            const StatedForce weak = UnknownDirection(chance, AnyMagnitude(problem), angles[0]);
            forces = {UnknownMagnitude(chance, Symbols(chance, 1)[0], TypedFactor(chance), direction), weak};
            loads.Balance(Along(direction + 90, weak.x.number * chance.Between(1.01, 5.0)));
            break;
        }
        default: {  // two forces that cannot reach the load together
            forces = {UnknownDirection(chance, AnyMagnitude(problem), angles[0]),
                      UnknownDirection(chance, AnyMagnitude(problem), angles[1])};
            const double together = forces[0].x.number + forces[1].x.number;
            loads.Balance(Along(direction, together * chance.Between(1.01, 5.0)));
        }
    }
    return MustBeRefused(SolveParticle(problem, loads.With(forces)));
}

Verdict PlayTooManyUnknowns(Problem& problem) {
    Chance& chance = problem.chance;
    const std::vector<std::string> symbols = Symbols(chance, 3);
    const std::vector<std::string> angles = AngleSymbols(chance, 2);
    const auto rope = [&](std::size_t k) {
        return UnknownMagnitude(chance, symbols[k], TypedFactor(chance),
                                Rounded(chance.Between(1.0, 89.0), 1).value);
    };
    std::vector<StatedForce> forces;
    switch (chance.Below(5)) {
        case 0:
            forces = {rope(0), rope(1), rope(2)};
            break;
        case 1:
            forces = {rope(0), rope(1), UnknownDirection(chance, 20, angles[0])};
            break;
        case 2:
            forces = {rope(0), UnknownForce(symbols[1], TypedFactor(chance), angles[0])};
            break;
        case 3:
            forces = {UnknownForce(symbols[0], 1, angles[0]), UnknownForce(symbols[1], 1, angles[1])};
            break;
        default:
            forces = {UnknownForce(symbols[0], 1, angles[0]), UnknownDirection(chance, 20, angles[1])};
    }
    Loads loads(problem);
    loads.Balance(Along(chance.Between(-180.0, 180.0), AnyMagnitude(problem)));
    return MustBeRefused(SolveParticle(problem, loads.With(forces)));
}

Verdict PlayParticleOfAnySize(Problem& problem) {
    using Play = Verdict (*)(Problem&);
    constexpr Play kPlays[] = {PlayTwoMagnitudes, PlayEquilibrant, PlayMagnitudeAndAngle,
                               PlayTwoAngles,     PlayPulley,      PlayNearTangent};
    problem.scale = problem.chance.Size(kSmallestScale, kLargestScale);
    return problem.chance.Of(kPlays)(problem);
}

}  // namespace tavrelo::physics
