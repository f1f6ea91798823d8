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

using frame::RoutineNeed;

// Groups of the menu.
enum Group { kLinear = 1, kRoots, kTriangles, kFunctions, kGraphs, kFits, kVectors, kForces };
constexpr std::string_view kGroupTitles[] = {
    "Ecuaciones lineales", "Raíces",   "Triángulos y polígonos", "Funciones", "Gráficas",
    "Ajuste de curvas",    "Vectores", "Sistemas de fuerzas",
};

constexpr CellReading kFormulas = CellReading::Formulas;
constexpr CellReading kTexts = CellReading::Texts;

// Checks of the arguments. A routine without one tests its own further on.
constexpr ArgumentCheck Exactly(int count, std::string_view message) {
    return {CountTest::Within, {count, count}, message, NumberTest::All};
}
constexpr ArgumentCheck kTwo = Exactly(2, "Deben ser 2 argumentos.");
constexpr ArgumentCheck kThree = Exactly(3, "Deben ser 3 argumentos.");
constexpr ArgumentCheck kFour = Exactly(4, "Deben ser 4 argumentos.");
constexpr ArgumentCheck kFive = Exactly(5, "Deben ser 5 argumentos.");
constexpr ArgumentCheck kSix = Exactly(6, "Deben ser 6 argumentos.");
constexpr ArgumentCheck kNumbers = {CountTest::None, {}, {}, NumberTest::All};
constexpr ArgumentCheck kPairs = {
    CountTest::Even, {}, "Debe ser un número par de argumentos.", NumberTest::All};
constexpr ArgumentCheck kTriples = {
    CountTest::MultipleOfThree, {}, "El número de argumentos debe ser un múltiplo de 3", NumberTest::All};
constexpr ArgumentCheck kSquare = {
    CountTest::Square, {}, "La región a seleccionar debe ser n x n.", NumberTest::WholeBlock};
constexpr ArgumentCheck kSquareAndColumn = {
    CountTest::SquareAndColumn, {}, "La región a seleccionar debe ser n x n+1.", NumberTest::WholeBlock};
constexpr ArgumentCheck kTwoToFour = {
    CountTest::Within, {2, 4}, "Número de argumentos incorrecto (deben ser 2, 3 ó 4).", NumberTest::All};
constexpr ArgumentCheck kTwoOrThree = {
    CountTest::Within,  {2, 3}, "Número de argumentos incorrecto (deben ser 2 ó 3).",
    NumberTest::Within, {2, 3}, "Los argumentos deben ser todos numéricos"};
constexpr ArgumentCheck kTriangle = {
    CountTest::Within,
    {6, 6},
    kSix.count_message,
    NumberTest::Within,
    {3, 3},
    "Tres de los argumentos deben ser numéricos y los restantes iguales a \"x\"."};

