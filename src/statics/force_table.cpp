#include "statics/force_table.h"

#include <algorithm>

#include "vectors/force_parser.h"

namespace tavrelo::statics {

ForceRow RowOf(const vectors::ForceRecord& record) {
    ForceRow row;
    std::copy(record.begin(), record.end(), row.begin() + Magnitude);
    return row;
}

bool DirectionIsUnknown(const ForceRow& row) { return row[Hour].IsEmpty() && row[ClockAngle].IsEmpty(); }

std::variant<Refusal, ForceTable> ForcesOf(std::span<const std::string> texts, int decimals) {
    ForceTable table;
    for (const std::string& text : texts) {
        const auto parsed = vectors::ParseForce(text, decimals);
        if (const auto* refusal = std::get_if<Refusal>(&parsed))
            return *refusal;
        table.push_back(RowOf(std::get<vectors::ForceRecord>(parsed)));
        if (DirectionIsUnknown(table.back()))
            table.back()[DrawDirection] = kDefaultDrawDirection;
    }
    return table;
}

}  // namespace tavrelo::statics
