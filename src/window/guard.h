#pragma once

#include <exception>
#include <string_view>
#include <utility>

#include "text/refusal.h"
#include "window/host.h"

namespace tavrelo::window {

/// Runs one event handler. No failure crosses it: any becomes a box with the message, and the state stays as
/// it was at the point of failure. An empty message only stops.
template <class Handler>
void Guard(Boxes& boxes, std::string_view message, Handler&& handler) {
    try {
        std::forward<Handler>(handler)();
    } catch (const std::exception&) {
        if (!message.empty())
            boxes.Tell(message);
    }
}

}  // namespace tavrelo::window
