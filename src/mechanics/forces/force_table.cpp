#include "mechanics/forces/force_table.h"

#include <algorithm>

#include "notation/force_parser.h"

namespace tavrelo::mechanics::forces {

ForceRow RowOf(const notation::ForceRecord& record) {
    ForceRow row;
    std::copy(record.begin(), record.end(), row.begin() + Magnitude);
    return row;
}

bool DirectionIsUnknown(const ForceRow& row) { return row[Hour].IsEmpty() && row[ClockAngle].IsEmpty(); }

std::variant<text::Refusal, ForceTable> ForcesOf(std::span<const std::string> texts, int decimals) {
    ForceTable table;
    for (const std::string& text : texts) {
        const auto parsed = notation::ParseForce(text, decimals);
        if (const auto* refusal = std::get_if<text::Refusal>(&parsed))
            return *refusal;
        table.push_back(RowOf(std::get<notation::ForceRecord>(parsed)));
        if (DirectionIsUnknown(table.back()))
            table.back()[DrawDirection] = kDefaultDrawDirection;
    }
    return table;
}

}  // namespace tavrelo::mechanics::forces
