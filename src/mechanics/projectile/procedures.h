#pragma once

#include <string_view>

#include "mechanics/projectile/step.h"

namespace tavrelo::mechanics::projectile {

/// The procedures of the panel of equations, by the codes of its rows.
enum class Procedure {
    Plant = 1,
    Substitute = 2,              // in complete equations
    SubstituteInPolar = 3,       // speed or angle unknown
    SubstituteInComponents = 4,  // one component unknown
    PathAndGraph = 6,
};

/// The procedures of the list, by the codes under which help and transcripts know them.
enum class Special {
    ThreePoints = 2,
    RangeRatio = 3,
    FlightTimeAndRange = 4,
    Path = 21,
    Incline = 22,
    Crossing = 25,
    Collision = 26,
    Interception = 27,
    SquaredPair = 28,
    WithHorizontal = 29,
    WithVertical = 30,
    PlainPair = 31,
    MixedPair = 32,
};

/// A click on the label of a point. PathAndGraph takes two (ClickInterval): with it nothing happens here.
/// Refused before the table is configured.
///   Plant needs point 0. Its refusals come as an outcome: the mover loses its earlier equations then.
///   Substitute completes the point and asks between two solutions.
///   The other two find the parameter of the launch and ask whether to plant again with it.
Step ClickPoint(const Problem& problem, Procedure procedure, const Place& place, int decimals);

/// The two clicks of Procedure::PathAndGraph, or of Special::Path (without `with_graph`): the length of the
/// path between the times of two points of one mover, and the trajectory drawn; the other mover's over its
/// own times.
Step ClickInterval(const Problem& problem, const Place& first, const Place& second, bool with_graph,
                   int decimals);

/// A procedure of the list with the text of its box: lists of numbers parted by commas, for Collision "tc =
/// n" or nothing, for Interception "u = n", "tc = n" or both. Special::Path takes clicks: with it nothing
/// happens here.
Step RunSpecial(const Problem& problem, Special special, std::string_view text, int decimals);

/// Carries out what the answer to a question named.
Step Continue(const Problem& problem, const Request& request, int decimals);
/// Goes on with the limit that was typed.
Step ContinueWithLimit(const Problem& problem, const LimitRequest& request, std::string_view typed,
                       int decimals);

/// Forgets all equations and clears their slots of the board, without a question.
Outcome EraseEquations(const Problem& problem);

/// What is said to a click on a label before the table is configured.
inline constexpr const char* kConfigureFirst =
    "Configura la tabla primero\n(Clic en el espacio gris arriba de los rótulos numéricos).";

}  // namespace tavrelo::mechanics::projectile
