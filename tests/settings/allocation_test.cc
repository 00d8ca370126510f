// How often reading allocates.
#include <cstddef>
#include <gtest/gtest.h>
#include <string>

#include <KZMUtilities/dictionary.h>

#include "settings/store.h"
#include "tests/support/allocations.h"
#include "tests/support/scratch_directory.h"

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

// Reading and writing throw, and the next read and write are right: nothing ends the process.
TEST(Allocation, AFailedOneIsAFailedCallAndNoMore) {
  const tests::ScratchDirectory scratch;
  const std::string path = scratch.write("settings.json", R"({"a": {"b": [1, {"c": "text that is long enough"}]}})");
  const Value kNew = Array{Dictionary{{"a key that is long enough", "text that is long enough"}}, 2.5};
  std::size_t number = 1;
  for (bool failed = true; failed; ++number) {
    Store store(path, 0);
    failed = tests::callWithFailure(tests::Heap::own, number, [&] { static_cast<void>(store.find("a")); });
    ASSERT_NE(store.find("a").dictionary(), nullptr) << "reading, allocation " << number;
  }
  EXPECT_GT(number, 20U);
  number = 1;
  for (bool failed = true; failed; ++number) {
    Store store(path, 0);
    ASSERT_TRUE(store.set(1, "new"));
    failed = tests::callWithFailure(tests::Heap::own, number, [&] { static_cast<void>(store.set(kNew, "new")); });
    ASSERT_NE(store.find("a").dictionary(), nullptr) << "writing, allocation " << number;
    ASSERT_EQ(store.find("new"), Store(path).find("new")) << "as the file has it, allocation " << number;
    ASSERT_TRUE(store.set(kNew, "new"));
    ASSERT_EQ(store.find("new"), kNew);
  }
  EXPECT_GT(number, 20U);
}

}  // namespace
}  // namespace kzm::settings
