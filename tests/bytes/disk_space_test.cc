#include "tests/bytes/rows.h"
#include "tests/support/runs.h"

namespace kzm::bytes {
namespace {

constexpr FamilyCalls kSpace{KZMUtilitiesSpaceData, KZMUtilitiesFormatSpace, KZMUtilitiesFormatSpaceWithAttributes};

TEST(DiskSpace, TheFirstThreeThresholdsAreReachedTheFourthIsNot) {
  const DataRow rows[] = {
      {"below 10^6", {}, 0x1.e847fffffffffp19, "%@KB", 0x1.f3fffffffffffp9},
      {"10^6 stays kilo", {}, 1000000.0, "%@KB", 1000.0},
      {"above 10^6", {}, 0x1.e848000000001p19, "%@MB", 0x1.0000000000001p0},
      {"a byte more", {}, 1000001.0, "%@MB", 1.000001},
      {"below 10^9", {}, 0x1.dcd64ffffffffp29, "%@MB", 0x1.f3fffffffffffp9},
      {"10^9 stays mega", {}, 1000000000.0, "%@MB", 1000.0},
      {"above 10^9", {}, 0x1.dcd6500000001p29, "%@GB", 0x1.0000000000001p0},
      {"a kilobyte more", {}, 1000001000.0, "%@GB", 1.000001},
      {"below 10^12", {}, 0x1.d1a94a1ffffffp39, "%@GB", 0x1.f3fffffffffffp9},
      {"10^12 stays giga", {}, 1000000000000.0, "%@GB", 1000.0},
      {"above 10^12", {}, 0x1.d1a94a2000001p39, "%@TB", 0x1.0000000000001p0},
      {"a kilobyte more still", {}, 1000000001000.0, "%@TB", 1.000000001},
      {"below 10^15", {}, 0x1.c6bf52633ffffp49, "%@TB", 0x1.f3fffffffffffp9},
      {"a megabyte below 10^15", {}, 999999999999000.0, "%@TB", 999.999999999},
      {"10^15 is peta", {}, 1000000000000000.0, "%@PB", 1.000000004096},
      {"above 10^15", {}, 0x1.c6bf526340001p49, "%@PB", 0x1.0000001197999p0},
  };
  kSpace.expectAll(rows);
}

TEST(DiskSpace, ThePetaDivisorIsInSinglePrecision) {
  const DataRow rows[] = {
      {"one", {}, 1e15, "%@PB", 1.000000004096},
      {"two", {}, 2e15, "%@PB", 2.000000008192},
      {"the divisor", {}, 999999995904000.0, "%@TB", 999.999995904},
      {"a thousandfold", {}, 999999995904000000.0, "%@PB", 1000.0},
  };
  kSpace.expectAll(rows);
}

TEST(DiskSpace, EveryDoubleHasAnAnswer) {
  // clang-format off
  const DataRow rows[] = {
      {"zero",               {},                        0.0,        "%@KB", 0.0},
      {"minus zero",         {},                        -0.0,       "%@KB", -0.0},
      {"half a kilobyte",    {},                        500.0,      "%@KB", 0.5},
      {"negative",           {},                        -500000.0,  "%@KB", -500.0},
      {"large and negative", {},                        -1e15,      "%@KB", -1e12},
      {"not a number",       {},                        kNaN,       "%@PB", kNaN},
      {"infinite",           {},                        kInfinity,  "%@PB", kInfinity},
      {"minus infinite",     {},                        -kInfinity, "%@KB", -kInfinity},
      {"no early upgrade",   {{"early-upgrade", true}}, 1e6,        "%@KB", 1000.0},
      {"no format codes",    {{"bandwidthformat", 2}},  1e6,        "%@KB", 1000.0},
  };
  // clang-format on
  kSpace.expectAll(rows);
}

TEST(DiskSpace, EveryUnitInItsStyle) {
  constexpr double kSizes[] = {2e3, 3e6, 4e9, 5e12, 6e15};
  const StyleRow styles[] = {
      {"brief", {{"short", true}}, {"2K", "3M", "4G", "5T", "6P"}},
      {"spaced", {{"space", true}}, {"2 KB", "3 MB", "4 GB", "5 TB", "6 PB"}},
      {"tight", {}, {"2KB", "3MB", "4GB", "5TB", "6PB"}},
      {"short wins over space", {{"short", true}, {"space", true}}, {"2K", "3M", "4G", "5T", "6P"}},
      {"short present and false", {{"short", false}, {"space", true}}, {"2 KB", "3 MB", "4 GB", "5 TB", "6 PB"}},
      {"both false", {{"short", 0}, {"space", "no"}}, {"2KB", "3MB", "4GB", "5TB", "6PB"}},
      {"mistyped", {{"short", Array{1}}, {"space", Dictionary{{"a", 1}}}}, {"2KB", "3MB", "4GB", "5TB", "6PB"}},
      {"no unit sizes", {{"unitsize", 1}}, {"2KB", "3MB", "4GB", "5TB", "6PB"}},
  };
  kSpace.expectAll(styles, kSizes);
}

TEST(DiskSpace, ZerosAtTheEndAreDropped) {
  const Dictionary twoDigits{{"decimals-kb", Array{rule(10000, 2)}}, {"decimals-mb", Array{rule(10000, 2)}}};
  const TextRow rows[] = {
      {"one digit left", twoDigits, 1500000.0, "1.5MB"},
      {"two digits needed", twoDigits, 1250000.0, "1.25MB"},
      {"rounded", twoDigits, 1255000.0, "1.26MB"},
      {"half to even", twoDigits, 1245000.0, "1.24MB"},
      {"none left", twoDigits, 2000000.0, "2MB"},
      {"grouped", twoDigits, 1000000.0, "1,000KB"},
      {"minus zero", twoDigits, -0.0, "-0KB"},
      {"not a number", {}, kNaN, "NaNPB"},
      {"infinite", {}, kInfinity, "∞PB"},
      {"minus infinite", {}, -kInfinity, "-∞KB"},
  };
  kSpace.expectAll(rows);
}

TEST(DiskSpace, TheNumberIsMainAndTheUnitIsUnit) {
  const Dictionary options{{"space", true}, {"attributes-main", "bold"}, {"attributes-units", "gray"}};
  EXPECT_EQ(KZMUtilitiesFormatSpace(options, 250000000000.0), "250 GB");
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatSpaceWithAttributes(options, 250000000000.0)),
            (Runs{{"250", "bold"}, {" GB", "gray"}}));
}

}  // namespace
}  // namespace kzm::bytes
