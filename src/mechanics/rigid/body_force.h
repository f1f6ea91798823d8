#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/forces/force_table.h"
#include "mechanics/rigid/structure.h"

namespace tavrelo::mechanics::rigid {

/// One force, couple or both on a point of a body.
struct BodyForce {
    mechanics::forces::ForceRow force;  // of the pure couple: all columns empty
    int body = 1;                       // system 1 to 5
    std::string point;
    double x = 0;  // of the point of application, from the origin
    double y = 0;
    float draw_x = 0;         // pixels from the left of the canvas
    float draw_y = 0;         // pixels from its top
    std::string text;         // as typed
    text::Value couple;       // number, positive counter-clockwise, or its symbol in capitals; empty: none
    std::string couple_text;  // as typed
    int couple_colour = mechanics::forces::kKnown;  // kUnknown while the couple is a symbol

    bool HasForce() const { return !force[mechanics::forces::GivenText].IsEmpty(); }
    bool HasCouple() const { return !couple.IsEmpty(); }
};
using BodyForces = std::vector<BodyForce>;

/// Reads "force", "force/couple" or a pure couple; an empty side counts as missing. A couple's symbol may be
/// of any length here. An empty text gives no row: not to be called with one. Fails with Overflow on a couple
/// past the range of a double.
std::variant<text::Refusal, BodyForce> ReadBodyForce(int body, const PointRecord& point,
                                                     std::string_view text, int decimals);

/// Whether the force is to be drawn in a direction that only the user knows: an unknown one that has not been
/// drawn before.
bool NeedsDrawDirection(const BodyForce& force);
/// Draws the force from now on in that direction (degrees).
void SetDrawDirection(BodyForce& force, double degrees);

/// Copies the coordinates and drawing places of the points into the rows that act on them.
void RefreshPlaces(BodyForces& forces, const PointTable& points);

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
