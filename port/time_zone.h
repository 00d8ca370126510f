// Time zones of this machine: offsets from GMT, and the instants of a local time.
//
// Zones are found by name, live as long as the process, and may be asked from any thread.
#ifndef KZM_PORT_TIME_ZONE_H
#define KZM_PORT_TIME_ZONE_H

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace kzm::port {

/// The instants that a local time means, in seconds since 1970 UTC. All three are equal but near a change of
/// offset. For a local time that is skipped: before > change > after, or equal at the gap's ends. For a repeated one:
/// before < change <= after.
struct LocalTimeInstants {
  std::int64_t before;  ///< with the offset in force before the change
  std::int64_t change;  ///< the first instant with the new offset
  std::int64_t after;   ///< with the offset in force after the change
};

class Zone {
 public:
  explicit Zone(std::string identifier) : identifier_(std::move(identifier)) {}
  Zone(const Zone&) = delete;
  Zone& operator=(const Zone&) = delete;
  virtual ~Zone() = default;

  [[nodiscard]] const std::string& identifier() const noexcept { return identifier_; }

  /// Seconds east of GMT at the instant (seconds since 1970 UTC).
  [[nodiscard]] virtual std::int64_t offset(std::int64_t instant) const = 0;

  /// The instants of a local time, given as the seconds from 1970-01-01 00:00:00 local to it by a clock that is never
  /// changed.
  [[nodiscard]] virtual LocalTimeInstants instants(std::int64_t local) const = 0;

 private:
  std::string identifier_;
};

/// The zone of that name; null when the machine's zone files have none. A file is read at most once: what was found
/// is kept, what was not found is not. A failed allocation throws std::bad_alloc and keeps nothing.
[[nodiscard]] const Zone* namedZone(std::string_view identifier);

/// The folder of the machine's zone files.
[[nodiscard]] std::string zoneFolder();

/// UTC, without any file.
[[nodiscard]] const Zone& utcZone();

/// The machine's zone, found on the first call.
[[nodiscard]] const Zone& systemZone();

/// Finds the machine's zone anew: by the TZ variable's text (null when unset), else by the link. What is neither a name
/// nor a link to a named zone is left to the C library's own reading of TZ and /etc/localtime, but for what is no
/// regular file: that is UTC.
[[nodiscard]] std::shared_ptr<const Zone> findSystemZone(const char* variable, const std::filesystem::path& link);

}  // namespace kzm::port

#endif
