#include <algorithm>
#include <cmath>

#include "statics/rigid_help.h"
#include "statics/rigid_kinds.h"

namespace tavrelo::physics {
namespace {

constexpr int kBody = 1;

// Three unknowns that hold a body, in one of the ways of the textbooks.
void AddHolding(Chance& chance, TypedStructure& structure) {
    const std::vector<std::string> symbols = Symbols(chance, 3);
    const std::string& points = structure.Points();
    const char first = AnyPoint(chance, points);
    const auto rope = [&](std::size_t symbol, double direction) {
        structure.Add(Rope(chance, kBody, AnyPoint(chance, points), symbols[symbol], direction));
    };
    switch (chance.Below(6)) {
        case 0:
            structure.AddSupport(kBody, first, true);
            break;
        case 1:
            structure.AddSupport(kBody, first, false);
            rope(0, TypedDirection(chance));
            break;
        case 2:
            structure.Add({kBody, first, UnknownComponents(symbols[0], symbols[1])});
            rope(2, TypedDirection(chance));
            break;
        case 3:
            for (std::size_t k = 0; k < 3; ++k)
                rope(k, TypedDirection(chance));
            break;
        case 4: {
            const double direction = TypedDirection(chance);
            rope(0, direction);
            rope(1, DirectionBeside(chance, direction));
            structure.Add({kBody, AnyPoint(chance, points), {}, UnknownCouple(chance, CoupleSymbol(chance))});
            break;
        }
        default:  // the load's own couple beside a reaction
            structure.AddSupport(kBody, first, false);
            structure.Add({kBody, AnyPoint(chance, points),
                           KnownForce(chance, structure.AnyLoad(), TypedDirection(chance)),
                           UnknownCouple(chance, CoupleSymbol(chance))});
    }
}

// A body of two to six points, seen from any of them.
TypedStructure BodyOf(Problem& problem) {
    TypedStructure structure(problem);
    if (problem.chance.OneIn(3))
        structure.AddPointsInARow('A', TypedDirection(problem.chance), 1 + problem.chance.Below(5));
    else
        AddPoints(problem.chance, structure, 1 + problem.chance.Below(5));
    if (problem.chance.OneIn(3))
        structure.ChooseOrigin(AnyPoint(problem.chance, structure.Points()));
    return structure;
}

}  // namespace

Verdict PlayHeldBody(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = BodyOf(problem);
    const bool loads_first = chance.OneIn(2);
    if (loads_first)
        AddLoads(chance, structure, kBody, structure.Points());
    AddHolding(chance, structure);
    if (!loads_first)
        AddLoads(chance, structure, kBody, structure.Points());
    const std::vector<AskedBody> asked = {{kBody, AnyPoint(chance, structure.Points())}};
    return JudgedStructure(structure, structure.Solve(asked), AreRegular(structure, asked));
}

Verdict PlayBadlyHeldBody(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = BodyOf(problem);
    AddLoads(chance, structure, kBody, structure.Points());
    const std::string& points = structure.Points();
    const std::vector<std::string> symbols = Symbols(chance, 3);
    const char first = AnyPoint(chance, points);
    const double direction = TypedDirection(chance);
    switch (chance.Below(4)) {
        case 0:  // three parallel ropes
            for (const std::string& symbol : symbols)
                structure.Add(Rope(chance, kBody, AnyPoint(chance, points), symbol, direction));
            break;
        case 1:  // a rope to the articulation itself
            structure.AddSupport(kBody, first, false);
            structure.Add(Rope(chance, kBody, first, symbols[0], direction));
            break;
        case 2:  // three ropes at one point
            for (const std::string& symbol : symbols)
                structure.Add(Rope(chance, kBody, first, symbol, TypedDirection(chance)));
            break;
        default:  // two couples, which no equation tells apart
            structure.Add(Rope(chance, kBody, first, symbols[0], direction));
            structure.Add({kBody, first, {}, UnknownCouple(chance, "M1")});
            structure.Add({kBody, AnyPoint(chance, points), {}, UnknownCouple(chance, "M2")});
    }
    return RefusedStructure(structure.Solve({{kBody, AnyPoint(chance, points)}}));
}

Verdict PlayUprightForces(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure(problem);
    structure.AddPointsInARow('A', 0, 2 + chance.Below(5));
    const std::string& points = structure.Points();
    const std::vector<std::string> symbols = Symbols(chance, 2);
    structure.Add({kBody, points.front(), UnknownMagnitude(chance, symbols[0], 1, 90)});
    if (chance.OneIn(3))
        structure.Add({kBody, AnyPoint(chance, points), {}, UnknownCouple(chance, CoupleSymbol(chance))});
    else
        structure.Add({kBody, points.back(), UnknownMagnitude(chance, symbols[1], TypedFactor(chance), -90)});
    for (const char point : points)
        structure.Add({kBody, point, KnownForce(chance, structure.AnyLoad(), chance.OneIn(3) ? 90 : -90)});
    // Nothing acts along x: its equation says nothing and is left out.
    const StructureAnswers answers = structure.Solve({{kBody, AnyPoint(chance, points)}}, "1x");
    return JudgedStructure(structure, answers, true);
}

Verdict PlayOtherCounts(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = BodyOf(problem);
    AddLoads(chance, structure, kBody, structure.Points());
    const std::size_t count = chance.OneIn(2) ? 1 + chance.Below(2) : 4 + chance.Below(3);
    for (const std::string& symbol : Symbols(chance, count))
        structure.Add(
            Rope(chance, kBody, AnyPoint(chance, structure.Points()), symbol, TypedDirection(chance)));
    return RefusedStructure(structure.Solve({{kBody, AnyPoint(chance, structure.Points())}}));
}

}  // namespace tavrelo::physics
