#pragma once

#include <map>
#include <string>
#include <vector>

#include "problem.h"

namespace tavrelo::physics {

/// The values of unknowns by the names of NameOf.
struct Values {
    std::map<std::string, double> magnitudes = {};
    std::map<std::string, double> angles = {};  // degrees
};

/// "F = 3, A = 30 degrees", with all digits.
std::string Told(const Values& values);
/// Whether all values agree but for rounding, angles but for whole turns.
bool AreEqual(const Values& first, const Values& second);

/// The name by which an unknown is told from others: in capitals, but that a friction's small "f" stays.
std::string NameOf(const std::string& symbol);

/// A component: a number, or a coefficient of an unknown magnitude.
struct StatedComponent {
    double number = 0;
    std::string magnitude = {};  // its name; empty for a number
};

/// A force as a student types it, and what it is by the trigonometry of this folder.
struct StatedForce {
    std::string text;
    StatedComponent x;
    StatedComponent y;
    std::string angle = {};  // name of an unknown direction: x counts times its cosine, y times its sine
};

struct Components {
    double x;
    double y;
};
/// Fails with std::out_of_range where an unknown has no value.
Components At(const StatedForce& force, const Values& values);

/// A direction as typed, with at most two decimals: an axis, one of the usual angles, or any.
double TypedDirection(Chance& chance);

/// The notation is left to chance among all that can write the force.
StatedForce KnownForce(Chance& chance, double magnitude, double direction);
/// How many decimals a student gives to a component of a force of that size: two, and more for a small one.
int DecimalsFor(double size);
/// Two components with so many decimals.
StatedForce KnownComponents(double x, double y, int decimals);
/// `factor` times the symbol along the direction; the factor is above 0 and has few decimals.
StatedForce UnknownMagnitude(Chance& chance, const std::string& symbol, double factor, double direction);
/// A known magnitude at an unknown direction.
StatedForce UnknownDirection(Chance& chance, double magnitude, const std::string& angle);
/// `factor` times the symbol at an unknown direction.
StatedForce UnknownForce(const std::string& symbol, double factor, const std::string& angle);
/// Two unknown components.
StatedForce UnknownComponents(const std::string& x, const std::string& y);

/// So many symbols of forces that are different unknowns.
std::vector<std::string> Symbols(Chance& chance, std::size_t count);
/// So many symbols of angles that are different unknowns.
std::vector<std::string> AngleSymbols(Chance& chance, std::size_t count);

/// A factor in front of a symbol: mostly 1.
double TypedFactor(Chance& chance);

}  // namespace tavrelo::physics
