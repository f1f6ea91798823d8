// Problems built backwards from a known answer: the loads are what the answer leaves over, so that the true
// values are known without the solver. Problems near the limits of the trigonometric cases are left out (see
// each kind).

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>
#include <random>

#include "../forces/force_lists.h"
#include "mechanics/particle/particle_solver.h"
#include "numeric/angles.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::particle {
namespace {

constexpr int kDecimals = 3;
constexpr int kProblems = 300;
constexpr double kTolerance = 1e-6;
constexpr double kSumTolerance = 1e-8;

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

// The difference of two directions, from 0 to 180.
double AngleBetween(double a, double b) { return std::abs(std::remainder(a - b, 360)); }

struct KnownForce {
    double magnitude;
    double direction;
};

// A problem: the first two forces with the texts that hide what is to be found, and the load that balances
// them.
struct Problem {
    KnownForce first, second;
    std::string first_text, second_text;
};

std::string Number(double value) { return text::NumberToText(value); }

std::vector<notation::Force> ForcesOf(const Problem& problem) {
    const double x = problem.first.magnitude * std::cos(Radians(problem.first.direction)) +
                     problem.second.magnitude * std::cos(Radians(problem.second.direction));
    const double y = problem.first.magnitude * std::sin(Radians(problem.first.direction)) +
                     problem.second.magnitude * std::sin(Radians(problem.second.direction));
    const std::vector<std::string> texts = {problem.first_text, problem.second_text,
                                            Number(-x) + "," + Number(-y)};
    return forces::Forces(texts);
}

bool Holds(const Solution& solution, const KnownForce& force, std::size_t row) {
    const notation::Force& found = solution.forces[row];
    return found.magnitude && found.direction &&
           std::abs(*found.magnitude - force.magnitude) < kTolerance * force.magnitude &&
           AngleBetween(*found.direction, force.direction) < kTolerance * 100;
}

void ExpectResidualsVanish(const Solution& solution) {
    double x = 0, y = 0;
    for (const notation::Force& force : solution.forces) {
        ASSERT_TRUE(force.HasComponents());
        x += *force.x.number;
        y += *force.y.number;
    }
    EXPECT_NEAR(x, 0, kSumTolerance);
    EXPECT_NEAR(y, 0, kSumTolerance);
}

std::vector<Solution> SolutionsOf(const Equilibrium& outcome) {
    if (const auto* choice = std::get_if<Choice>(&outcome))
        return {choice->solutions[0], choice->solutions[1]};
    if (const auto* solution = std::get_if<Solution>(&outcome))
        return {*solution};
    return {};
}

// One of the offered solutions is the answer from which the problem was built, and all of them are in
// equilibrium.
void ExpectAnswerFound(const Problem& problem) {
    const Equilibrium outcome = SolveEquilibrium(ForcesOf(problem), kDecimals);
    const std::vector<Solution> solutions = SolutionsOf(outcome);
    bool found = false;
    for (const Solution& solution : solutions) {
        ExpectResidualsVanish(solution);
        found = found || (Holds(solution, problem.first, 0) && Holds(solution, problem.second, 1));
    }
    EXPECT_TRUE(found) << problem.first_text << "  " << problem.second_text << "  built from "
                       << problem.first.magnitude << " at " << problem.first.direction << ", "
                       << problem.second.magnitude << " at " << problem.second.direction
                       << (std::holds_alternative<text::Refusal>(outcome)
                               ? std::get<text::Refusal>(outcome).text
                               : "");
}

class Random {
  public:
    KnownForce Force() { return {Between(1, 100), Between(-180, 180)}; }
    double Between(double low, double high) { return std::uniform_real_distribution(low, high)(m_engine); }

