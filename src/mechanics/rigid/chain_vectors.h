#pragma once

#include <optional>
#include <span>
#include <string>
#include <variant>

#include "mechanics/rigid/structure.h"
#include "notation/force_record.h"

namespace tavrelo::mechanics::rigid {

/// What is typed to add separation vectors: a chain of 2 to 7 letters, the vector between its first two
/// points, and one magnitude or component for each further pair.
struct ChainEntry {
    std::string chain;                   // capitals, trimmed
    std::string vector;                  // trimmed
    std::string series;                  // X, Y, M in either case, or anything else for none
    std::span<const std::string> texts;  // of the pairs behind the first one; may be longer than the chain
};

/// The refusal of a chain of letters as the chain box tells it; nothing for a good one.
/// Reads code points, so "AÑ" is two characters.
std::optional<text::Refusal> CheckChain(std::string_view chain);

/// The part of the entry that a refusal is about.
enum class ChainField { Chain, Vector, Series, Value };

struct ChainRefusal {
    std::optional<text::Refusal> refusal;  // nothing: the part is missing, and no words are known for that
    ChainField field;
    std::size_t value = 0;  // place in the texts, for a value
};

/// The rows of a chain, one for each pair of neighbouring letters. All vectors have the direction of the
/// first one. `known` are the points that have coordinates before the command: a pair whose two ends are
/// among them is refused. Throws RuntimeFailure (Overflow) where a component has no value.
std::variant<ChainRefusal, SegTable> ChainRows(const ChainEntry& entry, const PointTable& known,
                                               int decimals);

/// Whether the format's further vectors need to be told in which quantity they are given.
bool NeedsSeries(std::string_view format_code);

}  // namespace tavrelo::mechanics::rigid
