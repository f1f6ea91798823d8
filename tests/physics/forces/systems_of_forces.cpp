#include <cmath>
#include <vector>

#include "equations.h"
#include "forces/force_kinds.h"
#include "mechanics/forces/resultants.h"
#include "numeric/formulas.h"
#include "numeric/ode.h"
#include "statics/stated_force.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

namespace forces = mechanics::forces;
using forces::ResultantKind;
using numeric::Point;

constexpr double kRounding = 1e-9;
constexpr double kLinePart = 1e-6;
// What the steps of a load's integral leave of it.
constexpr double kStepsPart = 1e-3;

// What the forces are to amount to.
struct Wanted {
    double x, y, moment;
    ResultantKind kind;
};

Wanted AnyWanted(Chance& chance) {
    const double couple = Rounded(chance.Sign() * chance.Between(1.0, 99.0), 1).value;
    switch (chance.Below(4)) {
        case 0:
            return {0, 0, 0, ResultantKind::Null};
        case 1:
            return {0, 0, couple, ResultantKind::Couple};
        default:
            return {chance.OneIn(4) ? 0 : chance.Between(-90.0, 90.0),
                    chance.Sign() * chance.Between(1.0, 90.0), couple, ResultantKind::Force};
    }
}

// A force at a point as it was typed: by the program's reader, and by its numbers.
struct TypedForce {
    forces::PlacedForce read;
    Point at;
    double x, y;
};

TypedForce TypedAt(Problem& problem, Point at, double x, double y) {
    const StatedForce place = KnownComponents(at.x, at.y, 2);
    const StatedForce force = KnownComponents(x, y, 3);
    return {{std::get<forces::PlaneVector>(forces::ReadVector(problem.Type(place.text))),
             std::get<forces::PlaneVector>(forces::ReadVector(problem.Type(force.text)))},
            {place.x.number, place.y.number},
            force.x.number,
            force.y.number};
}

// Force and moment of what was typed.
struct Total {
    double x = 0, y = 0, moment = 0, size = 0;

    void Add(const TypedForce& force) {
        x += force.x;
        y += force.y;
        moment += force.at.x * force.y - force.at.y * force.x;
        size += std::hypot(force.x, force.y) * (1 + std::hypot(force.at.x, force.at.y));
    }
};

}  // namespace

namespace {

double MomentAbout(const Total& total, Point point) {
    return total.moment - (point.x * total.y - point.y * total.x);
}

std::string FaultOfSums(const forces::PlaneResultant& found, const Total& total) {
    if (Agree(found.force.x, total.x, kRounding, total.size) &&
        Agree(found.force.y, total.y, kRounding, total.size) &&
        Agree(found.moment, total.moment, kRounding, total.size))
        return "";
    return "sums " + Digits(found.force.x) + ", " + Digits(found.force.y) + ", " + Digits(found.moment);
}

// On its line the resultant alone does what all forces do.
std::string FaultOfLine(const forces::PlaneResultant& found, const Total& total) {
    std::vector<Point> on_line;
    if (found.line != forces::ActionLine::Horizontal)
        on_line.push_back({found.x_intercept, 0});
    if (found.line != forces::ActionLine::Vertical)
        on_line.push_back({0, found.y_intercept});
    for (const Point& point : on_line)
        if (std::abs(MomentAbout(total, point)) > kLinePart * total.size)
            return "on its line the moment is " + Digits(MomentAbout(total, point));
    return "";
}

}  // namespace

Verdict PlayPlaneForces(Problem& problem) {
    Chance& chance = problem.chance;
    const auto place = [&] { return Point{chance.Between(-9.0, 9.0), chance.Between(-9.0, 9.0)}; };
    std::vector<forces::PlacedForce> list;
    Total total;
    const auto add = [&](double x, double y) {
        const TypedForce force = TypedAt(problem, place(), x, y);
        list.push_back(force.read);
        total.Add(force);
    };
    for (std::size_t k = 1 + chance.Below(5); k > 0; --k)
        add(chance.Between(-90.0, 90.0), chance.Between(-90.0, 90.0));
    const Wanted wanted = AnyWanted(chance);
    add(wanted.x - total.x, wanted.y - total.y);
    if (wanted.kind != ResultantKind::Force && std::hypot(total.x, total.y) > kRounding)
        return Right();  // the last force would have been nothing, which cannot be typed
    const Point any = place();
    if (!Agree(forces::VectorListMoments(list, any), MomentAbout(total, any), kRounding, total.size))
        return Wrong("the sum of moments is " + Digits(forces::VectorListMoments(list, any)));
    const Typed couple = Rounded(wanted.moment - total.moment, 9);
    problem.Type(couple.text);
    total.moment += couple.value;
    const forces::PlaneResultant found = forces::PlaneForces(list, std::vector{couple.value});
    if (found.kind != wanted.kind)
        return Wrong("the kind of the resultant is another one");
    if (!Agree(forces::MomentAt(found, any), MomentAbout(total, any), kRounding, total.size))
        return Wrong("the moment at another point is " + Digits(forces::MomentAt(found, any)));
    std::string fault = FaultOfSums(found, total);
    if (fault.empty() && found.kind == ResultantKind::Force)
        fault = FaultOfLine(found, total);
    return fault.empty() ? Right() : Wrong(fault);
}

