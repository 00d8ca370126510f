// How often reading allocates: this program counts every operator new.
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

#include <KZMUtilities/dictionary.h>

#include "settings/store.h"

namespace {

std::atomic<std::size_t> allocations{0};

}  // namespace

void* operator new(std::size_t size) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* room = std::malloc(size > 0 ? size : 1)) return room;
  throw std::bad_alloc();
}
void operator delete(void* room) noexcept { std::free(room); }
void operator delete(void* room, std::size_t) noexcept { std::free(room); }

namespace kzm::settings {
namespace {

TEST(Allocation, ReadingAbsentSettingsAndNumbersAllocatesNothing) {
  Store store("");
  store.useObjects({
      {"Weather.Global.Units.Pressure", 2       },
      {"Sensors.Global.Degrees.Format", 1.0     },
      {"list",                          Array{1}}
  });
  EXPECT_EQ(store.find("Weather.Global.Units.Pressure"), Value(2));
  const std::size_t before = allocations;
  for (int i = 0; i < 100; ++i) {
    EXPECT_NE(store.find("Weather.Global.Units.Pressure").integer(), nullptr);
    EXPECT_NE(store.find("Sensors.Global.Degrees.Format").real(), nullptr);
    EXPECT_NE(store.find("list").array(), nullptr);
    EXPECT_TRUE(store.find("Weather.Global.Units.WindSpeed").isNull());
  }
  EXPECT_EQ(allocations - before, 0U);
}

}  // namespace
}  // namespace kzm::settings
