#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mechanics/motion/data_pair.h"

namespace tavrelo::mechanics::motion {

/// The sets of data that equations with parameters take: i is the earlier point, f the clicked one.
enum class DataSet {
    TimePosition,      // t, x
    TimeSpeed,         // t, v
    PositionSpeed,     // x, v
    TimesDx,           // ti, tf, Dx
    PositionsDt,       // xi, xf, Dt
    PositionsDv,       // xi, xf, Dv
    TimesDv,           // ti, tf, Dv
    DtDv,              // Dt, Dv
    TimesXFactor,      // ti, tf, xf = C xi
    TimesVFactor,      // ti, tf, vf = C vi
    PositionsTFactor,  // xi, xf, tf = C ti
    PositionsVFactor,  // xi, xf, vf = C vi
    SpeedsTFactor,     // vi, vf, tf = C ti
    SpeedsXFactor,     // vi, vf, xf = C xi
};

/// The base of the equations and the numbers of a data set. In a set of one point `f` is its first datum and
/// `relation` its second; else `i` and `f` are the quantity at both ends and `relation` is the increment or
/// factor. In DtDv `f` is Dt and `relation` Dv.
struct SetValues {
    double tn = 0;
    double xn = 0;
    double i = 0;
    double f = 0;
    double relation = 0;
};

/// A data set found in a clicked column, with the keys of its data.
struct GivenSet {
    DataSet set;
    DatumKey first;
    DatumKey second;
    SetValues values;
    std::optional<int> referred;

    bool HasTwoPoints() const { return referred.has_value(); }
};

/// The first data set, pairs of numbers before increments before factors, that the clicked point has; the
/// plain datum of a set of two points must be a number at the earlier point too, else that is the end of it.
/// Nothing when there is none.
std::optional<GivenSet> FindDataSet(const Problem& problem, const points::PointPlace& place,
                                    const PointData& data);

/// "t!3 = 5, x!3 = 40" or "t!1 = 2, t!3 = 5, ;Dx = 30", in markup.
std::string DataLine(const GivenSet& given, int point, const Labels& labels);

/// Whether the motion with speed v and acceleration a at the base (tn, xn) fulfils the data: the moments
/// exist and the relations hold, up to rounding.
bool Fulfils(DataSet set, const SetValues& values, double v, double a);

}  // namespace tavrelo::mechanics::motion
