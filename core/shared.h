// The shared cache as the library's own code reaches it.
#ifndef KZM_CORE_SHARED_H
#define KZM_CORE_SHARED_H

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include <KZMUtilities/shared.h>

namespace kzm::core {

/// Counts the changes that hosts make to caches. What a thread holds on to from the cache is good for one count.
class CacheChanges {
 public:
  [[nodiscard]] static std::uint64_t count() noexcept { return count_.load(std::memory_order_acquire); }

 private:
  friend class kzm::Cache;
  friend class ::KZMUtilities;
  static void countOne() noexcept { count_.fetch_add(1, std::memory_order_acq_rel); }

  static constinit std::atomic<std::uint64_t> count_;
};

/// The object of class T in the shared cache; made, stored and given when there is none of that class.
template <class T>
std::shared_ptr<const T> cachedObject(std::string_view key, const std::function<std::shared_ptr<const T>()>& make) {
  const auto accepts = [](const Value& value) { return dynamic_cast<const T*>(value.object()) != nullptr; };
  const Value value = KZMUtilities::shared().cache()->findOrMake(key, accepts, [&] { return Value(make()); });
  return std::dynamic_pointer_cast<const T>(value.sharedObject());
}

/// The dictionary in the shared cache; made and stored when there is none. Never null.
std::shared_ptr<const Dictionary> cachedDictionary(std::string_view key, const std::function<Dictionary()>& make);

}  // namespace kzm::core

#endif
