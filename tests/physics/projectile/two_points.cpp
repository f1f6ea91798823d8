// A launch of unknown speed and angle: what two of its points state, solved as a pair of equations.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "motion/known_motion.h"
#include "motion/motion_sheet.h"
#include "projectile/projectile_kinds.h"
#include "projectile/projectile_sheet.h"
#include "projectile/spoken_numbers.h"
#include "text/utf8.h"

namespace tavrelo::physics {
namespace {

namespace projectile = mechanics::projectile;
using projectile::Special;

constexpr double kPartFoundAgain = 1e-4;

/// What a point states: A tan + B w = C with w = 1/(v0 cos)^2 or 1/(v0 cos), or a component alone.
enum class Shape { Squared, Plain, Horizontal, Vertical };
struct StatedRelation {
    Shape shape = Shape::Squared;
    double a = 0, b = 0, c = 0;

    /// Left side less right side for a launch.
    Sum For(double vx, double vy) const {
        switch (shape) {
            case Shape::Squared:
                return SumOf({a * vy / vx, b / (vx * vx), -c});
            case Shape::Plain:
                return SumOf({a * vy / vx, b / vx, -c});
            case Shape::Horizontal:
                return SumOf({vx, -c});
            case Shape::Vertical:
                break;
        }
        return SumOf({vy, -c});
    }
};

/// The last word of a text as a number, 1 when it is empty; a minus before it counts.
double SignedNumberAtEnd(std::string text) {
    text = text::ReplaceAll(text, ";- ", "-");
    text = text::ReplaceAll(text, "+ ", "+");
    while (text.ends_with(' '))
        text.pop_back();
    const std::string word = text.substr(text.find_last_of(' ') + 1);
    if (word.empty() || word == "+")
        return 1;
    return word == "-" || word == ";-" ? -1 : std::strtod(text::ReplaceAll(word, ";-", "-").c_str(), nullptr);
}

/// Reads a line of the report.
StatedRelation ReadRelation(const std::string& line) {
    const std::size_t tangent = line.find("tan ");
    const std::size_t equals = line.find(" = ");
    const double c = NumbersIn(line.substr(equals + 3)).front();
    if (tangent == std::string::npos)
        return {line.find(" cos ") < equals ? Shape::Horizontal : Shape::Vertical, 0, 0, c};
    StatedRelation relation;
    const std::size_t quotient = line.find("//(");
    relation.shape = line.find("cos¡2") == std::string::npos ? Shape::Plain : Shape::Squared;
    relation.a = SignedNumberAtEnd(line.substr(0, tangent));
    relation.b = SignedNumberAtEnd(line.substr(0, quotient));
    relation.c = NumbersIn(line.substr(line.rfind(" = "))).front();
    return relation;
}

/// The procedure for two shapes; the box holds the numbers of the first and of the second.
struct PairRow {
    Shape first;
    Shape second;
    Special special;
};
constexpr PairRow kPairs[] = {
    {Shape::Squared, Shape::Squared, Special::SquaredPair},
    {Shape::Plain, Shape::Plain, Special::PlainPair},
    {Shape::Squared, Shape::Plain, Special::MixedPair},
    {Shape::Squared, Shape::Horizontal, Special::WithHorizontal},
    {Shape::Squared, Shape::Vertical, Special::WithVertical},
};

/// The pair of data that states a shape.
DataPair DataOf(Shape shape, Chance& chance) {
    switch (shape) {
        case Shape::Squared:
            return chance.OneIn(2) ? DataPair::XY : DataPair::XAngle;
        case Shape::Plain:
            return DataPair::TimeAngle;
        case Shape::Horizontal:
            return DataPair::TimeX;
        case Shape::Vertical:
            break;
    }
    return DataPair::TimeY;
}

struct Velocity {
    double x, y;
};

/// "v!0 = 20" and ";q!0 = 30°", in one line or in two.
std::vector<Velocity> SolutionsIn(const std::vector<std::string>& lines) {
    std::vector<Velocity> solutions;
    std::optional<double> speed;
    for (const std::string& line : lines) {
        if (const auto number = NumberAfter(line, "v!0"))
            speed = number;
        for (const char* name : {";q!0", ";q"})
            if (const auto angle = NumberAfter(line, name); angle && speed) {
                solutions.push_back({*speed * CosDegrees(*angle), *speed * SinDegrees(*angle)});
                break;
            }
    }
    return solutions;
}

std::string CoefficientsOf(const StatedRelation& first, const StatedRelation& second) {
    const auto text = [](double number) { return Significant(number, 15).text; };
    std::string typed = text(first.a) + ", " + text(first.b) + ", " + text(first.c);
    if (second.shape == Shape::Squared || second.shape == Shape::Plain)
        typed += ", " + text(second.a) + ", " + text(second.b);
    return typed + ", " + text(second.c);
}

/// How independent two relations are at a launch: the determinant of their slopes beside its terms.
double RegularityAt(const StatedRelation& first, const StatedRelation& second, const KnownThrow& law) {
    const double h = 1e-6;
    const auto slope = [&](const StatedRelation& each, double along_x, double along_y) {
        return (each.For(law.vx + along_x, law.vy + along_y).Value() - each.For(law.vx, law.vy).Value()) / h;
    };
    const double x1 = slope(first, h, 0), y1 = slope(first, 0, h);
    const double x2 = slope(second, h, 0), y2 = slope(second, 0, h);
    const double size = std::hypot(x1, y1) * std::hypot(x2, y2);
    return size == 0 ? 0 : std::abs(x1 * y2 - x2 * y1) / size;
}

Verdict Judge(const ProjectileStep& step, const StatedRelation (&relations)[2], const KnownThrow& law) {
    const bool is_regular = RegularityAt(relations[0], relations[1], law) > 0.01 && std::abs(law.vy) > 0.1;
    if (const auto message = MessageOf(step))
        return is_regular ? Wrong("refused: " + *message) : Refused(*message);
    bool is_found = false;
    const double scale = law.ScaleOfSpeed(law.t0);
    for (const Velocity& found : SolutionsIn(ReportOf(step))) {
        for (const StatedRelation& relation : relations)
            if (const Sum sum = relation.For(found.x, found.y); !sum.Vanishes())
                return Wrong("vx = " + Digits(found.x) + ", vy = " + Digits(found.y) + " leaves " +
                             sum.Told());
        // Only the square of a component stands in some: then the opposite launch is the same solution.
        for (const double sign : {1.0, -1.0})
            is_found = is_found || (Agree(found.x, sign * law.vx, kPartFoundAgain, scale) &&
                                    Agree(found.y, sign * law.vy, kPartFoundAgain, scale));
    }
    return is_found || !is_regular ? Right() : Wrong("the launch is not found again");
}

}  // namespace

Verdict PlayTwoThrownPoints(Problem& problem) {
    Chance& chance = problem.chance;
    const TypedThrow launch = AnyThrow(chance, SpeedForm::Polar);
    const KnownThrow& law = launch.law;
    problem.Type(law.Told());
    if (std::abs(law.vx) < 0.5)
        return Right();  // it has no tangent
    const PairRow& row = chance.Of(kPairs);
    ProjectileSheet sheet(problem);
    sheet.TypeLaunch(1, launch, {false, false});
    if (const auto message = sheet.Plant())
        return Wrong("refused: " + *message);
    StatedRelation relations[2];
    double t = law.t0;
    for (int k = 0; k < 2; ++k) {
        t = Significant(t + 0.2 + std::abs(BookNumber(chance, 3)), 15).value;
        const TypedPoint point = TypePair(DataOf(k == 0 ? row.first : row.second, chance), law, t, false);
        sheet.TypePoint(1, k + 1, point);
        const ProjectileStep step = sheet.Click(projectile::Procedure::SubstituteInPolar, k + 1);
        if (const auto message = MessageOf(step))
            return Refused(*message);
        relations[k] = ReadRelation(ReportOf(step).back());
        if (const Sum sum = relations[k].For(law.vx, law.vy); !Holds(sum, law.ScaleOfPlace(t) * 1e3))
            return Wrong(ReportOf(step).back() + " leaves " + sum.Told());
    }
    return Judge(sheet.Run(row.special, CoefficientsOf(relations[0], relations[1])), relations, law);
}

}  // namespace tavrelo::physics