Verdict PlayParallelForces(Problem& problem) {
    Chance& chance = problem.chance;
    std::vector<forces::LineForce> line;
    std::vector<forces::VerticalForce> space;
    double force = 0, about_y = 0, about_x = 0, size = 0;
    const auto add = [&](double x, double y, double f) {
        const double tx = Rounded(x, 2).value, ty = Rounded(y, 2).value, tf = Rounded(f, 2).value;
        problem.Type(Digits(tx) + " " + Digits(ty) + " " + Digits(tf));
        line.push_back({tx, tf});
        space.push_back({{tx, ty}, tf});
        force += tf;
        about_y += tx * tf;
        about_x += ty * tf;
        size += std::abs(tf) * (1 + std::abs(tx) + std::abs(ty));
    };
    for (std::size_t k = 1 + chance.Below(6); k > 0; --k)
        add(chance.Between(-9.0, 9.0), chance.Between(-9.0, 9.0), chance.Sign() * chance.Between(1.0, 90.0));
    if (chance.OneIn(3))  // a couple
        add(chance.Between(-9.0, 9.0), chance.Between(-9.0, 9.0), -force);
    const forces::LineResultant on_line = forces::ParallelLine(line);
    const forces::SpaceResultant in_space = forces::ParallelSpace(space);
    if (!Agree(on_line.force, force, kRounding, size) || !Agree(on_line.moment, about_y, kRounding, size) ||
        !Agree(in_space.force, force, kRounding, size) ||
        !Agree(in_space.moment_x, about_x, kRounding, size) ||
        !Agree(in_space.moment_y, -about_y, kRounding, size))
        return Wrong("the sums are others");
    const bool has_force = std::abs(force) > 1e-3;
    if ((on_line.kind == ResultantKind::Force) != has_force ||
        (in_space.kind == ResultantKind::Force) != has_force)
        return Wrong("the kind of the resultant is another one");
    if (has_force && (std::abs(on_line.x * force - about_y) > kRounding * size ||
                      std::abs(in_space.position.x * force - about_y) > kRounding * size ||
                      std::abs(in_space.position.y * force - about_x) > kRounding * size))
        return Wrong("the resultant stands at another place");
    const double x = chance.Between(-9.0, 9.0), y = chance.Between(-9.0, 9.0);
    const Point left = forces::MomentAt(in_space, {x, y});
    if (!Agree(forces::MomentAt(on_line, x), about_y - x * force, kRounding, size) ||
        !Agree(left.x, about_x - y * force, kRounding, size) ||
        !Agree(left.y, x * force - about_y, kRounding, size))
        return Wrong("the moment at another point is another one");
    return Right();
}

Verdict PlayDistributedLoad(Problem& problem) {
    Chance& chance = problem.chance;
    const double first = Rounded(chance.Between(0.0, 4.0), 1).value;
    const double span = Rounded(chance.Between(0.5, 8.0), 1).value, last = first + span;
    const Typed height = Rounded(chance.Sign() * chance.Between(1.0, 90.0), 1);
    const int power = chance.Between(0, 3);
    // height times the n-th power of the way from one end: its whole is at (n + 1)/(n + 2) of the span.
    const bool rises = chance.OneIn(2);
    const std::string way = rises ? "(x - " + Digits(first) + ")" : "(" + Digits(last) + " - x)";
    const std::string text = height.text + "*" + way + "^" + std::to_string(power);
    problem.Type(text + " from " + Digits(first) + " to " + Digits(last));
    ReadFormula load(text), moment("x*(" + text + ")");
    const bool is_backward = chance.OneIn(5);
    const auto found = forces::DistributedLoad([&](std::span<const double> at) { return load.At(at[0]); },
                                               [&](std::span<const double> at) { return moment.At(at[0]); },
                                               is_backward ? last : first, is_backward ? first : last);
    if (!found)
        return Refused(numeric::kTooManySteps);
    const double force = height.value * std::pow(span, power + 1) / (power + 1);
    const double part = (power + 1.0) / (power + 2);
    const double at = rises ? first + part * span : last - part * span;
    if (found->kind != ResultantKind::Force || !Agree(found->force, force, kStepsPart) ||
        !Agree(found->moment, force * at, kStepsPart, std::abs(force) * last) ||
        !Agree(found->x, at, kStepsPart, last))
        return Wrong("R = " + Digits(found->force) + " at " + Digits(found->x) + ", not " + Digits(force) +
                     " at " + Digits(at));
    return Right();
}

}  // namespace tavrelo::physics
