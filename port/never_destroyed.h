// Objects that live until the process ends.
#ifndef KZM_PORT_NEVER_DESTROYED_H
#define KZM_PORT_NEVER_DESTROYED_H

#include <cstddef>
#include <new>
#include <utility>

namespace kzm::port {

/// Holds a T whose destructor never runs: calls that come while the process ends, from the destructor of another
/// static object or from a thread, still find it. Made for function-local statics:
///
///   static const NeverDestroyed<Texts> texts(language);
///   return *texts;
template <class T>
class NeverDestroyed {
 public:
  template <class... Arguments>
  explicit NeverDestroyed(Arguments&&... arguments) {
    new (room_) T(std::forward<Arguments>(arguments)...);
  }
  NeverDestroyed(const NeverDestroyed&) = delete;
  NeverDestroyed& operator=(const NeverDestroyed&) = delete;
  ~NeverDestroyed() = default;

  [[nodiscard]] T& operator*() noexcept { return *std::launder(reinterpret_cast<T*>(room_)); }
  [[nodiscard]] const T& operator*() const noexcept { return *std::launder(reinterpret_cast<const T*>(room_)); }
  [[nodiscard]] T* operator->() noexcept { return &**this; }
  [[nodiscard]] const T* operator->() const noexcept { return &**this; }

 private:
  alignas(T) std::byte room_[sizeof(T)];
};

}  // namespace kzm::port

#endif
