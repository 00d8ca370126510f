// Zones and clocks for the tests of dates.
#ifndef KZM_TESTS_CLOCK_ZONES_H
#define KZM_TESTS_CLOCK_ZONES_H

#include <stdexcept>
#include <string>

#include <KZMUtilities/dates.h>

#include "port/now.h"

namespace kzm {

inline TimeZone zone(const char* name) {
  const std::optional<TimeZone> found = TimeZone::named(name);
  if (!found.has_value()) throw std::runtime_error(std::string("no zone file for ") + name);
  return *found;
}

/// The default zone until the end of the block.
class WithDefaultZone {
 public:
  explicit WithDefaultZone(const char* name) { TimeZone::setDefaultZone(zone(name)); }
  ~WithDefaultZone() { TimeZone::setDefaultZone(former_); }
  WithDefaultZone(const WithDefaultZone&) = delete;
  WithDefaultZone& operator=(const WithDefaultZone&) = delete;

 private:
  TimeZone former_ = TimeZone::defaultZone();
};

/// A clock that is held until the end of the block. Only one at a time.
class WithNow {
 public:
  explicit WithNow(double now) {
    value_ = now;
    port::replaceNow([] { return value_; });
  }
  ~WithNow() { port::replaceNow(nullptr); }
  WithNow(const WithNow&) = delete;
  WithNow& operator=(const WithNow&) = delete;

 private:
  static inline double value_ = 0;
};

}  // namespace kzm

#endif
