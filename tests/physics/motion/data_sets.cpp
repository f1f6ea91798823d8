#include "motion/data_sets.h"

#include <algorithm>
#include <cmath>

#include "equations.h"

namespace tavrelo::physics {
namespace {

constexpr int kRoundedDecimals = 3;

/// A quantity at both ends of an interval, with the size of its terms.
struct Ends {
    char letter;
    double start;
    double end;
    double scale;
};

Typed TypeNumber(double value, double scale, Precision precision) {
    return precision == Precision::AllDigits ? AllDigits(value, scale) : Rounded(value, kRoundedDecimals);
}

TypedDatum NumberDatum(double value, double scale, Precision precision) {
    const Typed typed = TypeNumber(value, scale, precision);
    return {Form::Number, typed.text, typed.value};
}

TypedDatum IncrementDatum(const Ends& ends, const std::string& point, Precision precision) {
    const Typed size = TypeNumber(std::abs(ends.end - ends.start), ends.scale, precision);
    const bool is_down = ends.end < ends.start;
    return {Form::Increment, ends.letter + point + (is_down ? "-" : "+") + size.text,
            is_down ? -size.value : size.value};
}

/// "2*x1"; at times "x1/2" or "-x1" where the factor allows.
TypedDatum FactorDatum(const Ends& ends, const std::string& point, Precision precision, Chance& chance) {
    const double factor = ends.end / ends.start;
    const std::string name = ends.letter + point;
    if (factor == -1 && chance.OneIn(2))
        return {Form::Factor, "-" + name, -1};
    const Typed divisor = TypeNumber(1 / std::abs(factor), 1 / std::abs(factor), precision);
    if (divisor.value != 0 && chance.OneIn(4))
        return {Form::Factor, (factor < 0 ? "-" : "") + name + "/" + divisor.text,
                (factor < 0 ? -1 : 1) / divisor.value};
    const Typed typed = TypeNumber(factor, std::abs(factor), precision);
    return {Form::Factor, typed.text + "*" + name, typed.value};
}

TypedDatum TypeDatum(Form form, const Ends& ends, const std::string& point, Precision precision,
                     Chance& chance) {
    switch (form) {
        case Form::None:
            return {};
        case Form::Number:
            return NumberDatum(ends.end, ends.scale, precision);
        case Form::Increment:
            return IncrementDatum(ends, point, precision);
        case Form::Factor:
            break;
    }
    return FactorDatum(ends, point, precision, chance);
}

TypedDatum TypeStart(Form form, const Ends& ends, Precision precision) {
    return form == Form::None ? TypedDatum{} : NumberDatum(ends.start, ends.scale, precision);
}

/// The terms of a quantity at a time, times a factor.
using Terms = std::vector<double>;
Terms TermsOfT(const KnownMotion&, double t, double factor) { return {factor * t}; }
Terms TermsOfX(const KnownMotion& m, double t, double factor) {
    const double since = t - m.tn;
    return {factor * m.xn, factor * m.vn * since, factor * m.a * since * since / 2};
}
Terms TermsOfV(const KnownMotion& m, double t, double factor) {
    return {factor * m.vn, factor * m.a * (t - m.tn)};
}

/// What is the same for the data of a column: the motion, its moments, and how large its numbers are.
struct Moments {
    const KnownMotion& motion;
    double ti;
    double tf;

    double ScaleOfT() const {
        const double turning = motion.a == 0 ? 0 : std::abs(motion.vn / motion.a);
        return std::max({std::abs(motion.tn), std::abs(ti), std::abs(tf), turning});
    }
    double ScaleOfX() const { return Largest(&KnownMotion::ScaleOfX); }
    double ScaleOfV() const { return Largest(&KnownMotion::ScaleOfV); }

