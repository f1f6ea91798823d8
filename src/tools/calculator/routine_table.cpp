#include "tools/calculator/routine_table.h"

#include <algorithm>
#include <iterator>

#include "tools/calculator/fit_routines.h"
#include "tools/calculator/force_routines.h"
#include "tools/calculator/function_routines.h"
#include "tools/calculator/graph_routines.h"
#include "tools/calculator/linear_routines.h"
#include "tools/calculator/root_routines.h"
#include "tools/calculator/triangle_routines.h"
#include "tools/calculator/vector_routines.h"

namespace tavrelo::tools::calculator {
namespace {

constexpr CellReading kFormulas = CellReading::Formulas;
constexpr CellReading kTexts = CellReading::Texts;

// clang-format off
constexpr RoutineRow kRows[] = {
    {1, kFormulas, FormulaUse::None, Determinant},
    {2, kFormulas, FormulaUse::None, LinearSystem},
    {5, kFormulas, FormulaUse::None, Quadratic},
    {6, kFormulas, FormulaUse::None, ShiftedQuadratic},
    {7, kFormulas, FormulaUse::None, Cubic},
    {8, kFormulas, FormulaUse::None, Trigonometric},
    {9, kFormulas, FormulaUse::Function, RootSearch},
    {10, kFormulas, FormulaUse::None, TriangleFromData},
    {11, kFormulas, FormulaUse::None, TriangleFromVertices},
    {12, kFormulas, FormulaUse::None, Polygon},
    {13, kFormulas, FormulaUse::Table, TableOfX},
    {14, kFormulas, FormulaUse::Table, TableOfXY, "+0*X+0*Y"},
    {15, kFormulas, FormulaUse::Table, TableOfXYZ, "+0*X+0*Y+0*Z"},
    {16, kFormulas, FormulaUse::Table, TableOfSteps},
    {17, kFormulas, FormulaUse::Function, FirstDerivative},
    {18, kFormulas, FormulaUse::Function, SecondDerivative},
    {19, kFormulas, FormulaUse::Function, Integral},
    {20, kFormulas, FormulaUse::Function, CartesianGraph},
    {21, kFormulas, FormulaUse::Function, PolarGraph},
    {22, kFormulas, FormulaUse::Pair, ParametricGraph},
    {23, kFormulas, FormulaUse::None, LineFit},
    {24, kFormulas, FormulaUse::None, ExponentialFit},
    {25, kFormulas, FormulaUse::None, PowerFit},
    {26, kFormulas, FormulaUse::None, PolynomialFit},
    {27, kTexts, FormulaUse::None, SumAndProducts},
    {28, kTexts, FormulaUse::None, VectorListSum},
    {29, kTexts, FormulaUse::None, FactorsSum},
    {30, kTexts, FormulaUse::None, VectorListMoments},
    {31, kTexts, FormulaUse::None, RotateVector},
    {32, kTexts, FormulaUse::None, BaseDecompose},
    {33, kTexts, FormulaUse::None, VectorFromProjections},
    {34, kTexts, FormulaUse::None, ParallelLine},
    {35, kTexts, FormulaUse::None, ParallelSpace},
    {36, kTexts, FormulaUse::None, PlaneForces},
    {37, kFormulas, FormulaUse::Function, DistributedLoad},
    {38, kTexts, FormulaUse::None, ParticleEquilibrium},
};
// clang-format on

}  // namespace

const RoutineRow* FindRoutineRow(int number) {
    const auto found = std::ranges::find(kRows, number, &RoutineRow::number);
    return found == std::end(kRows) ? nullptr : found;
}

}  // namespace tavrelo::tools::calculator
