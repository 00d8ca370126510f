// One object of a type for each thread, made when the thread first asks and deleted when it ends.
//
// A thread_local object of a class with a destructor costs a call and a guard for each access from a shared library,
// and is gone for calls that come later while the thread ends. Here the access is one load and one comparison, and an
// object that is asked for after its deletion is simply made anew: destructors of other keys, of thread_local objects
// and of static objects may all call.
#ifndef KZM_PORT_PER_THREAD_H
#define KZM_PORT_PER_THREAD_H

#include <optional>
#include <pthread.h>

namespace kzm::port {

/// The holder that perThread uses. T needs a default constructor; its destructor may ask for the thread's T again.
template <class T>
class PerThread {
 public:
  [[nodiscard]] static T& get() {
    if (T* const object = object_; object != nullptr) [[likely]]
      return *object;
    return make();
  }

 private:
  // The object of the main thread is left to the end of the process, so that static destructors can still use it.
  // The same holds for every thread when the process has no key left, and for an object that is made in the very last
  // round of a thread's destructors.
  [[gnu::noinline, gnu::cold]] static T& make() {
    T* const object = new T();
    object_ = object;
    if (const std::optional<pthread_key_t>& key = deletionKey()) pthread_setspecific(*key, object);
    return *object;
  }

  static void forget(void* object) {
    object_ = nullptr;
    delete static_cast<T*>(object);
  }

  static const std::optional<pthread_key_t>& deletionKey() {
    static const std::optional<pthread_key_t> kKey = [] {
      pthread_key_t key{};
      return pthread_key_create(&key, &forget) == 0 ? std::optional(key) : std::nullopt;
    }();
    return kKey;
  }

  // Initial-exec: the library's few pointers fit the room that the loader keeps for libraries that are opened late.
  [[gnu::tls_model("initial-exec")]] static inline constinit thread_local T* object_ = nullptr;
};

/// The calling thread's own T. The reference holds until the thread ends.
/// The library that uses this stays loaded to the end of the process (-z nodelete): ending threads call into it.
template <class T>
[[nodiscard]] inline T& perThread() {
  return PerThread<T>::get();
}

}  // namespace kzm::port

#endif
