#include "machine/processor.h"

#include <array>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/scratch_directory.h"

namespace kzm::machine {
namespace {

TEST(Processor, CountsEveryTickOnceAndWaitingAsIdle) {
  const tests::ScratchDirectory scratch;
  scratch.write("proc/stat",
                "cpu  1 2 3 40 50 6 7 8 900 900\n"
                "cpu0 1 1 1 1\n"
                "cpu1 1 1 1\n"
                "cpu2 1 x 1 1 1\n"
                "cpu3 1 1 1 18446744073709551615 1\n"
                "cpu4 1 1 1 281474976710657 1\n"
                "cpu5 1 1 1 281474976710656 1\n"
                "intr 1 2 3 4 5 6\n");
  const std::vector<ProcessorTime> times = readProcessor(Root(scratch.path("")));
  ASSERT_EQ(times.size(), 3U);
  EXPECT_EQ(times[0].name, "cpu");
  EXPECT_EQ(times[0].idle, 90U);
  EXPECT_EQ(times[0].total, 117U);
  EXPECT_EQ(times[1].name, "cpu0");
  EXPECT_EQ(times[1].total, 4U);
  EXPECT_EQ(times[2].name, "cpu5");
  EXPECT_EQ(times[2].idle, 281474976710657U) << "the most that is believed";
}

TEST(Processor, LoadIsTheBusyPartOfTheTimeBetween) {
  struct Case {
    const char* why;
    ProcessorTime earlier;
    ProcessorTime later;
    std::optional<double> busy;
  };
  const Case kCases[] = {
      {"a quarter", {"cpu", 100, 200}, {"cpu", 175, 300}, 0.25},
      {"idle", {"cpu", 100, 200}, {"cpu", 200, 300}, 0.0},
      {"busy", {"cpu", 100, 200}, {"cpu", 100, 300}, 1.0},
      {"idle time stepped back", {"cpu", 100, 200}, {"cpu", 90, 300}, 1.0},
      {"more idle than time", {"cpu", 100, 200}, {"cpu", 250, 300}, 0.0},
      {"no time passed", {"cpu", 100, 200}, {"cpu", 100, 200}, {}},
      {"a reset", {"cpu", 100, 200}, {"cpu", 10, 20}, {}},
      {"it just came", {"cpu1", 1, 2}, {"cpu", 100, 200}, {}},
  };
  for (const Case& row : kCases) {
    const std::vector<ProcessorLoad> loads = loadBetween({row.earlier}, {row.later});
    ASSERT_EQ(loads.size(), 1U) << row.why;
    EXPECT_EQ(loads[0].busy, row.busy) << row.why;
  }
  EXPECT_TRUE(loadBetween({{"cpu", 1, 2}}, {}).empty());
}

TEST(Processor, LoadAveragesAreThreeNumbersOrNothing) {
  using Averages = std::array<double, 3>;
  struct Case {
    const char* text;
    std::optional<Averages> averages;
  };
  const Case kCases[] = {
      {"0.25 1.50 12.00 1/200 4242\n", Averages{0.25, 1.5, 12}},
      {"0.25 1.50\n", {}},
      {"0.25 x 12.00", {}},
      {"0.25 -1 12.00", {}},
      {"0.00 0.00 0.00", Averages{0, 0, 0}},
      {"1 2 3", Averages{1, 2, 3}},
      {"nan inf 1", {}},
      {"", {}},
  };
  for (const Case& row : kCases) {
    const tests::ScratchDirectory scratch;
    scratch.write("proc/loadavg", row.text);
    EXPECT_EQ(readLoadAverages(Root(scratch.path(""))), row.averages) << row.text;
  }
}

}  // namespace
}  // namespace kzm::machine
