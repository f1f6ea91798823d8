#include <array>
#include <cmath>
#include <numbers>

#include "equations.h"
#include "statics/rigid_help.h"
#include "statics/rigid_kinds.h"

namespace tavrelo::physics {
namespace {

constexpr int kBody = 1;
// Beside the largest sine the two solutions become one and the solver may refuse.
constexpr double kClearlyTwo = 0.999;
constexpr double kNothing = 1e-3;
constexpr int kAllDecimals = 15;
constexpr double kSmallestScale = 1e-6;
constexpr double kLargestScale = 1e6;

// x, y and moment.
using Triple = std::array<double, 3>;

Triple Cross(const Triple& a, const Triple& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double Dot(const Triple& a, const Triple& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
double Length(const Triple& a) { return std::sqrt(Dot(a, a)); }

// A body with one unknown angle: its sums as functions of the unknowns, told by single values.
class TurnedBody {
  public:
    TurnedBody(const TypedStructure& structure, const AskedBody& asked, std::string angle, Values values)
        : m_structure(structure), m_asked{asked}, m_angle(std::move(angle)), m_values(std::move(values)) {
        for (auto& [name, value] : m_values.magnitudes)
            value = 0;
        m_values.angles[m_angle] = 0;
    }

    Triple Sums(const std::map<std::string, double>& magnitudes, double angle) const {
        Values values = m_values;
        for (const auto& [name, value] : magnitudes)
            values.magnitudes[name] = value;
        values.angles[m_angle] = angle;
        const std::vector<double> rest = m_structure.Rest(m_asked, values);
        return {rest[0], rest[1], rest[2]};
    }
    // What the magnitude multiplies at that angle.
    Triple ColumnAt(const std::string& name, double angle) const {
        return Minus(Sums({{name, 1}}, angle), Sums({}, angle));
    }
    static Triple Minus(const Triple& a, const Triple& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }

  private:
    const TypedStructure& m_structure;
    std::vector<AskedBody> m_asked;
    std::string m_angle;
    Values m_values;
};

// f(angle) = p cos + q sin + r, told by three values of f.
struct AngleSum {
    double p, q, r;

    template <class Function>
    static AngleSum Of(const Function& f) {
        const double at_0 = f(0), at_180 = f(180), at_90 = f(90);
        const double r = (at_0 + at_180) / 2;
        return {at_0 - r, at_90 - r, r};
    }
    double Amplitude() const { return std::hypot(p, q); }
    // -r as a part of the amplitude: a cosine of the angle from the direction of (p, q).
    double Cosine() const { return -r / Amplitude(); }
    std::array<double, 2> Roots() const {
        const double middle = std::atan2(q, p), half = std::acos(Cosine());
        return {(middle - half) * 180 / std::numbers::pi, (middle + half) * 180 / std::numbers::pi};
    }
};

// Typed last: a force and a couple that bring the body into equilibrium for the known values.
void AddBalance(Chance& chance, TypedStructure& structure, const AskedBody& asked, const Values& values) {
    const std::vector<double> before = structure.Rest({asked}, values);
    const int decimals = chance.OneIn(2) ? structure.Decimals() : kAllDecimals;
    const char point = AnyPoint(chance, structure.Points());
    structure.Add({kBody, point, KnownComponents(-before[0], -before[1], decimals)});
    const double couple = -structure.Rest({asked}, values)[2];
    StatedRow row = {kBody, point, {}, KnownCouple(couple, decimals)};
    if (row.couple->value.number != 0)
        structure.Add(row);
}

std::string NameOfFirst(const StatedRow& row) {
    if (row.couple && !row.couple->value.magnitude.empty())
        return row.couple->value.magnitude;
    return row.force->x.magnitude.empty() ? row.force->y.magnitude : row.force->x.magnitude;
}

// Two unknowns beside the angle, with known values of them.
std::array<std::string, 2> AddTwoUnknowns(Chance& chance, TypedStructure& structure, Values& values) {
    const std::vector<std::string> symbols = Symbols(chance, 2);
    const std::string& points = structure.Points();
    std::array<std::string, 2> names = {NameOf(symbols[0]), NameOf(symbols[1])};
    if (chance.OneIn(2)) {
        structure.Add({kBody, AnyPoint(chance, points), UnknownComponents(symbols[0], symbols[1])});
    } else {
        const double direction = TypedDirection(chance);
        structure.Add(Rope(chance, kBody, AnyPoint(chance, points), symbols[0], direction));
        if (chance.OneIn(4)) {
            structure.Add({kBody, AnyPoint(chance, points), {}, UnknownCouple(chance, "M")});
            names[1] = NameOfFirst(structure.Rows().back());
        } else {
            structure.Add(Rope(chance, kBody, AnyPoint(chance, points), symbols[1], TypedDirection(chance)));
        }
    }
    for (const std::string& name : names)
        values.magnitudes[name] = chance.Sign() * structure.AnyLoad();
    return names;
}

TypedStructure BodyOf(Problem& problem) {
    TypedStructure structure(problem);
    AddPoints(problem.chance, structure, 1 + problem.chance.Below(4));
    return structure;
}

// The sum without the two others, and whether it is a clear one.
struct Eliminated {
    AngleSum sum;
    bool is_clear;
};

Eliminated WithoutOthers(const TurnedBody& body, const std::array<std::string, 2>& names) {
    const Triple first = body.ColumnAt(names[0], 0), second = body.ColumnAt(names[1], 0);
    const Triple weights = Cross(first, second);
    const AngleSum sum = AngleSum::Of([&](double angle) { return Dot(weights, body.Sums({}, angle)); });
    const Triple turned = TurnedBody::Minus(body.Sums({}, 0), body.Sums({}, 180));
    const bool is_independent = Length(weights) > kNothing * Length(first) * Length(second);
    return {sum, is_independent && sum.Amplitude() > kNothing * Length(weights) * Length(turned)};
}

Verdict JudgedCount(TypedStructure& structure, const AskedBody& asked, std::size_t solutions,
                    bool is_regular) {
    const StructureAnswers answers = structure.Solve({asked});
    is_regular = is_regular && structure.IsOfUsualSize();
    const Verdict verdict = JudgedStructure(structure, answers, is_regular && solutions > 0);
    if (verdict.kind != Verdict::Kind::Right || !is_regular)
        return verdict;
    const bool are_equal =
        answers.solutions.size() == 2 && AreEqual(answers.solutions[0], answers.solutions[1]);
    const std::size_t offered = are_equal ? 1 : answers.solutions.size();
    if (offered != solutions)
        return Wrong("offers " + std::to_string(offered) + " solutions of " + std::to_string(solutions));
    return verdict;
}

}  // namespace

Verdict PlayTurningForce(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = BodyOf(problem);
    const std::string angle = AngleSymbols(chance, 1)[0];
    Values values;
    values.angles[NameOf(angle)] = chance.Between(-180.0, 180.0);
    structure.Add(
        {kBody, AnyPoint(chance, structure.Points()), UnknownDirection(chance, structure.AnyLoad(), angle)});
    const auto names = AddTwoUnknowns(chance, structure, values);
    const AskedBody asked = {kBody, AnyPoint(chance, structure.Points())};
    AddLoads(chance, structure, kBody, structure.Points());
    AddBalance(chance, structure, asked, values);
    const auto [sum, is_clear] = WithoutOthers(TurnedBody(structure, asked, NameOf(angle), values), names);
    return JudgedCount(structure, asked, 2, is_clear && std::abs(sum.Cosine()) < kClearlyTwo);
}

Verdict PlayWeakTurningForce(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = BodyOf(problem);
    const std::string angle = AngleSymbols(chance, 1)[0];
    Values values;
    values.angles[NameOf(angle)] = 0;
    structure.Add(
        {kBody, AnyPoint(chance, structure.Points()), UnknownDirection(chance, structure.AnyLoad(), angle)});
    const auto names = AddTwoUnknowns(chance, structure, values);
    const AskedBody asked = {kBody, AnyPoint(chance, structure.Points())};
    AddLoads(chance, structure, kBody, structure.Points());
    AddBalance(chance, structure, asked, values);
    const TurnedBody body(structure, asked, NameOf(angle), values);
    const auto [sum, is_clear] = WithoutOthers(body, names);
    const Triple weights = Cross(body.ColumnAt(names[0], 0), body.ColumnAt(names[1], 0));
    // A couple moves the sum beside its limit, or far past it.
    if (is_clear && std::abs(weights[2]) > kNothing * Length(weights)) {
        const bool is_far = chance.OneIn(2);
        const double part = is_far ? chance.Between(1.01, 4.0) : 1 + chance.Sign() * chance.Size(1e-8, 0.01);
        const double couple = (part * sum.Amplitude() - sum.r) / weights[2];
        structure.Add({kBody, asked.reference, {}, KnownCouple(couple, kAllDecimals)});
        const auto [moved, still_clear] = WithoutOthers(body, names);
        if (still_clear && std::abs(moved.Cosine()) > 1.005)
            return RefusedStructure(structure.Solve({asked}));
    }
    return JudgedStructure(structure, structure.Solve({asked}), false);
}

Verdict PlayFreeForce(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = BodyOf(problem);
    const std::string angle = AngleSymbols(chance, 1)[0];
    const std::vector<std::string> symbols = Symbols(chance, 2);
    structure.Add(
        {kBody, AnyPoint(chance, structure.Points()), UnknownForce(symbols[0], TypedFactor(chance), angle)});
    Values values;
    values.magnitudes[NameOf(symbols[0])] = 0;
    if (chance.OneIn(3)) {
        structure.Add({kBody, AnyPoint(chance, structure.Points()), {}, UnknownCouple(chance, "M")});
    } else {
        structure.Add(
            Rope(chance, kBody, AnyPoint(chance, structure.Points()), symbols[1], TypedDirection(chance)));
    }
    const std::string other = NameOfFirst(structure.Rows().back());
    values.magnitudes[other] = 0;
    AddLoads(chance, structure, kBody, structure.Points());
    const AskedBody asked = {kBody, AnyPoint(chance, structure.Points())};
    const TurnedBody body(structure, asked, NameOf(angle), values);
    const Triple level = body.ColumnAt(NameOf(symbols[0]), 0),
                 upright = body.ColumnAt(NameOf(symbols[0]), 90);
    const Triple third = body.ColumnAt(other, 0);
    const double determinant = std::abs(Dot(third, Cross(level, upright)));
    const bool is_regular =
        determinant > kNothing * Length(third) * Length(level) * Length(upright) && determinant > 1e-6;
    return JudgedCount(structure, asked, 1, is_regular);
}

namespace {

// How many angles keep the body with a rope that pulls, and whether none of them lies near a limit.
struct Pulls {
    std::size_t count = 0;
    bool are_clear = true;
};

Pulls PullsOf(const TurnedBody& body, const std::string& rope, const std::string& other) {
    const Triple side = body.ColumnAt(other, 0), load = body.Sums({}, 0);
    const Triple weights = Cross(load, side);
    const AngleSum sum = AngleSum::Of([&](double at) { return Dot(weights, body.ColumnAt(rope, at)); });
    const Triple turned = TurnedBody::Minus(body.ColumnAt(rope, 0), body.ColumnAt(rope, 180));
    if (Length(weights) < kNothing * Length(load) * Length(side) ||
        sum.Amplitude() < kNothing * Length(weights) * Length(turned) || std::abs(sum.Cosine()) > kClearlyTwo)
        return {0, false};
    Pulls pulls;
    for (const double root : sum.Roots()) {
        // The rope's column, the other one and the load lie in one plane: two of them make the third.
        const Triple column = body.ColumnAt(rope, root);
        const Triple across = Cross(column, side);
        const double size = Length(across);
        const double pull = -Dot(Cross(load, side), across) / (size * size);
        pulls.count += pull > 0 ? 1 : 0;
        pulls.are_clear = pulls.are_clear && Length(column) > kNothing * Length(turned) &&
                          size > kNothing * Length(column) * Length(side) && std::abs(pull) > kNothing;
    }
    return pulls;
}

}  // namespace

Verdict PlayBodyOnARope(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = BodyOf(problem);
    const std::string angle = AngleSymbols(chance, 1)[0];
    const std::vector<std::string> symbols = Symbols(chance, 2);
    const std::string rope = NameOf(symbols[0]), other = NameOf(symbols[1]);
    const std::string& points = structure.Points();
    structure.Add({kBody, AnyPoint(chance, points), UnknownForce(symbols[0], TypedFactor(chance), angle)});
    structure.Add(Rope(chance, kBody, AnyPoint(chance, points), symbols[0], TypedDirection(chance)));
    structure.Add(Rope(chance, kBody, AnyPoint(chance, points), symbols[1], TypedDirection(chance)));
    Values values;
    values.angles[NameOf(angle)] = chance.Between(-180.0, 180.0);
    values.magnitudes[rope] = structure.AnyLoad();
    values.magnitudes[other] = chance.Sign() * structure.AnyLoad();
    AddLoads(chance, structure, kBody, points);
    const AskedBody asked = {kBody, AnyPoint(chance, points)};
    AddBalance(chance, structure, asked, values);
    const TurnedBody body(structure, asked, NameOf(angle), values);
    const auto [pulling, is_clear] = PullsOf(body, rope, other);
    return JudgedCount(structure, asked, pulling, is_clear);
}

Verdict PlayBodyOfAnySize(Problem& problem) {
    using Play = Verdict (*)(Problem&);
    constexpr Play kPlays[] = {PlayHeldBody,     PlayStructure, PlayTrussByJoints, PlayTrussBySection,
                               PlayTurningForce, PlayFreeForce, PlayBodyOnARope,   PlayWeakTurningForce};
    problem.scale = problem.chance.Size(kSmallestScale, kLargestScale);
    return problem.chance.Of(kPlays)(problem);
}

}  // namespace tavrelo::physics
