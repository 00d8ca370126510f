// The one piece of state that the whole process shares: the cache of what is costly to make.
//
// Every function may be called from any thread at any time.
#ifndef KZMUTILITIES_SHARED_H
#define KZMUTILITIES_SHARED_H

#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <string_view>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

namespace kzm {

// ---- The cache ------------------------------------------------------------------------------------------------------

/// A dictionary that many threads read and change.
///
/// The library keeps in it, and never removes:
///   "NumberFormatter-Decimal-<min>.<max>"   NumberFormatter with exactly these bounds
///   "NumberFormatter-Decimal--.<max>"       NumberFormatter with a maximum only
///   "Locale-Posix-<identifier>"             Locale
///   "Localizations-Units-Network", "…-DiskActivity", "…-Space", "…-Memory", "…-Sensors"
///                                           Dictionary, unit template to its text in the user's language
/// An entry that a host puts there is used by the very next call. One of another kind than listed above counts as
/// missing: the library makes its own and stores it in that place.
///
/// Example:
///   Cache cache;
///   const auto isText = [](const Value& value) { return value.string() != nullptr; };
///   cache.findOrMake("greeting", isText, [] { return Value("hello"); })  // "hello"
///   cache.set("greeting", "good morning");
///   cache.findOrMake("greeting", isText, [] { return Value("hello"); })  // "good morning"
///   cache.find("farewell").isNull()  // true
class KZM_EXPORT Cache {
 public:
  Cache();
  Cache(const Cache&) = delete;
  Cache& operator=(const Cache&) = delete;
  ~Cache();

  /// The entry, or null.
  [[nodiscard]] Value find(std::string_view key) const;
  /// Puts the entry under the key; null removes it.
  void set(std::string_view key, Value value);
  [[nodiscard]] std::size_t size() const;
  /// All entries as they are now.
  [[nodiscard]] Dictionary entries() const;

  /// The entry if `accepts` holds for it, else what `make` gives, which is stored first (null is not). `accepts` is
  /// asked with null about a key that is absent. When two threads make the same entry at once, the first to store it
  /// wins and both get it. An entry that takes the place of another one counts at the very next call of every thread,
  /// as with `set`. An empty function throws std::bad_function_call when it is needed, and what the functions throw
  /// passes through; the cache stays as it was.
  Value findOrMake(std::string_view key, const std::function<bool(const Value&)>& accepts,
                   const std::function<Value()>& make);

 private:
  mutable std::mutex mutex_;
  Dictionary entries_;
};

}  // namespace kzm

// ---- Its holder -----------------------------------------------------------------------------------------------------

/// Holder of the shared cache.
///
/// Example (English): a host whose numbers with up to one fraction digit have three
///   const auto own = std::make_shared<Cache>();
///   own->set("NumberFormatter-Decimal--.1", std::make_shared<const NumberFormatter>(3, 3));
///   KZMUtilities::shared().setCache(own);
///   KZMUtilitiesFormatNumber({{"decimals", 1}}, 1.25)  // "1.250"
///   KZMUtilities::shared().setCache(nullptr);
///   KZMUtilitiesFormatNumber({{"decimals", 1}}, 1.25)  // "1.2"
class KZM_EXPORT KZMUtilities {
 public:
  /// `shared` The one instance that the library works with, made on the first call; it lives until the process ends.
  [[nodiscard]] static KZMUtilities& shared();

  /// `init` An instance with an empty cache.
  KZMUtilities();
  KZMUtilities(const KZMUtilities&) = delete;
  KZMUtilities& operator=(const KZMUtilities&) = delete;
  ~KZMUtilities();

  /// `cache` The cache, never null.
  [[nodiscard]] std::shared_ptr<kzm::Cache> cache() const;
  /// `setCache:` Puts another cache in place, for the next call on; null puts an empty one there.
  void setCache(std::shared_ptr<kzm::Cache> cache);

 private:
  mutable std::mutex mutex_;
  std::shared_ptr<kzm::Cache> cache_;
};

#endif
