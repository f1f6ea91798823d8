#include "mechanics/forces/force_table.h"

namespace tavrelo::mechanics::forces {
namespace {

text::Value ValueOf(const std::optional<double>& number) {
    return number ? text::Value(*number) : text::Value("");
}

void SetComponent(ForceRow& row, const ComponentColumns& columns, const notation::ForceComponent& component,
                  const std::string& text) {
    row[columns.component] = ValueOf(component.number);
    row[columns.coefficient] = component.coefficient;
    row[columns.unknown] = TextOf(component.unknown);
    row[columns.text] = text;
}

}  // namespace

ForceRow RowOf(const notation::ForceRecord& record) {
    ForceRow row;
    row[Magnitude] = ValueOf(record.force.magnitude);
    row[Direction] = ValueOf(record.force.direction);
    SetComponent(row, kXColumns, record.force.x, record.x_text);
    SetComponent(row, kYColumns, record.force.y, record.y_text);
    if (record.clock) {
        row[Hour] = record.clock->hour;
        row[ClockAngle] = record.clock->angle;
    }
    row[LeavesPoint] = record.leaves ? kLeaves : kArrives;
    row[Colour] = record.force.knowledge == notation::Knowledge::Unknown ? kUnknown : kKnown;
    row[GivenText] = record.given_text;
    row[FormatCode] = record.code;
    row[ShownMagnitude] = record.label;
    return row;
}

}  // namespace tavrelo::mechanics::forces
