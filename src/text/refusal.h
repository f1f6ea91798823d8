#pragma once

#include <string>
#include <string_view>

namespace tavrelo::text {

/// The message where a command fails and nothing better is known.
inline constexpr std::string_view kCommandFailed = "Error en el comando.";

/// What a reader or solver says to the user instead of a result; the caller shows it in a box and keeps its
/// state.
struct Refusal {
    std::string text;

    friend bool operator==(const Refusal&, const Refusal&) = default;
};

}  // namespace tavrelo::text
