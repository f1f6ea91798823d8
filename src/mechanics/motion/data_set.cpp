#include "mechanics/motion/data_set.h"

#include <cmath>

#include "mechanics/motion/holding.h"
#include "numeric/real_roots.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::motion {
namespace {

struct SetRow {
    DataSet set;
    DatumKey first;
    DatumKey second;
};

constexpr SetRow kRows[] = {
    {DataSet::TimePosition, kTime, kPosition},           {DataSet::TimeSpeed, kTime, kSpeed},
    {DataSet::PositionSpeed, kPosition, kSpeed},         {DataSet::TimesDx, kTime, kPositionIncrement},
    {DataSet::PositionsDt, kPosition, kTimeIncrement},   {DataSet::PositionsDv, kPosition, kSpeedIncrement},
    {DataSet::TimesDv, kTime, kSpeedIncrement},          {DataSet::DtDv, kTimeIncrement, kSpeedIncrement},
    {DataSet::TimesXFactor, kTime, kPositionFactor},     {DataSet::TimesVFactor, kTime, kSpeedFactor},
    {DataSet::PositionsTFactor, kPosition, kTimeFactor}, {DataSet::PositionsVFactor, kPosition, kSpeedFactor},
    {DataSet::SpeedsTFactor, kSpeed, kTimeFactor},       {DataSet::SpeedsXFactor, kSpeed, kPositionFactor},
};

bool IsSame(double a, double b) { return numeric::CleanDifference(a, b) == 0.0; }

/// Motion seen from the base: displacement and time count from there.
struct FromBase {
    double v;
    double a;

    std::vector<double> Displacement(double d, double factor) const {
        return {factor * v * d, factor * 0.5 * a * d * d};
    }
    /// Whether there is a moment with this displacement and speed.
    bool Reaches(double displacement, double speed) const {
        if (a == 0.0)
            return IsSame(speed, v) && (v != 0.0 || displacement == 0.0);
        return TermsCancel({speed * speed, -v * v, -2.0 * a * displacement});
    }
    /// Whether an accelerated motion ever has this displacement, up to rounding.
    bool IsReached(double displacement) const {
        const double speed_squared = v * v + 2.0 * a * displacement;
        return speed_squared >= 0.0 || TermsCancel({v * v, 2.0 * a * displacement});
    }
};

bool HoldsDx(const FromBase& motion, double di, double df, double dx) {
    std::vector<double> terms = motion.Displacement(df, 1.0);
    for (const double term : motion.Displacement(di, -1.0))
        terms.push_back(term);
    terms.push_back(-dx);
    return TermsCancel(terms);
}

bool HoldsXFactor(const FromBase& motion, const SetValues& s) {
    std::vector<double> terms = motion.Displacement(s.f - s.tn, 1.0);
    for (const double term : motion.Displacement(s.i - s.tn, -s.relation))
        terms.push_back(term);
    terms.push_back(s.xn);
    terms.push_back(-s.relation * s.xn);
    return TermsCancel(terms);
}

bool HoldsPositionsTFactor(const FromBase& motion, const SetValues& s) {
    const double p = s.i - s.xn;
    const double q = s.f - s.xn;
    for (const double u : numeric::RealRoots(0.5 * motion.a, motion.v, -p)) {
        std::vector<double> terms = motion.Displacement(s.relation * u, 1.0);
        terms.push_back(-q);
        if (TermsCancel(terms))
            return true;
    }
    return false;
}

bool HoldsPositionsVFactor(const FromBase& motion, const SetValues& s) {
    const double p = s.i - s.xn;
    const double q = s.f - s.xn;
    if (motion.a == 0.0)
        return motion.v == 0.0 && p == 0.0 && q == 0.0;
    const double c_squared = s.relation * s.relation;
    const double v_squared = motion.v * motion.v;
    return motion.IsReached(p) && motion.IsReached(q) &&
           TermsCancel(
               {v_squared, 2.0 * motion.a * q, -c_squared * v_squared, -2.0 * motion.a * c_squared * p});
}

bool HoldsSpeedsTFactor(const FromBase& motion, const SetValues& s) {
    if (motion.a == 0.0)
        return IsSame(s.i, motion.v) && IsSame(s.f, motion.v);
    return TermsCancel({s.tn, s.f / motion.a, -motion.v / motion.a, -s.relation * s.tn,
                        -s.relation * s.i / motion.a, s.relation * motion.v / motion.a});
}

bool HoldsSpeedsXFactor(const FromBase& motion, const SetValues& s) {
    if (motion.a == 0.0)
        return IsSame(s.i, motion.v) && IsSame(s.f, motion.v);
    const double c = s.relation;
    const double twice = 2.0 * motion.a;
    return TermsCancel({s.xn, s.f * s.f / twice, -motion.v * motion.v / twice, -c * s.xn,
                        -c * s.i * s.i / twice, c * motion.v * motion.v / twice});
}

}  // namespace

