#pragma once

#include <optional>
#include <string>

#include "notation/force_record.h"

namespace tavrelo::drawing {

/// A force as an arrow shows it.
struct ToldForce {
    const notation::Force& force;
    std::string name = {};                       // of its unknown: "F1", "Ax, Ay"; empty for a number
    bool leaves = true;                          // its point; otherwise it arrives there
    std::optional<double> drawn_direction = {};  // degrees, while the direction is unknown
};

/// The name of a force in words: of its unknown magnitude or components; empty when both are numbers from the
/// start.
std::string NameWords(const notation::Force& force);

/// Name, size, direction, what is unknown or was found: "F1 a 30 grados, desconocida", "100 hacia abajo",
/// "F1: 73.205 a 30 grados, hallada", "80 de ángulo desconocido A, dibujada a 45 grados".
std::string ForceWords(const ToldForce& told, int decimals);

/// "componentes x 43.3, y 25"; empty while one is unknown.
std::string ComponentsWords(const notation::Force& force, int decimals);

}  // namespace tavrelo::drawing
