#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/rigid/structure.h"
#include "notation/force_record.h"

namespace tavrelo::mechanics::rigid {

/// A couple, positive counter-clockwise: a number, or an unknown that has none yet.
struct Couple {
    std::string text = {};             // as typed
    std::optional<double> value = {};  // nothing while it is unknown
    std::string symbol = {};           // of the unknown, in capitals, of any length; empty for a number
    double sign = 1;                   // in front of the symbol: 1 or -1

    bool IsKnown() const { return value.has_value(); }
    friend bool operator==(const Couple&, const Couple&) = default;
};

/// One force, couple or both on a point of a body.
struct BodyForce {
    std::optional<notation::Force> force;  // nothing for a couple alone
    int body = 1;                          // system 1 to 5
    std::string point;
    double x = 0;  // of the point of application, from the origin
    double y = 0;
    std::string text;  // as typed
    std::optional<Couple> couple;

    friend bool operator==(const BodyForce&, const BodyForce&) = default;
};
using BodyForces = std::vector<BodyForce>;

/// A force that was read, and what only its table and its drawing show of it: nothing for a couple alone.
struct ReadForce {
    BodyForce force;
    std::optional<notation::ForceRecord> written;
};

/// Reads "force", "force/couple" or a pure couple; an empty side counts as missing. A couple's symbol may be
/// of any length here. An empty text gives no row: not to be called with one. Fails with Overflow on a couple
/// past the range of a double.
std::variant<text::Refusal, ReadForce> ReadBodyForce(int body, const PointRecord& point,
                                                     std::string_view text, int decimals);

/// The forces at the coordinates that their points have now.
BodyForces AtPoints(BodyForces forces, const PointTable& points);

/// The text of the opposite force or couple: "30, -40/250" is "-30, 40/-250". An unknown direction only takes
/// a minus sign, which ParseForce refuses. Refused for a couple's symbol of more than three characters and
/// for a text without a format.
std::variant<text::Refusal, std::string> NegateForceText(std::string_view text);

/// What the keyword of a support ("art", "art:", "emp", "emp:") stands for at one point: "Ax, Ay",
/// "Ax, Ay:/MA"; empty for any other text.
std::string SupportText(std::string_view keyword, std::string_view point);

/// The number behind "neg" or "pos", blanks between them allowed. The words alone, and anything behind a
/// blank, count as a reference too; nothing for any other text ("POSE" and "pose" name a couple).
struct RowReference {
    bool negated;
    int row;  // of the table, from 1; 0 when what follows is no whole number
};
std::optional<RowReference> ReadRowReference(std::string_view text);

/// Text of the k-th force of a series: the letter of the first force's format in front of the value.
std::string SeriesText(std::string_view first_text, std::string_view value);

}  // namespace tavrelo::mechanics::rigid
