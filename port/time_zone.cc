#include "port/time_zone.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cctz/civil_time.h>
#include <cctz/time_zone.h>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <optional>
#include <shared_mutex>
#include <string>
#include <system_error>

#include "port/ascii.h"
#include "port/memory_watch.h"
#include "port/never_destroyed.h"

namespace kzm::port {
namespace {

using CctzTime = cctz::time_point<cctz::seconds>;

std::int64_t secondsOf(CctzTime time) { return time.time_since_epoch().count(); }

// A zone of the system's zone files. Local times go to cctz as bare second counts, so its calendar does not matter.
class NamedZone final : public Zone {
 public:
  NamedZone(std::string identifier, cctz::time_zone zone) : Zone(std::move(identifier)), zone_(zone) {}

  [[nodiscard]] std::int64_t offset(std::int64_t instant) const override {
    return zone_.lookup(CctzTime(cctz::seconds(instant))).offset;
  }

  [[nodiscard]] LocalTimeInstants instants(std::int64_t local) const override {
    const cctz::time_zone::civil_lookup found = zone_.lookup(cctz::civil_second(1970) + local);
    return {secondsOf(found.pre), secondsOf(found.trans), secondsOf(found.post)};
  }

 private:
  cctz::time_zone zone_;
};

// The zone files' folder holds these besides: other names of zones, and zones that count leap seconds.
bool isOtherFile(std::string_view identifier) {
  return identifier.starts_with("posix/") || identifier.starts_with("right/") || identifier == "localtime" ||
         identifier == "posixrules";
}

// Only names that can be a zone's: no way leads out of the folder of zone files, and cctz's own prefixes have a colon.
bool isZoneName(std::string_view identifier) {
  constexpr std::size_t kLongestName = 64;  // The longest zone name has about half of that.
  static constexpr std::string_view kOther = "_+-/";
  const auto isAllowed = [](char c) { return isAlphanumeric(c) || kOther.find(c) != std::string_view::npos; };
  return !identifier.empty() && identifier.size() <= kLongestName && identifier.front() != '/' &&
         identifier.find("//") == std::string_view::npos && !isOtherFile(identifier) &&
         std::ranges::all_of(identifier, isAllowed);
}

// cctz remembers every name it is asked for, so it is asked for zone files only.
bool isZoneFile(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return false;
  std::ifstream file(path, std::ios::binary);
  std::array<char, 4> magic{};
  return file.read(magic.data(), magic.size()) && std::string_view(magic.data(), magic.size()) == "TZif";
}

// cctz also remembers a name whose file it could not load for want of memory, and takes it for UTC ever after. So once
// that has happened, files are asked for by a path that is written in another way.
std::string pathOf(std::string_view identifier, std::size_t failures) {
  return zoneFolder().append(failures + 1, '/').append(identifier);
}

std::optional<cctz::time_zone> loadFile(const std::string& path) {
  cctz::time_zone zone;
  const MemoryWatch memory;
  const bool loaded = isZoneFile(path) && cctz::load_time_zone(path, &zone);
  memory.demand();
  return loaded ? std::optional(zone) : std::nullopt;
}

std::unique_ptr<const Zone> loadZone(std::string_view identifier) {
  constinit static std::atomic<std::size_t> failures{0};
  if (!isZoneName(identifier)) return nullptr;
  try {
    const std::optional<cctz::time_zone> zone = loadFile(pathOf(identifier, failures.load(std::memory_order_relaxed)));
    return zone ? std::make_unique<const NamedZone>(std::string(identifier), *zone) : nullptr;
  } catch (const std::bad_alloc&) {
    failures.fetch_add(1, std::memory_order_relaxed);
    throw;
  }
}

struct ZoneTable {
  std::shared_mutex mutex;
  std::map<std::string, std::unique_ptr<const Zone>, std::less<>> zones;
};

ZoneTable& zoneTable() {
  static NeverDestroyed<ZoneTable> table;
  return *table;
}

const Zone* knownZone(std::string_view identifier) {
  ZoneTable& table = zoneTable();
  const std::shared_lock lock(table.mutex);
  const auto found = table.zones.find(identifier);
  return found != table.zones.end() ? found->second.get() : nullptr;
}

const Zone* rememberZone(std::unique_ptr<const Zone> zone) {
  ZoneTable& table = zoneTable();
  const std::unique_lock lock(table.mutex);
  // Of two threads that loaded the same file, the first one's zone stays.
  return table.zones.try_emplace(zone->identifier(), std::move(zone)).first->second.get();
}

}  // namespace

std::string zoneFolder() {
  const char* folder = std::getenv("TZDIR");  // NOLINT(concurrency-mt-unsafe): read only, and cctz reads it as well
  return folder != nullptr && *folder != '\0' ? folder : "/usr/share/zoneinfo";
}

const Zone& utcZone() {
  static const NeverDestroyed<NamedZone> zone("UTC", cctz::utc_time_zone());
  return *zone;
}

const Zone* namedZone(std::string_view identifier) {
  if (identifier == utcZone().identifier()) return &utcZone();
  if (const Zone* known = knownZone(identifier)) return known;
  std::unique_ptr<const Zone> loaded = loadZone(identifier);
  return loaded != nullptr ? rememberZone(std::move(loaded)) : nullptr;
}

}  // namespace kzm::port
