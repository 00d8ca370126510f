#include "tests/bytes/rows.h"
#include "tests/support/runs.h"

namespace kzm::bytes {
namespace {

constexpr FamilyCalls kMemory{KZMUtilitiesMemoryData, KZMUtilitiesFormatMemory, KZMUtilitiesFormatMemoryWithAttributes};

TEST(Memory, TheFirstThresholdIsReachedTheOthersAreNot) {
  const DataRow rows[] = {
      {"below 2^20", {}, 0x1.fffffffffffffp19, "%@KB", 0x1.fffffffffffffp9},
      {"2^20 stays kilo", {}, 1048576.0, "%@KB", 1024.0},
      {"above 2^20", {}, 0x1.0000000000001p20, "%@MB", 0x1.0000000000001p0},
      {"a byte more", {}, 1048577.0, "%@MB", 1.0000009536743164},
      {"below 2^30", {}, 0x1.fffffffffffffp29, "%@MB", 0x1.fffffffffffffp9},
      {"a byte below 2^30", {}, 1073741823.0, "%@MB", 1023.9999990463257},
      {"2^30 is giga", {}, 1073741824.0, "%@GB", 1.0},
      {"above 2^30", {}, 0x1.0000000000001p30, "%@GB", 0x1.0000000000001p0},
      {"below 2^40", {}, 0x1.fffffffffffffp39, "%@GB", 0x1.fffffffffffffp9},
      {"2^40 is tera", {}, 1099511627776.0, "%@TB", 1.0},
      {"above 2^40", {}, 0x1.0000000000001p40, "%@TB", 0x1.0000000000001p0},
      {"below 2^50", {}, 0x1.fffffffffffffp49, "%@TB", 0x1.fffffffffffffp9},
      {"2^50 is peta", {}, 1125899906842624.0, "%@PB", 1.0},
      {"above 2^50", {}, 0x1.0000000000001p50, "%@PB", 0x1.0000000000001p0},
      {"nothing above peta", {}, 0x1p60, "%@PB", 1024.0},
  };
  kMemory.expectAll(rows);
}

TEST(Memory, EveryDoubleHasAnAnswer) {
  // clang-format off
  const DataRow rows[] = {
      {"half a kilobyte",    {},                        512.0,         "%@KB", 0.5},
      {"zero",               {},                        0.0,           "%@KB", 0.0},
      {"minus zero",         {},                        -0.0,          "%@KB", -0.0},
      {"negative",           {},                        -2048.0,       "%@KB", -2.0},
      {"large and negative", {},                        -1073741824.0, "%@KB", -1048576.0},
      {"not a number",       {},                        kNaN,          "%@PB", kNaN},
      {"infinite",           {},                        kInfinity,     "%@PB", kInfinity},
      {"minus infinite",     {},                        -kInfinity,    "%@KB", -kInfinity},
      {"no early upgrade",   {{"early-upgrade", true}}, 1000000.0,     "%@KB", 976.5625},
      {"no reversal",        {{"reverse-type", true}},  2048.0,        "%@KB", 2.0},
  };
  // clang-format on
  kMemory.expectAll(rows);
}

TEST(Memory, EveryUnitInItsStyle) {
  constexpr double kSizes[] = {2048.0, 3145728.0, 4294967296.0, 5497558138880.0, 6755399441055744.0};
  // clang-format off
  const StyleRow styles[] = {
      {"brief",                   {{"short", true}},                   {"2K", "3M", "4G", "5T", "6P"}},
      {"spaced",                  {{"space", true}},                   {"2 KB", "3 MB", "4 GB", "5 TB", "6 PB"}},
      {"tight",                   {},                                  {"2KB", "3MB", "4GB", "5TB", "6PB"}},
      {"short wins over space",   {{"short", true}, {"space", true}},  {"2K", "3M", "4G", "5T", "6P"}},
      {"short present and false", {{"short", false}, {"space", true}}, {"2 KB", "3 MB", "4 GB", "5 TB", "6 PB"}},
      {"short present and null",  {{"short", nullptr}},                {"2KB", "3MB", "4GB", "5TB", "6PB"}},
      {"no unit sizes",           {{"unitsize", 1}},                   {"2KB", "3MB", "4GB", "5TB", "6PB"}},
  };
  // clang-format on
  kMemory.expectAll(styles, kSizes);
}

TEST(Memory, TextsInBothRenderings) {
  const Dictionary twoDigits{{"decimals-kb", Array{rule(10000, 2)}}, {"decimals-mb", Array{rule(10000, 2)}}};
  const TextRow rows[] = {
      {"exactly two digits", twoDigits, 1572864.0, "1.50MB"},
      {"zeros stay", twoDigits, 2097152.0, "2.00MB"},
      {"grouped with digits", twoDigits, 1048576.0, "1,024.00KB"},
      {"grouped without digits too", {}, 1048576.0, "1,024KB"},
      {"not a number", {}, kNaN, "NaNPB"},
      {"infinite", {}, kInfinity, "∞PB"},
      {"minus infinite", {}, -kInfinity, "-∞KB"},
      {"minus zero", {}, -0.0, "-0KB"},
  };
  kMemory.expectAll(rows);
}

TEST(Memory, TheNumberIsMainAndTheUnitIsUnit) {
  const Dictionary options{{"space", true}, {"attributes-main", "bold"}, {"attributes-units", "gray"}};
  EXPECT_EQ(KZMUtilitiesFormatMemory(options, 1073741824.0), "1 GB");
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatMemoryWithAttributes(options, 1073741824.0)),
            (Runs{{"1", "bold"}, {" GB", "gray"}}));
}

}  // namespace
}  // namespace kzm::bytes
