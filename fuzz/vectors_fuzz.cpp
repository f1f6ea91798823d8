// Whatever is typed as a vector or a force: no exception leaves the parsers, and every number of a result is
// finite.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <variant>

#include "notation/force_parser.h"
#include "notation/vector_format.h"
#include "notation/vector_parser.h"
#include "numeric/checked.h"
#include "text/symbols.h"

namespace {

using namespace tavrelo;

constexpr int kDecimals = 3;

void RequireFinite(double number) {
    if (!std::isfinite(number))
        std::abort();
}

void RequireFinite(const notation::Force& force) {
    for (const auto& number : {force.magnitude, force.direction, force.x.number, force.y.number})
        RequireFinite(number.value_or(0));
    RequireFinite(force.x.coefficient);
    RequireFinite(force.y.coefficient);
}

void RequireFinite(const notation::VectorRecord& vector) {
    for (const double number : {vector.magnitude, vector.direction, vector.x, vector.y, vector.clock.angle})
        RequireFinite(number);
}

void TryParsers(std::string_view text) {
    const auto force = notation::ParseForce(text, kDecimals);
    if (const auto* record = std::get_if<notation::ForceRecord>(&force))
        RequireFinite(record->force);
    const auto vector = notation::ParseVector(text);
    if (const auto* record = std::get_if<notation::VectorRecord>(&vector))
        RequireFinite(*record);
}

// A text without a readable factor has one documented failure.
void TrySymbol(std::string_view text) {
    try {
        const text::FactoredSymbol symbol = text::SplitFactor(text);
        RequireFinite(symbol.factor);
        text::SymbolMarkup(symbol.factor, symbol.symbol, kDecimals);
        text::FactorText(symbol.factor, symbol.symbol, kDecimals);
    } catch (const numeric::RuntimeFailure&) {
    }
    text::SymbolMarkup(1, text, kDecimals);
    text::SubscriptName(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    notation::VectorFormatOf(text);
    TryParsers(text);
    TrySymbol(text);
    return 0;
}