// Titles and prompts stand as the students know them, slips included.
// clang-format off
constexpr Routine kRoutines[] = {
    {.number = 1, .icons = {{kLinear, 0}}, .help_index = 1,
     .title = "Calcular determinante de orden n <= 20.",
     .prompt = "{a!1!1, a!1!2, a!1!3, ..., a!1!n, a!2!1, a!2!2, a!2!3, ..., a!2!n, ..., a!n!n}",
     .cells = kFormulas, .check = kSquare, .run = Determinant},
    {.number = 2, .icons = {{kLinear, 1}}, .help_index = 2,
     .title = "Resolver sistema de ecuaciones lineales con n <= 20 incógnitas.",
     .prompt = "{a!1!1, a!1!2, a!1!3, ..., a!1!n, b!1, a!2!1, a!2!2, a!2!3, ..., a!2!n, b!2, ..., a!n!n, b!n}",
     .cells = kFormulas, .check = kSquareAndColumn, .run = LinearSystem},
    {.number = 5, .icons = {{kRoots, 0}}, .help_index = 3,
     .title = "Resolver la ecuación cuadrática Ax¡2 + Bx + C = 0.",
     .prompt = "{A, B, C)",
     .cells = kFormulas, .check = kThree, .run = Quadratic},
    {.number = 6, .icons = {{kRoots, 1}}, .help_index = 4,
     .title = "Resolver la ecuación cuadrática A(Bx + C)¡2 + Dx + E = 0.",
     .prompt = "{A, B, C, D, E}",
     .cells = kFormulas, .check = kFive, .run = ShiftedQuadratic},
    {.number = 7, .icons = {{kRoots, 2}}, .help_index = 5,
     .title = "Resolver la ecuación cúbica Ax¡3 + Bx¡2 + Cx + D = 0.",
     .prompt = "{A, B, C, D}",
     .cells = kFormulas, .check = kFour, .run = Cubic},
    {.number = 8, .icons = {{kRoots, 3}}, .help_index = 6,
     .title = "Resolver la ecuación trigonométrica   A cos ;q + B sen ;q + C = 0.",
     .prompt = "{A, B, C}",
     .cells = kFormulas, .check = kThree, .run = Trigonometric},
    {.number = 9, .icons = {{kRoots, 4}, {kFunctions, 7}}, .help_index = 7, .need = RoutineNeed::Formula,
     .title = "Calcular las raíces \"r!i\" de f(x) = 0 en x #elem [x!1, x!2]   (Bisección).",
     .prompt = "> f(x), {x!1, x!2}    (Checa f(r!i) para identificar discontinuidades)",
     .cells = kFormulas, .formula = FormulaUse::Function, .check = kTwo, .run = RootSearch},
    {.number = 10, .icons = {{kTriangles, 0}}, .help_index = 8,
     .title = "Calcular un triángulo dados 3 datos sobre lados L!i y/o ángulos A!i.",
     .prompt = "{L!1, A!1, L!2, A!2, L!3, A!3}  (Escribe \"x\" por cada incógnita\")",
     .cells = kFormulas, .check = kTriangle, .run = TriangleFromData},
    {.number = 11, .icons = {{kTriangles, 1}}, .help_index = 9,
     .title = "Calcular lados y ángulos de un triángulo dados sus vértices.",
     .prompt = "{x!1, y!1, x!2, y!2, x!3, y!3}   (Coordenadas de los vértices)",
     .cells = kFormulas, .check = kSix, .run = TriangleFromVertices},
    {.number = 12, .icons = {{kTriangles, 2}}, .help_index = 10,
     .title = "Calcular lados y ángulos de un polígono dados sus vértices.",
     .prompt = "{x!1, y!1, x!2, y!2, x!3, y!3, ...}   (Coordenadas de los vértices)",
     .cells = kFormulas, .check = kPairs, .run = Polygon},
    {.number = 13, .icons = {{kFunctions, 0}}, .help_index = 11, .need = RoutineNeed::Formula,
     .title = "Evaluar la función f(x) en x!1, x!2, x!3, ...",
     .prompt = "> f(x), {x!1, x!2, x!3, ...}",
     .cells = kFormulas, .formula = FormulaUse::Table, .check = kNumbers, .run = TableOfX},
    {.number = 14, .icons = {{kFunctions, 1}}, .help_index = 12, .need = RoutineNeed::Formula,
     .title = "Evaluar la función f(x,y) en (x!1, y!1), (x!2, y!2),...",
     .prompt = "> f(x, y), {x!1, y!1, x!2, y!2,...}",
     .cells = kFormulas, .formula = FormulaUse::Table, .formula_tail = "+0*X+0*Y", .check = kPairs, .run = TableOfXY},
    {.number = 15, .icons = {{kFunctions, 2}}, .help_index = 13, .need = RoutineNeed::Formula,
     .title = "Evaluar la función f(x,y,z) en (x!1, y!1, z!1), (x!2, y!2, z!2),...",
     .prompt = "> f(x, y, z), {x!1, y!1, z!1, x!2, y!2, z!2, ...}",
     .cells = kFormulas, .formula = FormulaUse::Table, .formula_tail = "+0*X+0*Y+0*Z", .check = kTriples, .run = TableOfXYZ},
    {.number = 16, .icons = {{kFunctions, 3}}, .help_index = 14, .need = RoutineNeed::Formula,
     .title = "Evaluar f(x) desde x!1 en incrementos de ;Dx hasta x!2.",
     .prompt = "> f(x), {x!1, x!2, ;Dx}",
     .cells = kFormulas, .formula = FormulaUse::Table, .check = kThree, .run = TableOfSteps},
    {.number = 17, .icons = {{kFunctions, 4}}, .help_index = 15, .need = RoutineNeed::Formula,
     .title = "Calcular la derivada de f(x) en x!1, x!2, x!3, ...",
     .prompt = "> f(x), {x!1, x!2, x!3, ...}",
     .cells = kFormulas, .formula = FormulaUse::Function, .check = kNumbers, .run = FirstDerivative},
    {.number = 18, .icons = {{kFunctions, 5}}, .help_index = 16, .need = RoutineNeed::Formula,
     .title = "Calcular la segunda derivada de f(x) en el punto x.",
     .prompt = "> f(x), {x [,;e]}    Lee la ayuda abajo.",
     .cells = kFormulas, .formula = FormulaUse::Function, .run = SecondDerivative},
    {.number = 19, .icons = {{kFunctions, 6}}, .help_index = 17, .need = RoutineNeed::Formula,
     .title = "Calcular la integral de f(x) en el intervalo [x!1, x!2].",
     .prompt = "> f(x), {x!1, x!2}   (o bien {x!1, x!2 ,1 [,;e]]}    Lee la ayuda abajo)",
     .cells = kFormulas, .formula = FormulaUse::Function, .check = kTwoToFour, .run = Integral},
    {.number = 20, .icons = {{kFunctions, 8}, {kGraphs, 0}}, .help_index = 18, .need = RoutineNeed::Formula,
     .title = "Graficar la función y = f(x) en [x!1, x!2].",
     .prompt = "> f(x), {x!1, x!2}  (Coordenadas cartesianas)",
     .cells = kFormulas, .formula = FormulaUse::Function, .check = kTwo, .run = CartesianGraph},
    {.number = 21, .icons = {{kGraphs, 1}}, .help_index = 19, .need = RoutineNeed::Formula,
     .title = "Graficar la función r = f(;q) en [;q!1, ;q!2].",
     .prompt = "> f(;q), {;q!1, ;q!2 [,n]}   (Coordenadas polares. Usa \"x\" en lugar de \";q\")",
     .cells = kFormulas, .formula = FormulaUse::Function, .run = PolarGraph},
    {.number = 22, .icons = {{kGraphs, 2}}, .help_index = 20, .need = RoutineNeed::Formula,
     .title = "Graficar las ecuaciones paramétricas x = f(u), y = g(u).",
     .prompt = "> f(u) & g(u)  (Usa \"x\" en vez de \"u\").   {u!1, u!2 [,n]}",
     .cells = kFormulas, .formula = FormulaUse::Pair, .check = kTwoOrThree, .run = ParametricGraph},
    {.number = 23, .icons = {{kFits, 0}}, .help_index = 21,
     .title = "Obtener la recta de mínimos cuadrados y = ax + b.",
     .prompt = "{x!1, y!1, x!2, y!2, x!3, y!3, ...}    (Regresión lineal X-Y)",
     .cells = kFormulas, .check = kPairs, .run = LineFit},
    {.number = 24, .icons = {{kFits, 1}}, .help_index = 22,
     .title = "Ajustar por mínimos cuadrados a la curva  y = b e¡a¡x.",
     .prompt = "{x!1, y!1, x!2, y!2, x!3, y!3, ...}    (Regresión lineal X-ln(Y))",
     .cells = kFormulas, .check = kPairs, .run = ExponentialFit},
    {.number = 25, .icons = {{kFits, 2}}, .help_index = 23,
     .title = "Ajustar por mínimos cuadrados a la curva  y = bx¡a.",
     .prompt = "{x!1, y!1, x!2, y!2, x!3, y!3, ...}    (Regresión lineal ln(X)-ln(Y))",
     .cells = kFormulas, .check = kPairs, .run = PowerFit},
    {.number = 26, .icons = {{kFits, 3}}, .help_index = 24,
     .title = "Ajustar polinomio de orden n: A!nx¡n + A!n!-!1 x¡n¡-¡1 + ... + A!1 x + A!0.",
     .prompt = "{x!1, y!1, x!2, y!2, x!3, y!3, ... [, n]}",
     .cells = kFormulas, .check = kNumbers, .run = PolynomialFit},
    {.number = 27, .icons = {{kVectors, 0}}, .help_index = 25, .need = RoutineNeed::Clock,
     .title = "Calcular $V!1 + $V!2, $V!2 ;- $V!1, $V!1 #esca $V!2, $V!1 #cruz $V!2.",
     .prompt = "{$V!1, $V!2}",
     .cells = kTexts, .run = SumAndProducts},
    {.number = 28, .icons = {{kVectors, 1}}, .help_index = 26, .need = RoutineNeed::Clock,
     .title = "Calcular la suma vectorial de N vectores $F!1 + $F!2 + ... + $F!N.",
     .prompt = "{$F!1, $F!2, $F!3, ..., $F!N}",
     .cells = kTexts, .run = VectorListSum},
    {.number = 29, .icons = {{kVectors, 2}}, .help_index = 27, .need = RoutineNeed::Clock,
     .title = "Calcular la suma de productos ;S;l!i $F!i.",
     .prompt = "{;l!1, $F!1, ;l!2, $F!2, ;l!3, $F!3, ..., ;l!N, $F!N}",
     .cells = kTexts, .run = FactorsSum},
    {.number = 30, .icons = {{kVectors, 3}}, .help_index = 28, .need = RoutineNeed::Clock,
     .title = "Calcular la suma de momentos ;S$r!i #cruz $F!i  c/r al Origen  [o c/r a $r!A].",
     .prompt = "{$r!1, $F!1, $r!2, $F!2, $r!3, $F!3,..., $r!N, $F!N [, $r!A]}   ($r's = vectores de posición)",
     .cells = kTexts, .run = VectorListMoments},
    {.number = 31, .icons = {{kVectors, 4}}, .help_index = 29, .need = RoutineNeed::Clock,
     .title = "Rotar un vector $V, o los ejes de coordenadas, un ángulo dado ;q.",
     .prompt = "{$V, ;q, \"v\"}  (rotar vector) o bien {$V, ;q, \"e\"}  (rotar ejes)",
     .cells = kTexts, .run = RotateVector},
    {.number = 32, .icons = {{kVectors, 5}}, .help_index = 30, .need = RoutineNeed::Clock,
     .title = "Calcular ;l y ;m de la combinación lineal $V = ;l $a + ;m $b.",
     .prompt = "{$a, $b, $V}",
     .cells = kTexts, .run = BaseDecompose},
    {.number = 33, .icons = {{kVectors, 6}}, .help_index = 31, .need = RoutineNeed::Clock,
     .title = "Calcular $V dadas sus proyecciones C!a y C!b sobre $a y $b.",
     .prompt = "{$a, C!a, $b, C!b}    (C!a y C!b en múltiplos de |$a| y |$b|, respectivamente)",
     .cells = kTexts, .run = VectorFromProjections},
    {.number = 34, .icons = {{kForces, 0}}, .help_index = 32,
     .title = "Resultante de un sistema de N fuerzas paralelas (una dimensión).",
     .prompt = "{x!1, F!1!y , x!2, F!2!y , ..., x!N, F!N!y [, x!L]}",
     .cells = kTexts, .run = ParallelLine},
    {.number = 35, .icons = {{kForces, 1}}, .help_index = 33,
     .title = "Resultante de un sistema de fuerzas paralelas (dos dimensiones).",
     .prompt = "{$r!1, F!1!z , $r!2, F!2!z , ... [$r!L]}",
     .cells = kTexts, .run = ParallelSpace},
    {.number = 36, .icons = {{kForces, 2}}, .help_index = 34, .need = RoutineNeed::Clock,
     .title = "Resultante de un sistema de N fuerzas coplanarias.",
     .prompt = "{$r!1, $F!1, $r!2, $F!2, ..., $r!N, $F!N [, $r!L]}",
     .cells = kTexts, .run = PlaneForces},
    {.number = 37, .icons = {{kForces, 3}}, .help_index = 35,
     .title = "Resultante de una distribución lineal de fuerzas.",
     .prompt = "> f(x),  {x!1, x!2}   Densidad lineal de fuerza y límites",
     .cells = kFormulas, .formula = FormulaUse::Function, .run = DistributedLoad},
    {.number = 38,
     .title = "Resolver problema de equilibrio de una partícula.",
     .prompt = "{$F!1, $F!2, $F!3,..., $F!N}     (Incógs: F!n, F!m   ó   F!n, ;q!m   ó   ;q!n, ;q!m)",
     .cells = kTexts, .run = ParticleEquilibrium},
};
// clang-format on

}  // namespace

const Routine* FindRoutine(int number) {
    const auto found = std::ranges::find(kRoutines, number, &Routine::number);
    return found == std::end(kRoutines) ? nullptr : found;
}

std::vector<frame::RoutineGroup> RoutineMenu() {
    std::vector<frame::RoutineGroup> groups;
    for (const std::string_view title : kGroupTitles)
        groups.push_back({title, {}});
    for (const Routine& routine : kRoutines)
        for (const MenuPlace& place : routine.icons) {
            if (place.group == 0)
                continue;
            auto& icons = groups[static_cast<std::size_t>(place.group) - 1].icons;
            const auto column = static_cast<std::size_t>(place.column);
            icons.resize(std::max(icons.size(), column + 1));
            icons[column] = {routine.number, routine.title, routine.help_index, routine.need};
        }
    return groups;
}

}  // namespace tavrelo::tools::calculator
