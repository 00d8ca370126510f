#include "core/shared.h"

#include <utility>

#include "port/never_destroyed.h"

namespace kzm {

constinit std::atomic<std::uint64_t> core::CacheChanges::count_{1};

Cache::Cache() = default;
Cache::~Cache() = default;

Value Cache::find(std::string_view key) const {
  const std::lock_guard lock(mutex_);
  const Value* value = entries_.find(key);
  return value != nullptr ? *value : Value();
}

void Cache::set(std::string_view key, Value value) {
  {
    const std::lock_guard lock(mutex_);
    if (value.isNull()) {
      entries_.remove(key);
    } else {
      entries_.set(key, std::move(value));
    }
  }
  core::CacheChanges::countOne();
}

std::size_t Cache::size() const {
  const std::lock_guard lock(mutex_);
  return entries_.size();
}

Dictionary Cache::entries() const {
  const std::lock_guard lock(mutex_);
  return entries_;
}

Value Cache::findOrMake(std::string_view key, const std::function<bool(const Value&)>& accepts,
                        const std::function<Value()>& make) {
  if (Value value = find(key); accepts(value)) return value;
  Value made = make();  // without the lock: making asks libraries that may ask us
  bool replaces = false;
  {
    const std::lock_guard lock(mutex_);
    const Value* present = entries_.find(key);
    if (present != nullptr && accepts(*present)) return *present;
    replaces = present != nullptr && !made.isNull();
    if (!made.isNull()) entries_.set(key, made);
  }
  if (replaces) core::CacheChanges::countOne();  // what threads hold of the former entry is stale
  return made;
}

namespace core {

std::shared_ptr<const Dictionary> cachedDictionary(std::string_view key, const std::function<Dictionary()>& make) {
  const auto accepts = [](const Value& value) { return value.dictionary() != nullptr; };
  return KZMUtilities::shared().cache()->findOrMake(key, accepts, [&] { return Value(make()); }).sharedDictionary();
}

}  // namespace core
}  // namespace kzm

KZMUtilities& KZMUtilities::shared() {
  static kzm::port::NeverDestroyed<KZMUtilities> instance;
  return *instance;
}

KZMUtilities::KZMUtilities() : cache_(std::make_shared<kzm::Cache>()) {}
KZMUtilities::~KZMUtilities() = default;

std::shared_ptr<kzm::Cache> KZMUtilities::cache() const {
  const std::lock_guard lock(mutex_);
  return cache_;
}

void KZMUtilities::setCache(std::shared_ptr<kzm::Cache> cache) {
  if (cache == nullptr) cache = std::make_shared<kzm::Cache>();
  {
    const std::lock_guard lock(mutex_);
    std::swap(cache_, cache);  // the former one ends its life outside the lock
  }
  kzm::core::CacheChanges::countOne();
}
