#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace tavrelo::sessions {

/// Random choices that are the same for the same seed on every machine.
class Chance {
  public:
    explicit Chance(std::uint64_t seed) : m_engine(seed) {}

    /// From 0 up to, but not including, `count`, which is above 0.
    std::size_t Below(std::size_t count) { return static_cast<std::size_t>(m_engine() % count); }
    int Between(int low, int high) {
        return low + static_cast<int>(Below(static_cast<std::size_t>(high - low + 1)));
    }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    template <class Element>
    const Element& Of(std::span<const Element> list) {
        return list[Below(list.size())];
    }
    std::string Of(std::initializer_list<std::string_view> list) {
        return std::string(list.begin()[Below(list.size())]);
    }

  private:
    std::mt19937_64 m_engine;
};

}  // namespace tavrelo::sessions
