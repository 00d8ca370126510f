#include <atomic>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include <KZMUtilities/dates.h>

#include "tests/clock/zones.h"

namespace kzm {
namespace {

TEST(TimeZone, OffsetsAreThoseOfTheSystemsZoneFiles) {
  struct Case {
    const char* zone;
    double t;
    std::int64_t offset;
  };
  const Case cases[] = {
      {"UTC", 1700000000, 0},
      {"GMT", 1700000000, 0},
      {"Europe/Paris", 1688212800, 7200},
      {"Europe/Paris", 1672531200, 3600},
      {"Asia/Kathmandu", 1688212800, 20700},
      {"Australia/Lord_Howe", 1672531200, 39600},
      {"Australia/Lord_Howe", 1688212800, 37800},
      {"America/Mexico_City", 1688212800, -21600},
      {"Africa/Cairo", 1688212800, 10800},
      {"Africa/Monrovia", 63593069.9, -2670},
      {"Africa/Monrovia", 63593070, 0},
      {"Asia/Kolkata", -3786825600, 21208},
      {"America/New_York", 1509861599.999, -14400},
      {"America/New_York", 1509861600, -18000},
      {"America/New_York", 32519361600, -14400},
      {"America/New_York", 9404934148800, -14400},
      {"Pacific/Apia", 1325239199, -36000},
      {"Pacific/Apia", 1325239200, 50400},
      {"Etc/GMT+5", 0, -18000},
  };
  for (const Case& c : cases) EXPECT_EQ(zone(c.zone).offsetFromGMT(c.t), c.offset) << c.zone << " at " << c.t;
}

TEST(TimeZone, AnyNumberHasAnOffset) {
  const TimeZone newYork = zone("America/New_York");
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(newYork.offsetFromGMT(std::nan("")), -18000) << "as in 1970";
  EXPECT_EQ(newYork.offsetFromGMT(-infinity), -17762) << "local mean time";
  EXPECT_EQ(newYork.offsetFromGMT(-1e300), -17762);
  EXPECT_EQ(newYork.offsetFromGMT(infinity), newYork.offsetFromGMT(15928153804800.0));
}

TEST(TimeZone, NamesAreThoseOfZoneFilesOnly) {
  for (const char* name : {"UTC", "GMT", "Europe/Paris", "America/Argentina/Buenos_Aires", "Etc/GMT-14"}) {
    const std::optional<TimeZone> found = TimeZone::named(name);
    ASSERT_TRUE(found.has_value()) << name;
    EXPECT_EQ(found->identifier(), name);
  }
  using namespace std::string_view_literals;
  const std::string_view unknown[] = {"",
                                      "europe/paris",
                                      "utc",
                                      "Mars/Olympus",
                                      "Europe",
                                      "Europe/",
                                      "Europe//Paris",
                                      "/Europe/Paris",
                                      "./Europe/Paris",
                                      "../zoneinfo/Europe/Paris",
                                      "Europe/../Europe/Paris",
                                      "../../../etc/passwd",
                                      "/etc/localtime",
                                      "/usr/share/zoneinfo/Europe/Paris",
                                      ":Europe/Paris",
                                      "file:Europe/Paris",
                                      "libc:localtime",
                                      "Fixed/UTC+05:30:00",
                                      "CET-1CEST",
                                      "+05:30",
                                      "GMT+5",
                                      "zone.tab",
                                      "localtime",
                                      "posixrules",
                                      "posix/Europe/Paris",
                                      "right/Europe/Paris",
                                      "tzdata.zi",
                                      " Europe/Paris",
                                      "Europe/Paris\n",
                                      "Europe/Paris\0"sv,
                                      "UTC\0"sv,
                                      "\0"sv,
                                      "Zürich",
                                      "\xff"};
  for (const std::string_view name : unknown) EXPECT_FALSE(TimeZone::named(name).has_value()) << name;
  EXPECT_FALSE(TimeZone::named(std::string(100000, 'A')).has_value());
  EXPECT_FALSE(TimeZone::named(std::string(65, 'A')).has_value());
}

TEST(TimeZone, TheSameNameIsTheSameZone) {
  EXPECT_EQ(zone("Europe/Paris"), zone("Europe/Paris"));
  EXPECT_EQ(&clock::zoneOf(zone("Europe/Paris")), &clock::zoneOf(zone("Europe/Paris"))) << "its file is read once";
  EXPECT_EQ(zone("UTC"), TimeZone::utc());
  EXPECT_FALSE(zone("Europe/Paris") == zone("Europe/Berlin"));
}

TEST(TimeZone, TheDefaultZoneIsTheSystemsUntilAnotherIsSet) {
  EXPECT_EQ(TimeZone::defaultZone(), TimeZone::systemZone());
  {
    const WithDefaultZone paris("Europe/Paris");
    EXPECT_EQ(TimeZone::defaultZone().identifier(), "Europe/Paris");
    EXPECT_EQ(TimeZone::systemZone().identifier(), "UTC");
  }
  EXPECT_EQ(TimeZone::defaultZone().identifier(), "UTC");
}

TEST(TimeZone, ManyThreadsLoadAndAskZonesWhileTheDefaultChanges) {
  const WithDefaultZone first("Asia/Tokyo");
  constexpr const char* kNames[] = {"Asia/Tokyo", "Asia/Seoul", "Australia/Perth", "Pacific/Palau", "Nowhere/Land"};
  constexpr std::int64_t kOffsets[] = {32400, 32400, 28800, 32400, 0};
  std::atomic<int> wrong{0};
  const auto work = [&](std::size_t offset) {
    for (std::size_t i = offset; i < offset + 500; ++i) {
      const std::optional<TimeZone> found = TimeZone::named(kNames[i % 5]);
      if (found.has_value() == (i % 5 == 4)) ++wrong;
      if (!found.has_value()) continue;
      if (found->offsetFromGMT(1700000000.0) != kOffsets[i % 5]) ++wrong;
      TimeZone::setDefaultZone(*found);
      const TimePoint start = dayStart(1700000000.0);
      if (start != 1699974000.0 && start != 1699977600.0) ++wrong;
    }
  };
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < 8; ++i) threads.emplace_back(work, i);
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace kzm