std::optional<GivenSet> FindDataSet(const Problem& problem, const points::PointPlace& place,
                                    const PointData& data) {
    const Equations& equations = problem.EquationsOf(place.mover, place.stretch);
    for (const SetRow& row : kRows) {
        const auto values = ValuesOf(data, row.first, row.second);
        if (!values)
            continue;
        GivenSet given = {row.set,
                          row.first,
                          row.second,
                          {equations.t, equations.x, 0, values->first, values->second},
                          values->referred};
        if (given.HasTwoPoints() && row.first.form == Form::Number) {
            const int column = points::ColumnOfPoint(problem.configuration, place.mover, *given.referred);
            const text::Value& start = problem.table.Stored(RowOf(row.first.quantity), column);
            if (!text::IsNum(start))
                return std::nullopt;
            given.values.i = start.Number();
        }
        return given;
    }
    return std::nullopt;
}

std::string DataLine(const GivenSet& given, int point, const Labels& labels) {
    const Quantity first = given.first.quantity;
    const Quantity second = given.second.quantity;
    const SetValues& values = given.values;
    std::string line;
    if (given.first.form == Form::Increment)
        line = labels.Increment(first, values.f);
    else if (given.HasTwoPoints())
        line = labels.Given(first, *given.referred, values.i) + ", " + labels.Given(first, point, values.f);
    else
        line = labels.Given(first, point, values.f);
    line += ", ";
    switch (given.second.form) {
        case Form::Number:
            return line + labels.Given(second, point, values.relation);
        case Form::Increment:
            return line + labels.Increment(second, values.relation);
        case Form::Factor:
            break;
    }
    return line + labels.Factor(second, point, *given.referred, values.relation);
}

bool Fulfils(DataSet set, const SetValues& s, double v, double a) {
    const FromBase motion = {v, a};
    const double d = s.f - s.tn;
    switch (set) {
        case DataSet::TimePosition:
            return TermsCancel({s.xn, v * d, 0.5 * a * d * d, -s.relation});
        case DataSet::TimeSpeed:
            return TermsCancel({v, a * d, -s.relation});
        case DataSet::PositionSpeed:
            return motion.Reaches(s.f - s.xn, s.relation);
        case DataSet::TimesDx:
            return HoldsDx(motion, s.i - s.tn, d, s.relation);
        case DataSet::PositionsDt: {
            const double dt = s.relation;
            return motion.Reaches(s.i - s.xn, (s.f - s.i) / dt - 0.5 * a * dt);
        }
        case DataSet::PositionsDv: {
            if (a == 0.0)
                return false;
            const double dv = s.relation;
            return motion.Reaches(s.i - s.xn, (s.f - s.i) * a / dv - 0.5 * dv);
        }
        case DataSet::TimesDv:
            return TermsCancel({a * (s.f - s.i), -s.relation});
        case DataSet::DtDv:
            return TermsCancel({a * s.f, -s.relation});
        case DataSet::TimesXFactor:
            return HoldsXFactor(motion, s);
        case DataSet::TimesVFactor:
            return TermsCancel({v, a * d, -s.relation * v, -s.relation * a * (s.i - s.tn)});
        case DataSet::PositionsTFactor:
            return HoldsPositionsTFactor(motion, s);
        case DataSet::PositionsVFactor:
            return HoldsPositionsVFactor(motion, s);
        case DataSet::SpeedsTFactor:
            return HoldsSpeedsTFactor(motion, s);
        case DataSet::SpeedsXFactor:
            return HoldsSpeedsXFactor(motion, s);
    }
    return false;
}

}  // namespace tavrelo::mechanics::motion