  private:
    double Largest(double (KnownMotion::*scale)(double) const) const {
        return std::max({(motion.*scale)(ti), (motion.*scale)(tf), (motion.From(0).*scale)(tf)});
    }
};

/// Adds to `why` what a datum leaves, when it does not hold.
void Check(const TypedDatum& datum, const Moments& moments,
           Terms (*terms_of)(const KnownMotion&, double, double), double scale, std::string& why) {
    if (datum.form == Form::None)
        return;
    const auto& [motion, ti, tf] = moments;
    Terms terms = terms_of(motion, tf, 1);
    if (datum.form != Form::Number) {
        const Terms start = terms_of(motion, ti, datum.form == Form::Factor ? -datum.value : -1);
        terms.insert(terms.end(), start.begin(), start.end());
    }
    if (datum.form != Form::Factor)
        terms.push_back(-datum.value);
    const Sum sum = SumOf(terms);
    if (!Holds(sum, scale))
        why += datum.text + " leaves " + sum.Told() + "; ";
}

void CheckColumn(const TypedColumn& column, const Moments& moments, std::string& why) {
    Check(column.t, moments, TermsOfT, moments.ScaleOfT(), why);
    Check(column.x, moments, TermsOfX, moments.ScaleOfX(), why);
    Check(column.v, moments, TermsOfV, moments.ScaleOfV(), why);
}

/// The times that the plain number of a column allows; nothing when it allows any.
std::optional<std::vector<double>> TimesOf(const KnownMotion& motion, const TypedColumn& column) {
    if (column.t.form == Form::Number)
        return std::vector{column.t.value};
    return column.x.form == Form::Number ? motion.TimesAtX(column.x.value) : motion.TimesAtV(column.v.value);
}

}  // namespace

bool DataForms::HasTwoPoints() const {
    return t >= Form::Increment || x >= Form::Increment || v >= Form::Increment;
}

TypedInterval TypeInterval(const DataForms& forms, const KnownInterval& interval, int start_point,
                           Precision precision, Chance& chance) {
    const Ends t = {'t', interval.ti, interval.tf, std::max(std::abs(interval.ti), std::abs(interval.tf))};
    const Ends x = {'x', interval.xi(), interval.xf(), interval.ScaleOfX()};
    const Ends v = {'v', interval.vi(), interval.vf(), interval.ScaleOfV()};
    const std::string point = std::to_string(start_point);
    TypedInterval typed;
    typed.start_point = start_point;
    typed.start = {TypeStart(forms.start_t, t, precision), TypeStart(forms.start_x, x, precision),
                   TypeStart(forms.start_v, v, precision)};
    typed.end = {TypeDatum(forms.t, t, point, precision, chance),
                 TypeDatum(forms.x, x, point, precision, chance),
                 TypeDatum(forms.v, v, point, precision, chance)};
    return typed;
}

bool TypedInterval::HasLongNumbers() const {
    constexpr std::size_t kLong = 10;
    for (const TypedColumn& column : {start, end})
        for (const TypedDatum& datum : {column.t, column.x, column.v})
            if (datum.text.size() > kLong)
                return true;
    return false;
}

bool HasFactors(const DataForms& forms, const KnownInterval& interval) {
    const auto has = [](Form form, double start, double end, double scale) {
        return form != Form::Factor || (!IsNearlyZero(start, scale) && !IsNearlyZero(end, scale));
    };
    return has(forms.t, interval.ti, interval.tf, std::abs(interval.ti)) &&
           has(forms.x, interval.xi(), interval.xf(), interval.ScaleOfX()) &&
           has(forms.v, interval.vi(), interval.vf(), interval.ScaleOfV());
}

std::string WhyNot(const KnownMotion& motion, const TypedInterval& typed, double ti, double tf) {
    std::string why;
    CheckColumn(typed.start, {motion, ti, ti}, why);
    CheckColumn(typed.end, {motion, ti, tf}, why);
    return why;
}

std::string WhyNeverPasses(const KnownMotion& motion, const TypedInterval& typed) {
    const bool has_start = typed.start.t.form != Form::None || typed.start.x.form != Form::None ||
                           typed.start.v.form != Form::None;
    const auto ends = TimesOf(motion, typed.end);
    if (!ends)
        return {};
    std::string why = "no time has the data; ";
    for (const double tf : *ends) {
        const auto starts = has_start ? TimesOf(motion, typed.start) : ends;
        if (!starts)
            return {};
        for (const double ti : *starts) {
            const std::string here = WhyNot(motion, typed, ti, tf);
            if (here.empty())
                return {};
            why = here;
        }
    }
    return why;
}

}  // namespace tavrelo::physics
