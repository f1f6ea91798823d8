#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>

namespace tavrelo::physics {

/// Random choices that are the same for the same seed on every machine (the generator is SplitMix64).
class Chance {
  public:
    explicit Chance(std::uint64_t seed) : m_state(seed) {}

    /// From 0 up to, but not including, `count`, which is above 0.
    std::size_t Below(std::size_t count) { return static_cast<std::size_t>(Next() % count); }
    int Between(int low, int high) {
        return low + static_cast<int>(Below(static_cast<std::size_t>(high - low + 1)));
    }
    double Between(double low, double high) { return low + (high - low) * Unit(); }
    /// A size between the bounds, each power of ten as likely as another.
    double Size(double low, double high) { return low * std::pow(high / low, Unit()); }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    double Sign() { return OneIn(2) ? 1 : -1; }
    template <class List>
    const auto& Of(const List& list) {
        return list[Below(std::size(list))];
    }

  private:
    std::uint64_t Next() {
        std::uint64_t mixed = m_state += 0x9E3779B97F4A7C15;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }
    double Unit() { return static_cast<double>(Next() >> 11) * 0x1p-53; }

    std::uint64_t m_state;
};

}  // namespace tavrelo::physics
