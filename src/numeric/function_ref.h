#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace tavrelo::numeric {

template <typename Signature>
class FunctionRef;

/// A parameter that takes any callable without owning or copying it: one indirect call, no allocation. For
/// parameters only; the callable must outlive the call, so a lambda written in the argument list is fine.
template <typename Result, typename... Arguments>
class FunctionRef<Result(Arguments...)> {
  public:
    template <typename Callable,
              typename = std::enable_if_t<!std::is_same_v<std::remove_cvref_t<Callable>, FunctionRef> &&
                                          std::is_object_v<std::remove_reference_t<Callable>> &&
                                          std::is_invocable_r_v<Result, Callable&, Arguments...>>>
    FunctionRef(Callable&& callable)
        : m_object(const_cast<void*>(static_cast<const void*>(std::addressof(callable)))),
          m_call([](void* object, Arguments... arguments) -> Result {
              return std::invoke(*static_cast<std::remove_reference_t<Callable>*>(object),
                                 std::forward<Arguments>(arguments)...);
          }) {}

    Result operator()(Arguments... arguments) const {
        return m_call(m_object, std::forward<Arguments>(arguments)...);
    }

  private:
    void* m_object;
    Result (*m_call)(void*, Arguments...);
};

/// A function of one real variable; fails with a RuntimeFailure where it has no value.
using RealFunction = FunctionRef<double(double)>;

}  // namespace tavrelo::numeric
