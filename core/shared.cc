#include "core/shared.h"

#include <utility>

namespace kzm {
namespace {

constinit std::atomic<std::uint64_t> epoch{1};

void countHostChange() noexcept { epoch.fetch_add(1, std::memory_order_acq_rel); }

}  // namespace

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
  countHostChange();
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
  const std::lock_guard lock(mutex_);
  if (const Value* value = entries_.find(key); value != nullptr && accepts(*value)) return *value;
  if (!made.isNull()) entries_.set(key, made);
  return made;
}

namespace core {

std::uint64_t cacheEpoch() noexcept { return epoch.load(std::memory_order_acquire); }

std::shared_ptr<const Dictionary> cachedDictionary(std::string_view key, const std::function<Dictionary()>& make) {
  const auto accepts = [](const Value& value) { return value.dictionary() != nullptr; };
  return KZMUtilities::shared().cache()->findOrMake(key, accepts, [&] { return Value(make()); }).sharedDictionary();
}

}  // namespace core
}  // namespace kzm

KZMUtilities& KZMUtilities::shared() {
  static KZMUtilities& instance = *new KZMUtilities;  // lives until the process ends, whoever still formats by then
  return instance;
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
  kzm::countHostChange();
}
