#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>

namespace tavrelo::numeric {

/// Samples that are asked for together at most.
inline constexpr std::size_t kSampleBlock = 128;

/// A parameter that takes a function of one real variable for a routine that knows many of its samples
/// beforehand. Neither owned nor copied, as by a FunctionRef. The function is any callable; where it has a
/// member `Column(places, values)` too, that is asked for many values at once, and must fail where one of
/// them fails, as the first that does. Any other is put whole into a loop: one indirect call for all.
class SampledFunction {
  public:
    using Places = std::span<const double>;
    using Values = std::span<double>;

    template <typename Callable,
              typename = std::enable_if_t<!std::is_same_v<std::remove_cvref_t<Callable>, SampledFunction> &&
                                          std::is_object_v<std::remove_reference_t<Callable>> &&
                                          std::is_invocable_r_v<double, Callable&, double>>>
    SampledFunction(Callable&& callable)
        : m_object(const_cast<void*>(static_cast<const void*>(std::addressof(callable)))),
          m_at([](void* object, double place) -> double {
              return (*static_cast<std::remove_reference_t<Callable>*>(object))(place);
          }),
          m_column([](void* object, Places places, Values values) {
              FillColumn(*static_cast<std::remove_reference_t<Callable>*>(object), places, values);
          }) {}

    double operator()(double place) const { return m_at(m_object, place); }
    /// As many values as places, in their order.
    void Column(Places places, Values values) const { m_column(m_object, places, values); }

  private:
    template <typename Callable>
    static void FillColumn(Callable& callable, Places places, Values values) {
        if constexpr (requires { callable.Column(places, values); }) {
            callable.Column(places, values);
        } else {
            for (std::size_t k = 0; k < places.size(); ++k) {
                values[k] = callable(places[k]);
            }
        }
    }

    void* m_object;
    double (*m_at)(void*, double);
    void (*m_column)(void*, Places, Values);
};

}  // namespace tavrelo::numeric
