#include "mechanics/forces/read_forces.h"

#include "notation/force_parser.h"

namespace tavrelo::mechanics::forces {

std::variant<text::Refusal, std::vector<notation::ForceRecord>> ReadForces(std::span<const std::string> texts,
                                                                           int decimals) {
    std::vector<notation::ForceRecord> records;
    for (const std::string& text : texts) {
        auto parsed = notation::ParseForce(text, decimals);
        if (const auto* refusal = std::get_if<text::Refusal>(&parsed))
            return *refusal;
        records.push_back(std::get<notation::ForceRecord>(std::move(parsed)));
    }
    return records;
}

std::vector<notation::Force> ForcesOf(std::span<const notation::ForceRecord> records) {
    std::vector<notation::Force> forces;
    for (const notation::ForceRecord& record : records)
        forces.push_back(record.force);
    return forces;
}

}  // namespace tavrelo::mechanics::forces
