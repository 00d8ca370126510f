#include "machine/memory.h"

#include <gtest/gtest.h>
#include <string>

#include "tests/support/scratch_directory.h"

namespace kzm::machine {
namespace {

Memory memoryOf(const std::string& text) {
  const tests::ScratchDirectory scratch;
  scratch.write("proc/meminfo", text);
  return readMemory(Root(scratch.path("")));
}

TEST(Memory, IsReadInBytes) {
  const Memory memory = memoryOf(
      "MemTotal:       16000000 kB\nMemFree:  1 kB\nMemAvailable:    8000000 kB\n"
      "SwapTotal:       2 kB\nSwapFree:        1 kB\n");
  EXPECT_EQ(memory.total, 16384000000U);
  EXPECT_EQ(memory.available, 8192000000U);
  EXPECT_EQ(memory.swapTotal, 2048U);
  EXPECT_EQ(memory.swapFree, 1024U);
}

TEST(Memory, WhatIsMissingOrGarbageIsNotThere) {
  const Memory memory = memoryOf(
      "MemTotal: 99999999999999999999 kB\nMemAvailable:\nSwapTotal: 18446744073709551615\n"
      "SwapFree: x\n\n:::\n");
  EXPECT_FALSE(memory.total || memory.available || memory.swapTotal || memory.swapFree);
}

TEST(Memory, IsAsLargeAsSixtyFourBitsSay) {
  EXPECT_EQ(memoryOf("MemTotal: 18014398509481983 kB\n").total, 18446744073709550592U);
  EXPECT_FALSE(memoryOf("MemTotal: 18014398509481984 kB\n").total.has_value());
}

TEST(Memory, NoPartIsLargerThanTheWhole) {
  const Memory memory = memoryOf("MemTotal: 10 kB\nMemAvailable: 11 kB\nSwapTotal: 0 kB\nSwapFree: 5 kB\n");
  EXPECT_EQ(memory.available, 10240U);
  EXPECT_EQ(memory.swapFree, 0U);
}

}  // namespace
}  // namespace kzm::machine
