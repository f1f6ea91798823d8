#include "mechanics/particle/coefficient_tables.h"

#include <array>
#include <span>

#include "text/symbols.h"

namespace tavrelo::mechanics::particle {
namespace {

using notation::UnknownTerm;
using text::kLongestSymbol;

// An unknown of one of the sums, by its place.
enum class Place { None, X1, X2, Y1, Y2 };

// What decides in which row a pair of sums falls.
struct Shape {
    int nx, ny;
    std::size_t x1, x2, y1;  // lengths
    bool y1_is_x1, y1_is_x2, y2_is_x1, y2_is_x2;
};

Shape ShapeOf(const forces::ForceSums& sums) {
    const UnknownTerm& x1 = sums.x.first.unknown;
    const UnknownTerm& x2 = sums.x.second.unknown;
    const UnknownTerm& y1 = sums.y.first.unknown;
    const UnknownTerm& y2 = sums.y.second.unknown;
    return {sums.x.unknowns,     sums.y.unknowns,     LengthOf(x1),        LengthOf(x2),       LengthOf(y1),
            SameUnknown(y1, x1), SameUnknown(y1, x2), SameUnknown(y2, x1), SameUnknown(y2, x2)};
}

// Names of three characters count as a symbol and as an angle's term at once.
bool IsSymbol(std::size_t length) { return length <= kLongestSymbol; }
bool IsTerm(std::size_t length) { return length >= kLongestSymbol; }

struct Row {
    int nx, ny;
    bool (*fits)(const Shape&);
    Place a, b, d, e;
    Place first, second;
};

constexpr Place kNo = Place::None;
constexpr Place kX1 = Place::X1;
constexpr Place kX2 = Place::X2;
constexpr Place kY1 = Place::Y1;
constexpr Place kY2 = Place::Y2;

constexpr std::array<Row, 7> kMagnitudeRows = {{
    {1, 1, [](const Shape&) { return true; }, kX1, kNo, kNo, kY1, kX1, kY1},
    {2, 2, [](const Shape& s) { return s.y1_is_x1 && s.y2_is_x2; }, kX1, kX2, kY1, kY2, kX1, kX2},
    {2, 2, [](const Shape& s) { return s.y2_is_x1 && s.y1_is_x2; }, kX1, kX2, kY2, kY1, kX1, kX2},
    {1, 2, [](const Shape& s) { return s.y1_is_x1; }, kX1, kNo, kY1, kY2, kX1, kY2},
    {1, 2, [](const Shape& s) { return s.y2_is_x1; }, kX1, kNo, kY2, kY1, kX1, kY1},
    {2, 1, [](const Shape& s) { return s.y1_is_x1; }, kX1, kX2, kY1, kNo, kX1, kX2},
    {2, 1, [](const Shape& s) { return s.y1_is_x2; }, kX1, kX2, kNo, kY1, kX1, kX2},
}};

bool SymbolThenTerm(const Shape& s) { return IsSymbol(s.x1) && IsTerm(s.x2); }
bool TermThenSymbol(const Shape& s) { return IsTerm(s.x1) && IsSymbol(s.x2); }

// The names of this table are settled by NameMagnitudeAndAngle.
constexpr std::array<Row, 8> kMagnitudeAndAngleRows = {{
    {2, 1, [](const Shape& s) { return IsSymbol(s.x1) && IsTerm(s.y1); }, kX1, kX2, kNo, kY1, kNo, kNo},
    {2, 1, [](const Shape& s) { return !IsSymbol(s.x1) && IsTerm(s.y1); }, kX2, kX1, kNo, kY1, kNo, kNo},
    {1, 2, [](const Shape& s) { return IsTerm(s.x1) && IsSymbol(s.y1); }, kNo, kX1, kY1, kY2, kNo, kNo},
    {1, 2, [](const Shape& s) { return IsTerm(s.x1) && !IsSymbol(s.y1); }, kNo, kX1, kY2, kY1, kNo, kNo},
    {2, 2, [](const Shape& s) { return SymbolThenTerm(s) && s.y1_is_x1; }, kX1, kX2, kY1, kY2, kNo, kNo},
    {2, 2, [](const Shape& s) { return SymbolThenTerm(s) && s.y2_is_x1; }, kX1, kX2, kY2, kY1, kNo, kNo},
    {2, 2, [](const Shape& s) { return TermThenSymbol(s) && s.y2_is_x2; }, kX2, kX1, kY2, kY1, kNo, kNo},
    {2, 2, [](const Shape& s) { return TermThenSymbol(s) && s.y1_is_x2; }, kX2, kX1, kY1, kY2, kNo, kNo},
}};

forces::SumTerm TermAt(const forces::ForceSums& sums, Place place) {
    switch (place) {
        case Place::X1:
            return sums.x.first;
        case Place::X2:
            return sums.x.second;
        case Place::Y1:
            return sums.y.first;
        case Place::Y2:
            return sums.y.second;
        case Place::None:
            break;
    }
    return {};
}

TwoUnknowns Filled(const forces::ForceSums& sums, const Row& row) {
    const auto coef = [&](Place place) { return TermAt(sums, place).coef; };
    const auto unknown = [&](Place place) { return TermAt(sums, place).unknown; };
    return {coef(row.a), coef(row.b), coef(row.d), coef(row.e), unknown(row.first), unknown(row.second)};
}

TwoUnknowns FromTable(const forces::ForceSums& sums, std::span<const Row> rows) {
    const Shape shape = ShapeOf(sums);
    for (const Row& row : rows)
        if (row.nx == shape.nx && row.ny == shape.ny && row.fits(shape))
            return Filled(sums, row);
    return {};
}

// The rules stand in their order of precedence, the last one first.
void NameMagnitudeAndAngle(const forces::ForceSums& sums, TwoUnknowns& unknowns) {
    const UnknownTerm& x1 = sums.x.first.unknown;
    const UnknownTerm& x2 = sums.x.second.unknown;
    const UnknownTerm& y1 = sums.y.first.unknown;
    const bool symbol_stands_first = IsSymbol(LengthOf(x1)) && IsTerm(LengthOf(x2));
    unknowns.second = symbol_stands_first ? x2 : x1;
    if (symbol_stands_first)
        unknowns.first = x1;
    else if (!x2.IsNone())
        unknowns.first = x2;
    else
        unknowns.first = IsSymbol(LengthOf(y1)) ? y1 : sums.y.second.unknown;
}

}  // namespace

TwoUnknowns MagnitudeCoefficients(const forces::ForceSums& sums) { return FromTable(sums, kMagnitudeRows); }

TwoUnknowns MagnitudeAndAngleCoefficients(const forces::ForceSums& sums) {
    TwoUnknowns unknowns = FromTable(sums, kMagnitudeAndAngleRows);
    NameMagnitudeAndAngle(sums, unknowns);
    return unknowns;
}

}  // namespace tavrelo::mechanics::particle
