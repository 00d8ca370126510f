// Compares every date operation with the C library on random instants and zones from 1900 to 2100.
//
// KZM_COMPARISONS in the environment says on how many instants; without it on 20,000, and on the changes of one zone in
// six only. This program changes TZ all the time, so nothing else may run in it.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <KZMUtilities/dates.h>

#include "tests/clock/zones.h"
#include "tests/support/sweeps.h"

namespace kzm {
namespace {

constexpr const char* kSystemZone = "America/New_York";
constexpr std::int64_t kHour = 3600;
constexpr std::int64_t kDay = 86400;
constexpr std::int64_t kTenMinutes = 600;

std::optional<std::int64_t> wantedCount() {
  const char* wanted = std::getenv("KZM_COMPARISONS");  // NOLINT(concurrency-mt-unsafe): no other thread runs here
  return wanted != nullptr ? std::optional(std::strtoll(wanted, nullptr, 10)) : std::nullopt;
}

void useZone(const char* name) {
  // NOLINTBEGIN(concurrency-mt-unsafe): no other thread runs here
  setenv("TZ", name, 1);
  tzset();
  // NOLINTEND(concurrency-mt-unsafe)
}

std::int64_t offsetAt(std::int64_t t) {
  const std::time_t time = t;
  std::tm fields{};
  localtime_r(&time, &fields);
  return fields.tm_gmtoff;
}

std::tm wallAt(std::int64_t t) {
  const std::time_t time = t;
  std::tm fields{};
  localtime_r(&time, &fields);
  return fields;
}

enum class Want { first, second, dayStart };

// The first instant from which on the clock has passed the local time.
std::int64_t passing(std::int64_t local) {
  std::int64_t low = local - 2 * kDay;
  std::int64_t high = local + 2 * kDay;
  while (high - low > 1) {
    const std::int64_t middle = low + (high - low) / 2;
    (middle + offsetAt(middle) < local ? low : high) = middle;
  }
  return high;
}

// Tries every offset that is in force within two days.
std::int64_t instantOf(std::tm wall, Want want) {
  wall.tm_isdst = 0;
  const std::int64_t local = timegm(&wall);
  std::set<std::int64_t> found;
  for (std::int64_t near = local - 2 * kDay; near <= local + 2 * kDay; near += 4 * kHour) {
    const std::int64_t candidate = local - offsetAt(near);
    if (candidate + offsetAt(candidate) == local) found.insert(candidate);
  }
  if (!found.empty()) return want == Want::second ? *found.rbegin() : *found.begin();
  const std::int64_t change = passing(local);
  return want == Want::dayStart ? change : local - offsetAt(change - 1);
}

std::tm midnight(std::tm wall) {
  wall.tm_hour = wall.tm_min = wall.tm_sec = 0;
  return wall;
}

int monthLength(int year, int month) {
  std::tm last{};
  last.tm_year = year;
  last.tm_mon = month + 1;
  last.tm_mday = 0;
  timegm(&last);
  return last.tm_mday;
}

std::int64_t afterDays(std::int64_t t, int days) {
  std::tm wall = wallAt(t);
  wall.tm_mday += days;
  return instantOf(wall, days > 0 ? Want::first : Want::second);
}

std::int64_t afterMonths(std::int64_t t, int months) {
  std::tm wall = wallAt(t);
  const int count = wall.tm_year * 12 + wall.tm_mon + months;
  wall.tm_year = count / 12;
  wall.tm_mon = count % 12;
  wall.tm_mday = std::min(wall.tm_mday, monthLength(wall.tm_year, wall.tm_mon));
  return instantOf(wall, months > 0 ? Want::first : Want::second);
}

std::vector<std::string> zoneNames() {
  std::ifstream table("/usr/share/zoneinfo/zone1970.tab");
  std::vector<std::string> names;
  for (std::string line; std::getline(table, line);) {
    if (line.empty() || line.front() == '#') continue;
    std::istringstream columns(line);
    std::string code;
    std::string place;
    std::string name;
    columns >> code >> place >> name;
    names.push_back(name);
  }
  return names;
}

void compare(const std::string& name, std::int64_t t, std::int64_t systemOffset, int days, int months) {
  const TimeZone here = zone(name.c_str());
  TimeZone::setDefaultZone(here);
  const auto p = static_cast<double>(t) + 0.25;
  const std::int64_t offset = offsetAt(t);
  const std::tm wall = wallAt(t);
  const auto check = [&](const char* what, TimePoint got, std::int64_t expected, double fraction) {
    if (got == static_cast<double>(expected) + fraction) return;
    ADD_FAILURE() << what << " of " << t << " in " << name << " with " << days << " days, " << months
                  << " months: " << std::fixed << got.value_or(0) << ", expected " << expected;
  };
  const std::int64_t start = instantOf(midnight(wall), Want::dayStart);
  check("dayStart", dayStart(p), start, 0);
  check("dayStartWithTimezone:", dayStartWithTimezone(p, here), start, 0);
  const std::int64_t later = days == 0 ? t : afterDays(t, days);
  check("addDays:timezone:", addDaysTimezone(p, days, here), later, 0.25);
  check("addDays:", addDays(p, days), later, 0.25);
  check("addHours:", addHours(p, days), t + days * kHour, 0.25);
  check("addMonths:", addMonths(p, months), months == 0 ? t : afterMonths(t, months), 0.25);
  check("corrected", corrected(p), t + offset, 0.25);
  check("utcStart", utcStart(p), (t + offset) - ((t + offset) % kDay + kDay) % kDay, 0);
  check("converFromTimezoneToUTC:", converFromTimezoneToUTC(p, here), t - offset, 0.25);
  check("converToTimezone:", converToTimezone(p, here), t - systemOffset + offset, 0.25);
  check("converFromTimezone:", converFromTimezone(p, here), t - offset + systemOffset, 0.25);
  const DateComponents c = components(p, 28 + 32 + 64 + 128 + 512).value_or(DateComponents{});
  const std::int64_t fields[] = {wall.tm_year + 1900, wall.tm_mon + 1, wall.tm_mday,    wall.tm_hour,
                                 wall.tm_min,         wall.tm_sec,     wall.tm_wday + 1};
  for (std::size_t i = 0; i < std::size(fields); ++i) {
    EXPECT_EQ(*c.fields.at(i).value.integer(), fields[i]) << c.fields[i].name << " of " << t << " in " << name;
  }
}

std::vector<std::int64_t> changesFrom1900To2037() {
  std::vector<std::int64_t> changes;
  for (std::int64_t low = -2208988800; low < 2145916800; low += 7 * kDay) {
    std::int64_t before = low;
    std::int64_t after = low + 7 * kDay;
    if (offsetAt(before) == offsetAt(after)) continue;
    while (after - before > 1) {
      const std::int64_t middle = before + (after - before) / 2;
      (offsetAt(middle) == offsetAt(low) ? before : after) = middle;
    }
    changes.push_back(after);
  }
  return changes;
}

void compareAround(const std::string& name, std::int64_t change) {
  for (const std::int64_t near : {-kDay - kTenMinutes, -kTenMinutes, kTenMinutes, kDay - kTenMinutes}) {
    useZone(kSystemZone);
    const std::int64_t systemOffset = offsetAt(change + near);
    useZone(name.c_str());
    const int forth = near < 0 ? 1 : -1;
    compare(name, change + near, systemOffset, forth, forth);
  }
}

TEST(LibcComparison, EveryOperationAgreesFrom1900To2100) {
  const std::int64_t count = wantedCount().value_or(tests::inSweep(20000, 4000));
  useZone(kSystemZone);
  ASSERT_EQ(TimeZone::systemZone().identifier(), kSystemZone);
  const std::vector<std::string> names = zoneNames();
  ASSERT_GT(names.size(), 300U);
  std::mt19937_64 random(20231114);
  std::uniform_int_distribution<std::size_t> anyZone(0, names.size() - 1);
  std::uniform_int_distribution<std::int64_t> anyInstant(-2208988800, 4102444799);
  std::uniform_int_distribution<int> anyDays(-400, 400);
  std::uniform_int_distribution<int> anyMonths(-60, 60);
  constexpr std::int64_t kBatch = 100;
  for (std::int64_t done = 0; done < count && !testing::Test::HasFailure(); done += kBatch) {
    const std::string& name = names[anyZone(random)];
    std::vector<std::int64_t> instants(kBatch);
    for (std::int64_t& t : instants) t = anyInstant(random);
    useZone(kSystemZone);
    std::vector<std::int64_t> systemOffsets(kBatch);
    std::transform(instants.begin(), instants.end(), systemOffsets.begin(), offsetAt);
    useZone(name.c_str());
    for (std::size_t i = 0; i < instants.size(); ++i) {
      compare(name, instants[i], systemOffsets[i], anyDays(random), anyMonths(random));
    }
  }
}

// Random instants seldom meet a change of offset; here changes are met from both sides.
TEST(LibcComparison, EveryOperationAgreesAroundEveryChange) {
  useZone(kSystemZone);
  ASSERT_EQ(TimeZone::systemZone().identifier(), kSystemZone);
  const std::vector<std::string> names = zoneNames();
  const std::size_t step = wantedCount().has_value() ? 1 : 6;
  std::int64_t changes = 0;
  for (std::size_t i = 0; i < names.size() && !testing::Test::HasFailure(); i += step) {
    useZone(names[i].c_str());
    for (const std::int64_t change : changesFrom1900To2037()) {
      ++changes;
      compareAround(names[i], change);
    }
  }
  EXPECT_GT(changes, 3000);
}

}  // namespace
}  // namespace kzm
