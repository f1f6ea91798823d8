// Whatever is typed for one interval of motion, for a system of equations or for a quadratic: only the
// documented failure leaves, and no report shows what is no number.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/motion/equation_systems.h"
#include "mechanics/motion/interval_equations.h"
#include "notation/interval_line.h"
#include "numeric/checked.h"
#include "text/markup.h"

namespace {

using namespace tavrelo;
namespace motion = mechanics::motion;

constexpr int kDecimals = 3;

void RequireFinite(double number) {
    if (!std::isfinite(number))
        std::abort();
}

void RequireReadable(const std::variant<text::Refusal, std::vector<std::string>>& answer) {
    if (const auto* lines = std::get_if<std::vector<std::string>>(&answer))
        for (const std::string& line : *lines)
            if (line.find("inf") != std::string::npos || line.find("nan") != std::string::npos ||
                text::CountMarks(line) > text::kMarkLimit)
                std::abort();
}

template <typename Action>
void Try(Action action) {
    try {
        action();
    } catch (const numeric::RuntimeFailure&) {
    }
}

void TryInterval(std::string_view text) {
    RequireReadable(motion::ApplyIntervalEquations(text, kDecimals));
    const auto data = notation::ReadIntervalLine(text);
    if (!std::holds_alternative<notation::IntervalData>(data))
        return;
    const auto results = motion::SolveInterval(std::get<notation::IntervalData>(data));
    if (const auto* found = std::get_if<motion::IntervalResults>(&results))
        for (const motion::IntervalResult& result : *found)
            RequireFinite(result.value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Try([&] { TryInterval(text); });
    for (const auto shape : {motion::SystemShape::VA_VA, motion::SystemShape::V2A_VA,
                             motion::SystemShape::V2A2A_VA, motion::SystemShape::V2A2A_V2A})
        Try([&] { RequireReadable(motion::ReportSystem(shape, text, kDecimals)); });
    Try([&] { RequireReadable(motion::ReportQuadratic(text, kDecimals)); });
    return 0;
}
