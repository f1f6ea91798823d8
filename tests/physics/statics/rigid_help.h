#pragma once

#include <string>
#include <vector>

#include "statics/typed_structure.h"

namespace tavrelo::physics {

/// Points as a structure of random size has them, no two at one place: those that it holds and `count` more.
void AddPoints(Chance& chance, TypedStructure& structure, std::size_t count);
/// Any point of the list.
char AnyPoint(Chance& chance, const std::string& points);
/// A direction that is not nearly that of another one, nor its opposite.
double DirectionBeside(Chance& chance, double other);
/// The direction from one point to another as a student types it, with two decimals.
double TypedDirectionBetween(const TypedStructure& structure, char from, char to);

/// One to four known loads on the points, forces and couples.
void AddLoads(Chance& chance, TypedStructure& structure, int body, const std::string& points);
/// A row with a magnitude unknown along a direction.
StatedRow Rope(Chance& chance, int body, char point, const std::string& symbol, double direction);

/// The names of unknown couples, none of them that of a force.
std::string CoupleSymbol(Chance& chance);

/// The verdict on a structure; `is_regular` where the solver must find its one solution. Forces of unusual
/// size may be refused: determinants count as zero by a limit of their own.
Verdict JudgedStructure(const TypedStructure& structure, const StructureAnswers& answers, bool is_regular);
/// Any solution is wrong.
Verdict RefusedStructure(const StructureAnswers& answers);

/// Whether the bodies' equations are clearly independent of each other.
bool AreRegular(const TypedStructure& structure, const std::vector<AskedBody>& bodies);

}  // namespace tavrelo::physics
