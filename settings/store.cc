#include "settings/store.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "port/clocks.h"
#include "port/per_thread.h"
#include "port/standard_error.h"

namespace kzm::settings {

/// The settings at one moment, and the way to find one quickly.
struct Snapshot {
  explicit Snapshot(Dictionary settings) : objects(std::move(settings)) {
    for (const Dictionary::Entry& entry : objects) byKeyPath.emplace(entry.key, &entry.value);
  }
  const Dictionary objects;
  std::unordered_map<std::string_view, const Value*> byKeyPath;
};

namespace {

constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

struct LastRead {
  std::uint64_t version = 0;
  std::shared_ptr<const Snapshot> snapshot;
};

// One count for all stores, so that a version names a snapshot of just one of them.
std::uint64_t nextVersion() {
  constinit static std::atomic<std::uint64_t> last{0};
  return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

}  // namespace

Store::Store(std::string path, std::int64_t lookEveryMilliseconds)
    : lookEveryMilliseconds_(lookEveryMilliseconds), path_(std::move(path)) {}
Store::~Store() = default;

Value Store::find(std::string_view keyPath) {
  const Snapshot& snapshot = current();
  const auto found = snapshot.byKeyPath.find(keyPath);
  return found != snapshot.byKeyPath.end() ? *found->second : Value();
}

Dictionary Store::objects() { return current().objects; }

// The thread's pointer keeps the snapshot alive until the thread asks again.
const Snapshot& Store::current() {
  if (version_.load(std::memory_order_acquire) == 0) loadFirst();
  const std::int64_t due = nextLookMilliseconds_.load(std::memory_order_relaxed);
  if (due != kNever) {
    if (const std::int64_t now = port::coarseMilliseconds(); now >= due) lookAtFile(now, due);
  }
  LastRead& last = port::perThread<LastRead>();
  if (last.version != version_.load(std::memory_order_acquire)) {
    const std::lock_guard lock(publishing_);
    last.snapshot = snapshot_;
    last.version = version_.load(std::memory_order_relaxed);
  }
  return *last.snapshot;
}

void Store::loadFirst() {
  const std::lock_guard lock(changing_);
  if (version_.load(std::memory_order_relaxed) != 0) return;
  nextLookMilliseconds_.store(port::coarseMilliseconds() + lookEveryMilliseconds_, std::memory_order_relaxed);
  reload();
}

// One thread looks for all. It does not wait for one that is changing the file: that one publishes what it finds.
void Store::lookAtFile(std::int64_t now, std::int64_t due) {
  if (!nextLookMilliseconds_.compare_exchange_strong(due, now + lookEveryMilliseconds_, std::memory_order_relaxed))
    return;
  const std::unique_lock lock(changing_, std::try_to_lock);
  if (!lock.owns_lock() || inMemory_) return;
  if (isFresh(seen_) || identityOf(path_) != seen_) reload();
}

// What was seen is noted last: if memory runs out on the way, the file is read again at the next look.
void Store::reload() {
  const File file = readFile();
  complainOnce(file);
  publish(settingsIn(file.parsed.members));
  seen_ = file.identity;
}

// A file that is not there is as good as one without members; nothing is taken from a broken one.
Store::File Store::readFile() const {
  Content content = path_.empty() ? Content{} : read(path_);
  Parsed parsed = content.text ? parse(*content.text) : Parsed{{}, std::move(content.fault)};
  return {std::move(parsed), content.identity, std::hash<std::string>{}(content.text.value_or(""))};
}

// Once for each fault and content, however often that is read.
void Store::complainOnce(const File& file) {
  const std::string& fault = file.parsed.fault;
  const std::size_t complaint = fault.empty() ? 0 : std::hash<std::string>{}(fault) ^ file.hash;
  if (complaint != 0 && complaint != lastComplaint_) complain("is not used", fault);
  lastComplaint_ = complaint;
}

void Store::complain(std::string_view what, std::string_view fault) const {
  std::string line = "KZMSettings: " + path_;
  port::writeToStandardError(line.append(" ").append(what).append(": ").append(fault).append("\n"));
}

bool Store::set(const Value& object, std::string_view keyPath) {
  const std::optional<Member> member = memberFor(object);
  if (!member || !isUtf8(keyPath)) return false;
  const std::lock_guard lock(changing_);
  if (inMemory_) return setInMemory(object, keyPath);
  const std::string fault = setInFile(*member, keyPath);
  if (!fault.empty()) complain("is not changed", fault);
  return fault.empty();
}

bool Store::setInMemory(const Value& object, std::string_view keyPath) {
  Dictionary objects = snapshot_->objects;
  if (object.isNull()) {
    objects.remove(keyPath);
  } else {
    objects.set(keyPath, object);
  }
  publish(std::move(objects));
  return true;
}

// The file is read again under the lock: what another process stored in the meantime is kept.
std::string Store::setInFile(const Member& member, std::string_view keyPath) {
  if (path_.empty()) return "there is no directory for settings";
  const Lock lock(path_);
  if (!lock.held()) return lock.fault();
  File file = readFile();
  std::string fault = file.parsed.fault.empty() ? write(file, member, keyPath) : file.parsed.fault;
  publish(settingsIn(file.parsed.members));
  seen_ = file.identity;
  return fault;
}

// Changes the members only when the file could be changed. A change that changes nothing writes nothing.
std::string Store::write(File& file, const Member& member, std::string_view keyPath) {
  Members changed = file.parsed.members;
  const auto found = changed.find(keyPath);
  if (found != changed.end()) changed.erase(found);
  if (!member.value.isNull()) changed.emplace(keyPath, member);
  const std::string text = textOf(changed);
  if (text == textOf(file.parsed.members)) return {};
  if (text.size() > kMostBytes) return "it would be larger than " + std::to_string(kMostBytes) + " bytes";
  Replaced replaced = replace(path_, text);
  if (!replaced.identity) return std::move(replaced.fault);
  file = {{std::move(changed), {}}, *replaced.identity, 0};
  return {};
}

void Store::useObjects(Dictionary objects) {
  const std::lock_guard lock(changing_);
  inMemory_ = true;
  nextLookMilliseconds_.store(kNever, std::memory_order_relaxed);
  publish(std::move(objects));
}

void Store::publish(Dictionary objects) {
  if (snapshot_ != nullptr && snapshot_->objects == objects) return;
  auto snapshot = std::make_shared<const Snapshot>(std::move(objects));
  const std::lock_guard lock(publishing_);
  snapshot_ = std::move(snapshot);
  version_.store(nextVersion(), std::memory_order_release);
}

}  // namespace kzm::settings