  private:
    std::mt19937 m_engine{20240229};
};

// What each kind of problem hides of its two forces; nothing where the random data lie at a limit of the
// kind.
using Maker = std::optional<Problem> (*)(const KnownForce&, const KnownForce&);

std::optional<Problem> TwoMagnitudes(const KnownForce& p, const KnownForce& q) {
    if (std::abs(std::sin(Radians(p.direction - q.direction))) < 0.05)  // nearly parallel: no determinant
        return {};
    return Problem{p, q, "P<" + Number(p.direction), "Q<" + Number(q.direction)};
}

std::optional<Problem> MagnitudeAndAngle(const KnownForce& p, const KnownForce& q) {
    if (std::abs(std::cos(Radians(p.direction - q.direction))) < 0.1)  // tangent at a right angle
        return {};
    return Problem{p, q, "P<" + Number(p.direction), Number(q.magnitude) + "<b"};
}

std::optional<Problem> AngleAndMagnitude(const KnownForce& p, const KnownForce& q) {
    if (std::abs(std::cos(Radians(p.direction - q.direction))) < 0.1)
        return {};
    return Problem{p, q, Number(p.magnitude) + "<a", "Q12<" + Number(q.direction)};
}

std::optional<Problem> HorizontalAndAngle(const KnownForce& p, const KnownForce& q) {
    if (std::abs(std::cos(Radians(q.direction))) < 0.1)
        return {};
    return Problem{{p.magnitude, 180}, q, "h-P", Number(q.magnitude) + "<b"};
}

std::optional<Problem> AngleAndVertical(const KnownForce& p, const KnownForce& q) {
    if (std::abs(std::sin(Radians(p.direction))) < 0.1)
        return {};
    return Problem{p, {q.magnitude, -90}, Number(p.magnitude) + "<a", "v-Q"};
}

std::optional<Problem> TwoAngles(const KnownForce& p, const KnownForce& q) {
    const double dx =
        p.magnitude * std::cos(Radians(p.direction)) + q.magnitude * std::cos(Radians(q.direction));
    const double dy =
        p.magnitude * std::sin(Radians(p.direction)) + q.magnitude * std::sin(Radians(q.direction));
    const double sine = p.magnitude * std::sin(Radians(p.direction - q.direction)) / std::hypot(dx, dy);
    if (std::abs(sine) < 0.05)  // the second force nearly along the load: tangent
        return {};
    return Problem{p, q, Number(p.magnitude) + "<a", Number(q.magnitude) + "<b"};
}

std::optional<Problem> RopeOverAPulley(const KnownForce& p, const KnownForce& q) {
    const double load_x = std::cos(Radians(p.direction)) + std::cos(Radians(q.direction));
    if (std::abs(std::sin(Radians(p.direction - q.direction))) < 0.1 || std::abs(load_x) < 0.1)
        return {};
    return Problem{p, {p.magnitude, q.direction}, "F<" + Number(p.direction), "F<b"};
}

struct Kind {
    const char* name;
    Maker make;
};
constexpr Kind kKinds[] = {
    {"two magnitudes", TwoMagnitudes},          {"magnitude and angle", MagnitudeAndAngle},
    {"angle and magnitude", AngleAndMagnitude}, {"horizontal and angle", HorizontalAndAngle},
    {"angle and vertical", AngleAndVertical},   {"two angles", TwoAngles},
    {"rope over a pulley", RopeOverAPulley},
};

TEST(ParticlePhysics, EveryKindFindsTheAnswerItsProblemWasBuiltFrom) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.name);
        Random random;
        int made = 0;
        while (made < kProblems)
            if (const auto problem = kind.make(random.Force(), random.Force())) {
                ExpectAnswerFound(*problem);
                ++made;
            }
    }
}

TEST(ParticlePhysics, TheEquilibrantIsTheOppositeOfTheResultant) {
    Random random;
    for (int i = 0; i < kProblems; ++i) {
        const KnownForce p = random.Force(), q = random.Force();
        const double x =
            p.magnitude * std::cos(Radians(p.direction)) + q.magnitude * std::cos(Radians(q.direction));
        const double y =
            p.magnitude * std::sin(Radians(p.direction)) + q.magnitude * std::sin(Radians(q.direction));
        const std::vector<std::string> texts = {"R<c", Number(p.magnitude) + "<" + Number(p.direction),
                                                Number(q.magnitude) + "<" + Number(q.direction)};
        const auto outcome = SolveEquilibrium(forces::Forces(texts), kDecimals);
        const Solution& solution = std::get<Solution>(outcome);
        ExpectResidualsVanish(solution);
        EXPECT_NEAR(solution.forces[0].magnitude.value_or(0), std::hypot(x, y), kTolerance);
        EXPECT_NEAR(AngleBetween(solution.forces[0].direction.value_or(0), std::atan2(-y, -x) / Radians(1)),
                    0, 1e-4);
    }
}

// The same problem with both directions turned.
KnownForce Turned(const KnownForce& force, double angle) {
    return {force.magnitude, std::remainder(force.direction + angle, 360)};
}

TEST(ParticlePhysics, TurningAllForcesTurnsTheSolution) {
    for (const Kind& kind : kKinds) {
        if (kind.make == HorizontalAndAngle || kind.make == AngleAndVertical)
            continue;  // their texts fix the direction
        SCOPED_TRACE(kind.name);
        Random random;
        int made = 0;
        while (made < kProblems / 3) {
            const KnownForce p = random.Force(), q = random.Force();
            const double angle = random.Between(-180, 180);
            const auto problem = kind.make(p, q);
            const auto turned = kind.make(Turned(p, angle), Turned(q, angle));
            if (!problem || !turned)
                continue;
            ++made;
            ExpectAnswerFound(*turned);
            const auto before = SolutionsOf(SolveEquilibrium(ForcesOf(*problem), kDecimals));
            const auto after = SolutionsOf(SolveEquilibrium(ForcesOf(*turned), kDecimals));
            EXPECT_EQ(before.size(), after.size()) << problem->first_text << ' ' << problem->second_text;
        }
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::particle
