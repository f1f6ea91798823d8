#pragma once

#include <string_view>

#include "problem.h"

namespace tavrelo::physics {

// --- Linear systems (systems.cpp)
Verdict PlaySystem(Problem& problem);
/// One equation is a sum of multiples of the others: no single solution.
Verdict PlayDependentSystem(Problem& problem);

// --- Roots (roots.cpp)
Verdict PlayQuadraticEquation(Problem& problem);
Verdict PlayCubicEquation(Problem& problem);
Verdict PlayRealRoots(Problem& problem);
/// a cos t + b sin t + c = 0.
Verdict PlayCosSin(Problem& problem);
/// The changes of sign of a product of known roots.
Verdict PlayRootSearch(Problem& problem);

// --- Calculus (calculus.cpp): typed formulas against the rules of calculus
Verdict PlayIntegral(Problem& problem);
Verdict PlayDerivatives(Problem& problem);
Verdict PlayDifferentialEquation(Problem& problem);

// --- Fits (fits.cpp)
/// Points on a polynomial, or beside it.
Verdict PlayFit(Problem& problem);
/// Points on y = b e^(ax) or y = b x^a.
Verdict PlayLogarithmicFit(Problem& problem);

// --- Figures (figures.cpp)
Verdict PlayTriangle(Problem& problem);
Verdict PlayNoTriangle(Problem& problem);
Verdict PlayTriangleOfVertices(Problem& problem);
Verdict PlayPolygon(Problem& problem);

inline constexpr std::string_view kInconsistentText = "Los datos son inconsistentes.";
inline constexpr std::string_view kNoTriangleText = "No forman un triángulo.";
inline constexpr std::string_view kThreeAnglesText = "Estás especificando 3 ángulos.";
inline constexpr std::string_view kInLineText = "Los puntos dados están en una misma línea recta.";
inline constexpr std::string_view kNoRootsText = "No encontré raíces en el intervalo dado.";
inline constexpr std::string_view kFitNotSolvedText = "No pude resolver el sistema de ecuaciones.";

}  // namespace tavrelo::physics
