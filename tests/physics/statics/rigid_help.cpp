#include "statics/rigid_help.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "independence.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

constexpr double kLeastDistance = 0.3;
constexpr double kClearlyIndependent = 1e-4;
constexpr double kClearDeterminant = 1e-6;

double Distance(Components a, Components b) { return std::hypot(a.x - b.x, a.y - b.y); }

bool IsFree(const TypedStructure& structure, Components place) {
    return std::ranges::all_of(structure.Points(), [&](char point) {
        return Distance(structure.PlaceOf(point), place) > kLeastDistance;
    });
}

// What each unknown multiplies in the equations of the bodies, told by single values.
Columns ColumnsOf(const TypedStructure& structure, const std::vector<AskedBody>& bodies) {
    Values values;
    for (const std::string& name : structure.Unknowns(bodies))
        values.magnitudes[name] = 0;
    const std::vector<double> constant = structure.Rest(bodies, values);
    Columns columns;
    for (auto& [name, value] : values.magnitudes) {
        value = 1;
        std::vector<double> column = structure.Rest(bodies, values);
        for (std::size_t row = 0; row < column.size(); ++row)
            column[row] -= constant[row];
        columns.push_back(column);
        value = 0;
    }
    return columns;
}

}  // namespace

void AddPoints(Chance& chance, TypedStructure& structure, std::size_t count) {
    const double size = chance.Size(2, 20);
    for (std::size_t k = 0; k < count; ++k) {
        const std::string& points = structure.Points();
        const char from = points.empty() ? 'A' : AnyPoint(chance, points);
        const Components start = points.empty() ? Components{0, 0} : structure.PlaceOf(from);
        Components place = start;
        do {
            place = {start.x + (chance.OneIn(3) ? 0 : chance.Between(-size, size)),
                     start.y + (chance.OneIn(3) ? 0 : chance.Between(-size, size))};
        } while (!IsFree(structure, place) || Distance(place, start) < kLeastDistance);
        structure.AddPoint(place, from);
    }
}

char AnyPoint(Chance& chance, const std::string& points) { return points[chance.Below(points.size())]; }

double DirectionBeside(Chance& chance, double other) {
    while (true) {
        const double direction = TypedDirection(chance);
        if (std::abs(std::remainder(direction - other, 180)) > 5)
            return direction;
    }
}

double TypedDirectionBetween(const TypedStructure& structure, char from, char to) {
    const Components a = structure.PlaceOf(from), b = structure.PlaceOf(to);
    return Rounded(std::atan2(b.y - a.y, b.x - a.x) * 180 / std::numbers::pi, 2).value;
}

void AddLoads(Chance& chance, TypedStructure& structure, int body, const std::string& points) {
    for (std::size_t k = 1 + chance.Below(4); k > 0; --k) {
        const char point = AnyPoint(chance, points);
        StatedRow row = {body, point};
        if (!chance.OneIn(5))
            row.force = KnownForce(chance, structure.AnyLoad(), TypedDirection(chance));
        if (!row.force || chance.OneIn(6))
            row.couple = KnownCouple(chance.Sign() * structure.AnyLoad(), structure.Decimals());
        structure.Add(row);
    }
    if (points.size() > 1 && points.size() <= 6 && structure.IsOfUsualSize() && chance.OneIn(6)) {
        std::vector<double> values;
        for (std::size_t k = 0; k < points.size(); ++k)
            values.push_back(chance.Sign() * chance.Between(1.0, 50.0));
        structure.AddSeries(body, points, values, chance.OneIn(2));
    }
}

StatedRow Rope(Chance& chance, int body, char point, const std::string& symbol, double direction) {
    return {body, point, UnknownMagnitude(chance, symbol, TypedFactor(chance), direction)};
}

std::string CoupleSymbol(Chance& chance) {
    constexpr std::array kCouples = {"M", "M1", "Mo", "C", "m2", "par"};
    return chance.Of(kCouples);
}

Verdict JudgedStructure(const TypedStructure& structure, const StructureAnswers& answers, bool is_regular) {
    if (!answers.fault.empty())
        return Wrong(answers.fault);
    if (!answers.solutions.empty())
        return Right();
    return is_regular && structure.IsOfUsualSize() ? Wrong("refused although regular: " + answers.refusal)
                                                   : Refused(answers.refusal);
}

Verdict RefusedStructure(const StructureAnswers& answers) {
    if (answers.solutions.empty())
        return Refused(answers.refusal);
    return Wrong("solved although it has no single answer");
}

bool AreRegular(const TypedStructure& structure, const std::vector<AskedBody>& bodies) {
    const Columns columns = ColumnsOf(structure, bodies);
    return !columns.empty() && columns.size() == columns.front().size() &&
           Independence(columns) > kClearlyIndependent && DeterminantSize(columns) > kClearDeterminant;
}

}  // namespace tavrelo::physics
