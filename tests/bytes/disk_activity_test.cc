#include "tests/bytes/rows.h"
#include "tests/support/runs.h"

namespace kzm::bytes {
namespace {

constexpr FamilyCalls kActivity{KZMUtilitiesDiskActivityData, KZMUtilitiesFormatDiskActivity,
                                KZMUtilitiesFormatDiskActivityWithAttributes};

const Dictionary kEarly{{"early-upgrade", true}};

TEST(DiskActivity, LevelsAndValues) {
  // clang-format off
  const DataRow rows[] = {
      {"below mega",               {},                       0x1.fffffffffffffp19, "%@KB/s", 0x1.fffffffffffffp9},
      {"a byte below mega",        {},                       1048575.0,            "%@KB/s", 1023.9990234375},
      {"mega",                     {},                       1048576.0,            "%@MB/s", 1.0},
      {"above mega",               {},                       0x1.0000000000001p20, "%@MB/s", 0x1.0000000000001p0},
      {"below giga",               {},                       0x1.fffffffffffffp29, "%@MB/s", 0x1.fffffffffffffp9},
      {"a byte below giga",        {},                       1073741823.0,         "%@MB/s", 1023.9999990463257},
      {"giga",                     {},                       1073741824.0,         "%@GB/s", 1.0},
      {"above giga",               {},                       0x1.0000000000001p30, "%@GB/s", 0x1.0000000000001p0},
      {"early: below mega",        kEarly,                   0x1.e847fffffffffp19, "%@KB/s", 0x1.e847fffffffffp9},
      {"early: a byte below mega", kEarly,                   999999.0,             "%@KB/s", 976.5615234375},
      {"early: mega",              kEarly,                   1000000.0,            "%@MB/s", 0.95367431640625},
      {"early: above mega",        kEarly,                   0x1.e848000000001p19, "%@MB/s", 0x1.e848000000001p-1},
      {"early: below giga",        kEarly,                   0x1.dcd64ffffffffp29, "%@MB/s", 0x1.dcd64ffffffffp9},
      {"early: giga",              kEarly,                   1000000000.0,         "%@GB/s", 0.9313225746154785},
      {"early: above giga",        kEarly,                   0x1.dcd6500000001p29, "%@GB/s", 0x1.dcd6500000001p-1},
      {"zero",                     {},                       0.0,                  "%@KB/s", 0.0},
      {"minus zero",               {},                       -0.0,                 "%@KB/s", -0.0},
      {"negative",                 {},                       -2147483648.0,        "%@KB/s", -2097152.0},
      {"not a number",             {},                       kNaN,                 "%@KB/s", kNaN},
      {"infinite",                 {},                       kInfinity,            "%@GB/s", kInfinity},
      {"minus infinite",           {},                       -kInfinity,           "%@KB/s", -kInfinity},
      {"no format codes",          {{"bandwidthformat", 3}}, 2048.0,               "%@KB/s", 2.0},
      {"no reversal",              {{"reverse-type", true}}, 2048.0,               "%@KB/s", 2.0},
      {"no unit sizes",            {{"unitsize", 1}},        2048.0,               "%@KB/s", 2.0},
  };
  // clang-format on
  kActivity.expectAll(rows);
}

TEST(DiskActivity, EveryUnitInItsStyle) {
  const Dictionary brief{{"short", true}};
  const Dictionary spaced{{"space", true}};
  // clang-format off
  const TextRow rows[] = {
      {"kilo brief",              brief,                              2048.0,       "2K"},
      {"mega brief",              brief,                              3145728.0,    "3M"},
      {"giga brief",              brief,                              4294967296.0, "4G"},
      {"kilo spaced",             spaced,                             2048.0,       "2 KB/s"},
      {"mega spaced",             spaced,                             3145728.0,    "3 MB/s"},
      {"giga spaced",             spaced,                             4294967296.0, "4 GB/s"},
      {"kilo tight",              {},                                 2048.0,       "2KB/s"},
      {"mega tight",              {},                                 3145728.0,    "3MB/s"},
      {"giga tight",              {},                                 4294967296.0, "4GB/s"},
      {"short wins over space",   with(brief, "space", true),         2048.0,       "2K"},
      {"short present and false", with(spaced, "short", false),       2048.0,       "2 KB/s"},
      {"short present and null",  with(spaced, "short", nullptr),     2048.0,       "2 KB/s"},
      {"short as an array",       with(spaced, "short", Array{true}), 2048.0,       "2 KB/s"},
      {"short as \"yes\"",        {{"short", "yes"}},                 2048.0,       "2K"},
      {"grouped",                 {},                                 1047552.0,    "1,023KB/s"},
      {"not a number",            {},                                 kNaN,         "NaNKB/s"},
      {"infinite",                {},                                 kInfinity,    "∞GB/s"},
  };
  // clang-format on
  kActivity.expectAll(rows);
}

TEST(DiskActivity, HiddenBytesAreADashInTheAttributedTextAlone) {
  const Dictionary hides{{"hide-bytes", true}, {"attributes-main", "bold"}, {"attributes-units", "gray"}};
  struct Case {
    const char* why;
    Dictionary options;
    double rate;
    Runs runs;
  };
  const Runs dash{{"-", "bold"}};
  // clang-format off
  const Case cases[] = {
      {"just below",       hides,                              1023.9,               dash},
      {"one ulp below",    hides,                              0x1.fffffffffffffp9,  dash},
      {"at the bound",     hides,                              1024.0,               {{"1", "bold"}, {"KB/s", "gray"}}},
      {"one ulp above",    hides,                              0x1.0000000000001p10, {{"1", "bold"}, {"KB/s", "gray"}}},
      {"zero",             hides,                              0.0,                  dash},
      {"negative",         hides,                              -1e9,                 dash},
      {"minus infinite",   hides,                              -kInfinity,           dash},
      {"NaN is not below", hides, kNaN, {{"NaN", "bold"}, {"KB/s", "gray"}}},
      {"infinite",         hides,                              kInfinity,            {{"∞", "bold"}, {"GB/s", "gray"}}},
      {"not asked for",    with(hides, "hide-bytes", false),   512.0,                {{"0", "bold"}, {"KB/s", "gray"}}},
      {"null is no",       with(hides, "hide-bytes", nullptr), 512.0,                {{"0", "bold"}, {"KB/s", "gray"}}},
      {"\"yes\" is yes",   with(hides, "hide-bytes", "yes"),   512.0,                dash},
      {"no attributes",    {{"hide-bytes", true}},             512.0,                {{"-", nullptr}}},
  };
  // clang-format on
  for (const Case& c : cases) {
    EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatDiskActivityWithAttributes(c.options, c.rate)), c.runs) << c.why;
  }
  const Dictionary twoDigits = with(hides, "decimals-kb", Array{rule(1, 2)});
  EXPECT_EQ(KZMUtilitiesFormatDiskActivity(twoDigits, 500.0), "0.49KB/s") << "the plain text hides nothing";
  expectData({"nor does the data", {}, 0.0, "%@KB/s", 0.48828125, 2}, KZMUtilitiesDiskActivityData(twoDigits, 500.0));
}

TEST(DiskActivity, TheAttributedNumberIsThatOfThePlainText) {
  const Dictionary styled{{"attributes-main", "bold"}, {"attributes-units", "gray"}};
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatDiskActivityWithAttributes(styled, 1047552.0)),
            (Runs{{"1,023", "bold"}, {"KB/s", "gray"}}));
}

}  // namespace
}  // namespace kzm::bytes
