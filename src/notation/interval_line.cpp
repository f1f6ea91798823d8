#include "notation/interval_line.h"

#include <string>
#include <utility>
#include <vector>

#include "notation/typed_list.h"
#include "text/number_text.h"

namespace tavrelo::notation {

namespace {

constexpr std::size_t kFewestData = 3;
constexpr std::size_t kMostData = 4;

constexpr std::pair<std::string_view, IntervalDatum> kNames[] = {
    {"a", IntervalDatum::a},   {"ti", IntervalDatum::ti}, {"tf", IntervalDatum::tf},
    {"dt", IntervalDatum::dt}, {"xi", IntervalDatum::xi}, {"xf", IntervalDatum::xf},
    {"dx", IntervalDatum::dx}, {"vi", IntervalDatum::vi}, {"vf", IntervalDatum::vf},
    {"dv", IntervalDatum::dv},
};

std::optional<IntervalDatum> DatumNamed(std::string_view name) {
    for (const auto& [beginning, datum] : kNames)
        if (name.substr(0, beginning.size()) == beginning)
            return datum;
    return std::nullopt;
}

}  // namespace

std::variant<text::Refusal, IntervalData> ReadIntervalLine(std::string_view line) {
    const std::vector<std::string_view> pieces = PiecesOf(line);
    if (pieces.size() < kFewestData || pieces.size() > kMostData)
        return text::Refusal{std::string(kWrongNumberOfData)};
    IntervalData data;
    for (const std::string_view piece : pieces) {
        const std::size_t equals = piece.find('=');
        const auto datum = DatumNamed(WithoutBlanks(piece.substr(0, equals)));
        if (equals != std::string_view::npos && datum)
            data[*datum] = text::ToNumber(WithoutBlanks(piece.substr(equals + 1)));
    }
    return data;
}

}  // namespace tavrelo::notation
