#pragma once

#include <span>
#include <string>

#include "motion/known_motion.h"

namespace tavrelo::physics {

/// How a cell tells its quantity: not at all, by a number, or by an increment or a factor over another point.
enum class Form { None, Number, Increment, Factor };

/// What is typed in the columns of one point, or of two of which the later refers to the earlier.
struct DataForms {
    std::string_view name;
    Form start_t, start_x, start_v;  // None or Number
    Form t, x, v;

    bool HasTwoPoints() const;
};

/// What a column says: the texts of its cells, and their values as they were typed.
struct TypedDatum {
    Form form = Form::None;
    std::string text = {};
    double value = 0;
};
struct TypedColumn {
    TypedDatum t = {};
    TypedDatum x = {};
    TypedDatum v = {};

    std::string Told() const { return t.text + " | " + x.text + " | " + v.text; }
};
struct TypedInterval {
    int start_point = 1;
    TypedColumn start = {};
    TypedColumn end = {};

    /// Whether a datum has so many digits that its last ones are rounding.
    bool HasLongNumbers() const;
};

/// How closely the data tell the motion that they were taken from.
enum class Precision { AllDigits, Rounded };

/// The data of an interval in the given forms; the end refers to `start_point`.
TypedInterval TypeInterval(const DataForms& forms, const KnownInterval& interval, int start_point,
                           Precision precision, Chance& chance);

/// Whether every factor of the forms has a value: neither end of the quantity vanishes.
bool HasFactors(const DataForms& forms, const KnownInterval& interval);

/// What keeps an interval of a motion from being what was typed, empty when nothing does. The times are those
/// of the points.
std::string WhyNot(const KnownMotion& motion, const TypedInterval& typed, double ti, double tf);

/// The same when the times are not known: the motion has to pass points with these data at any times.
std::string WhyNeverPasses(const KnownMotion& motion, const TypedInterval& typed);

}  // namespace tavrelo::physics
