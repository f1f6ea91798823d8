#pragma once

#include <string_view>
#include <vector>

#include "mechanics/motion/step.h"
#include "numeric/real_roots.h"

/// What relates the motions of two movers: when a difference or a ratio of their positions or speeds has a
/// given value, and what a motion must be to reach a ratio of both at once.
namespace tavrelo::mechanics::motion {

inline constexpr std::string_view kForTwoMovers = "Este procedimiento se aplica a 2 móviles.";
inline constexpr std::string_view kCheckTheData = "Revisa los datos.";
inline constexpr std::string_view kSecondNotPlanted = "Me falta la ecuación del móvil 2.";
inline constexpr std::string_view kFirstNotPlanted = "No tengo la ecuación del móvil 1 para ningún tramo.";
inline constexpr std::string_view kNoSuchPoints = "No hay puntos que cumplan la condición dada.";
inline constexpr std::string_view kNoRelationSolution = "No hay solución.";

/// Between x, v of mover 1 and X, V of mover 2, with a constant C.
enum class Relation {
    PositionDifference,  // x - X = C
    PositionRatio,       // x = C X
    SpeedDifference,     // v - V = C
    SpeedRatio,          // v = C V
};

/// When a relation holds. `depends_on_time` is false when the time drops out of the relation, which then
/// holds always or never.
struct RelationTimes {
    bool depends_on_time = true;
    numeric::RealRootList times;
};

/// The times, unlimited, at which the relation holds between two motions; those of positions in the order of
/// the roots of a quadratic. Fails with Overflow.
RelationTimes TimesOf(Relation relation, const Motion& first, const Motion& second, double constant);

/// The relation with the typed constant between mover 2 and every stretch of mover 1 that has complete
/// equations. A time counts between the times of the stretch's first and last point, ends included, where the
/// table has both. The report gives those times with both positions or speeds.
Step ApplyRelation(const Problem& problem, Relation relation, std::string_view typed, int decimals);

inline constexpr std::string_view kNotApplicable = "Procedimiento no aplicable.";
inline constexpr std::string_view kDegenerateRatio = "Condición inaceptable.";
inline constexpr std::string_view kBadRatios = "Datos incorrectos.";
inline constexpr std::string_view kFirstStretchNotPlanted =
    "No tengo las ecuaciones (sin parámetros) del móvil 1, tramo 1.";

/// What mover 2 may lack: of its base (time T0, position X0, speed V0) and its acceleration A, one.
enum class MissingDatum { V0, A, T0, X0 };

/// The base of a motion, each quantity at its time, and its acceleration.
struct BaseMotion {
    double t0 = 0;
    double x0 = 0;
    double v0 = 0;
    double a = 0;

    double PositionAt(double t) const;
    double SpeedAt(double t) const;
};

/// A motion of mover 2, the missing datum found, and the time at which both ratios hold.
struct RatioMatch {
    double t = 0;
    BaseMotion second;
};

/// The motions of mover 2 for which x = p X and v = q V at some time. What `second` holds in place of the
/// missing datum does not count; p and q are not 0. Every match satisfies both equations. Without a match
/// none; refuses kNotApplicable where the condition does not fix the time. Fails with DivisionByZero where it
/// leaves the datum free.
std::variant<text::Refusal, std::vector<RatioMatch>> MatchRatios(const Motion& first, BaseMotion second,
                                                                 MissingDatum missing, double p, double q);

/// The same with p and q typed as "p, q", mover 1 on its first stretch, and mover 2 from its point 0 and its
/// box of acceleration, one of the four empty.
Step ApplyRatios(const Problem& problem, std::string_view typed, int decimals);

}  // namespace tavrelo::mechanics::motion
