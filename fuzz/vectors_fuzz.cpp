// Whatever is typed as a vector or a force: no exception leaves the parsers, and every number of a result is
// finite.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string_view>
#include <variant>

#include "numeric/checked.h"
#include "vectors/force_parser.h"
#include "vectors/symbols.h"
#include "vectors/vector_format.h"
#include "vectors/vector_parser.h"

namespace {

using namespace tavrelo;

constexpr int kDecimals = 3;

void RequireFinite(double number) {
    if (!std::isfinite(number))
        std::abort();
}

void RequireFinite(std::span<const numeric::Value> elements) {
    for (const numeric::Value& element : elements)
        if (element.HoldsNumber())
            RequireFinite(element.Number());
}

void TryParsers(std::string_view text) {
    const auto force = vectors::ParseForce(text, kDecimals);
    if (const auto* record = std::get_if<vectors::ForceRecord>(&force))
        RequireFinite(*record);
    const auto vector = vectors::ParseVector(text);
    if (const auto* record = std::get_if<vectors::VectorRecord>(&vector))
        RequireFinite(*record);
}

// A text without a readable factor has one documented failure.
void TrySymbol(std::string_view text) {
    try {
        const vectors::FactoredSymbol symbol = vectors::SplitFactor(text);
        RequireFinite(symbol.factor);
        vectors::SymbolMarkup(symbol.factor, symbol.symbol, kDecimals);
        vectors::FactorText(symbol.factor, symbol.symbol, kDecimals);
    } catch (const numeric::RuntimeFailure&) {
    }
    vectors::SymbolMarkup(1, text, kDecimals);
    vectors::SubscriptName(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    vectors::VectorFormatOf(text);
    TryParsers(text);
    TrySymbol(text);
    return 0;
}
