#pragma once

#include <optional>

#include "numeric/checked.h"

namespace tavrelo::testing {

/// The code with which `action` fails; nothing when it does not.
template <typename Action>
std::optional<numeric::FailureCode> FailureOf(Action action) {
    try {
        action();
        return std::nullopt;
    } catch (const numeric::RuntimeFailure& failure) {
        return failure.Code();
    }
}

}  // namespace tavrelo::testing
