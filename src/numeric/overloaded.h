#pragma once

namespace tavrelo::numeric {

/// One handler for each alternative of a variant, as std::visit takes them:
///
///     std::visit(Overloaded{[](int number) { ... }, [](const std::string& text) { ... }}, value);
template <class... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};
template <class... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

}  // namespace tavrelo::numeric
