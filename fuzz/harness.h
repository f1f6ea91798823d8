#pragma once

#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

/// What the harnesses share.
namespace tavrelo::fuzz {

/// A finding: ends the program, so that the fuzzer keeps what was read.
inline void Require(bool holds) {
    if (!holds)
        std::abort();
}

/// The text cut at each `end`, which is left out; one piece more than there are ends.
inline std::vector<std::string> PiecesOf(std::string_view text, char end) {
    std::vector<std::string> pieces = {""};
    for (const char each : text)
        if (each == end)
            pieces.emplace_back();
        else
            pieces.back() += each;
    return pieces;
}

}  // namespace tavrelo::fuzz
