// How often reading allocates.
#include <cstddef>
#include <gtest/gtest.h>

#include <KZMUtilities/dictionary.h>

#include "settings/store.h"
#include "tests/support/allocations.h"

namespace kzm::settings {
namespace {

TEST(Allocation, ReadingAbsentSettingsAndNumbersAllocatesNothing) {
  Store store("");
  store.useObjects({{"Weather.Global.Units.Pressure", 2}, {"Sensors.Global.Degrees.Format", 1.0}, {"list", Array{1}}});
  EXPECT_EQ(store.find("Weather.Global.Units.Pressure"), Value(2));
  const std::size_t before = tests::allocations();
  for (int i = 0; i < 100; ++i) {
    EXPECT_NE(store.find("Weather.Global.Units.Pressure").integer(), nullptr);
    EXPECT_NE(store.find("Sensors.Global.Degrees.Format").real(), nullptr);
    EXPECT_NE(store.find("list").array(), nullptr);
    EXPECT_TRUE(store.find("Weather.Global.Units.WindSpeed").isNull());
  }
  EXPECT_EQ(tests::allocations() - before, 0U);
}

}  // namespace
}  // namespace kzm::settings
