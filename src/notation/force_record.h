#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "notation/unknown_term.h"
#include "numeric/angles.h"

namespace tavrelo::notation {

/// One component of a force: its number, or a coefficient times an unknown.
struct ForceComponent {
    std::optional<double> number = {};  // nothing while it is unknown
    double coefficient = 0;             // of the unknown
    UnknownTerm unknown = {};           // none where the component is known from the start

    friend bool operator==(const ForceComponent&, const ForceComponent&) = default;
};

/// What is known of a force: all of it was given, a part is unknown, or the solver has found it.
enum class Knowledge { Given, Unknown, Found };

/// A force in the plane, from the reader or from a solver.
struct Force {
    std::optional<double> magnitude;  // nothing while it is unknown
    std::optional<double> direction;  // degrees from -180 to 180; nothing while it is unknown
    ForceComponent x, y;
    Knowledge knowledge = Knowledge::Given;

    bool HasComponents() const { return x.number && y.number; }

    friend bool operator==(const Force&, const Force&) = default;
};

/// A force as it was read from its text, with what only its table and its drawing show.
struct ForceRecord {
    Force force;
    std::string given_text;                      // as typed
    std::string_view code;                       // of the format, one of vector_format.h
    bool leaves = true;                          // false: the text ended in ":", it arrives at its point
    std::optional<numeric::ClockReading> clock;  // of a known direction; in the quadrant formats as typed
    std::string x_text;                          // the components for showing, bare
    std::string y_text;
    std::string label;  // the magnitude for showing, picture markup

    friend bool operator==(const ForceRecord&, const ForceRecord&) = default;
};

}  // namespace tavrelo::notation
