#include "port/time_zone.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace kzm::port {
namespace {

TEST(NamedZone, InstantsOfSkippedAndRepeatedLocalTimes) {
  struct Case {
    const char* why;
    const char* zone;
    std::int64_t local;
    LocalTimeInstants instants;
  };
  const Case cases[] = {
      {"ordinary", "America/New_York", 1700000000, {1700018000, 1700018000, 1700018000}},
      {"2017-03-12 02:30 is skipped", "America/New_York", 1489285800, {1489303800, 1489302000, 1489300200}},
      {"2017-11-05 01:30 is twice", "America/New_York", 1509845400, {1509859800, 1509861600, 1509863400}},
  };
  for (const Case& c : cases) {
    const LocalTimeInstants found = namedZone(c.zone)->instants(c.local);
    EXPECT_EQ(found.before, c.instants.before) << c.why;
    EXPECT_EQ(found.change, c.instants.change) << c.why;
    EXPECT_EQ(found.after, c.instants.after) << c.why;
  }
}

}  // namespace
}  // namespace kzm::port
