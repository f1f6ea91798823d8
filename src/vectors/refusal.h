#pragma once

#include <string>

namespace tavrelo::vectors {

/// What a reader or solver says to the user instead of a result; the caller shows it in a box and keeps its
/// state.
struct Refusal {
    std::string text;

    friend bool operator==(const Refusal&, const Refusal&) = default;
};

}  // namespace tavrelo::vectors
