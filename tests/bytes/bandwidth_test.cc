#include "tests/bytes/rows.h"
#include "tests/support/runs.h"

namespace kzm::bytes {
namespace {

const Dictionary kEarly{{"early-upgrade", true}};

Dictionary code(Value code) { return {{"bandwidthformat", std::move(code)}}; }

Dictionary reversed(Value code) { return {{"bandwidthformat", std::move(code)}, {"reverse-type", true}}; }

constexpr FamilyCalls kBandwidth{KZMUtilitiesBandwidthData, KZMUtilitiesFormatBandwidth,
                                 KZMUtilitiesFormatBandwidthWithAttributes};

TEST(Bandwidth, ThresholdsAreReachedNotPassed) {
  const DataRow rows[] = {
      {"below mega", {}, 0x1.fffffffffffffp19, "%@KB/s", 0x1.fffffffffffffp9},
      {"a byte below mega", {}, 1048575.0, "%@KB/s", 1023.9990234375},
      {"mega", {}, 1048576.0, "%@MB/s", 1.0},
      {"above mega", {}, 0x1.0000000000001p20, "%@MB/s", 0x1.0000000000001p0},
      {"below giga", {}, 0x1.fffffffffffffp29, "%@MB/s", 0x1.fffffffffffffp9},
      {"a byte below giga", {}, 1073741823.0, "%@MB/s", 1023.9999990463257},
      {"giga", {}, 1073741824.0, "%@GB/s", 1.0},
      {"above giga", {}, 0x1.0000000000001p30, "%@GB/s", 0x1.0000000000001p0},
      {"early: below mega", kEarly, 0x1.e847fffffffffp19, "%@KB/s", 0x1.e847fffffffffp9},
      {"early: a byte below mega", kEarly, 999999.0, "%@KB/s", 976.5615234375},
      {"early: above mega", kEarly, 0x1.e848000000001p19, "%@MB/s", 0x1.e848000000001p-1},
      {"early: below giga", kEarly, 0x1.dcd64ffffffffp29, "%@MB/s", 0x1.dcd64ffffffffp9},
      {"early: a byte below giga", kEarly, 999999999.0, "%@MB/s", 953.6743154525757},
      {"early: above giga", kEarly, 0x1.dcd6500000001p29, "%@GB/s", 0x1.dcd6500000001p-1},
  };
  kBandwidth.expectAll(rows);
}

TEST(Bandwidth, AnEarlyUpgradeMovesTheThresholdsButNotTheFactors) {
  // clang-format off
  const DataRow rows[] = {
      {"mega",                       kEarly,                             1000000.0,    "%@MB/s", 0.95367431640625},
      {"giga",                       kEarly,                             1000000000.0, "%@GB/s", 0.9313225746154785},
      {"bits: mega",                 with(kEarly, "bandwidthformat", 2), 125000.0,     "%@Mb/s", 0.95367431640625},
      {"bits: giga",                 with(kEarly, "bandwidthformat", 3), 125000000.0,  "%@Gb/s", 0.9313225746154785},
      {"no kilo level: giga",        with(kEarly, "bandwidthformat", 1), 1000000000.0, "%@GB/s", 0.9313225746154785},
      {"no kilo level: always mega", with(kEarly, "bandwidthformat", 1), 1024.0,       "%@MB/s", 0.0009765625},
      {"false is no early upgrade",  {{"early-upgrade", false}},         1000000.0,    "%@KB/s", 976.5625},
      {"\"no\" neither",             {{"early-upgrade", "no"}},          1000000.0,    "%@KB/s", 976.5625},
      {"null neither",               {{"early-upgrade", nullptr}},       1000000.0,    "%@KB/s", 976.5625},
      {"\"yes\" is one",             {{"early-upgrade", "yes"}},         1000000.0,    "%@MB/s", 0.95367431640625},
      {"any number is one",          {{"early-upgrade", -3}},            1000000.0,    "%@MB/s", 0.95367431640625},
  };
  // clang-format on
  kBandwidth.expectAll(rows);
}

TEST(Bandwidth, FormatCodes) {
  // clang-format off
  const DataRow rows[] = {
      {"0: bytes",                 code(0),          2048.0,       "%@KB/s", 2.0},
      {"1: bytes from mega up",    code(1),          500.0,        "%@MB/s", 0.000476837158203125},
      {"1: mega",                  code(1),          1048576.0,    "%@MB/s", 1.0},
      {"1: giga",                  code(1),          2147483648.0, "%@GB/s", 2.0},
      {"2: bits",                  code(2),          256.0,        "%@Kb/s", 2.0},
      {"2: bits, just below mega", code(2),          131071.0,     "%@Kb/s", 1023.9921875},
      {"2: bits, mega",            code(2),          131072.0,     "%@Mb/s", 1.0},
      {"2: bits, giga",            code(2),          134217728.0,  "%@Gb/s", 1.0},
      {"3: bits from mega up",     code(3),          128.0,        "%@Mb/s", 0.0009765625},
      {"3: giga",                  code(3),          134217728.0,  "%@Gb/s", 1.0},
      {"4 is as 0",                code(4),          2048.0,       "%@KB/s", 2.0},
      {"5 is as 0",                code(5),          2048.0,       "%@KB/s", 2.0},
      {"-1 is as 0",               code(-1),         2048.0,       "%@KB/s", 2.0},
      {"-2 is as 0",               code(-2),         2048.0,       "%@KB/s", 2.0},
      {"the largest is as 0",      code(kMost),      2048.0,       "%@KB/s", 2.0},
      {"the least is as 0",        code(kLeast),     2048.0,       "%@KB/s", 2.0},
      {"2^32 + 2 is not 2",        code(4294967298), 2048.0,       "%@KB/s", 2.0},
      {"2.9 is truncated",         code(2.9),        256.0,        "%@Kb/s", 2.0},
      {"\"2\" is read",            code("2"),        256.0,        "%@Kb/s", 2.0},
      {"true is 1",                code(true),       1048576.0,    "%@MB/s", 1.0},
      {"a word is 0",              code("bits"),     2048.0,       "%@KB/s", 2.0},
      {"an array is 0",            code(Array{2}),   2048.0,       "%@KB/s", 2.0},
  };
  // clang-format on
  kBandwidth.expectAll(rows);
}

TEST(Bandwidth, TheReversedFormatIsOneWay) {
  // clang-format off
  const DataRow rows[] = {
      {"0 turns into bits",        reversed(0),                 256.0,  "%@Kb/s", 2.0},
      {"1 turns into bits too",    reversed(1),                 128.0,  "%@Mb/s", 0.0009765625},
      {"2 turns into bytes",       reversed(2),                 2048.0, "%@KB/s", 2.0},
      {"3 stays 3",                reversed(3),                 128.0,  "%@Mb/s", 0.0009765625},
      {"4 turns into 3",           reversed(4),                 128.0,  "%@Mb/s", 0.0009765625},
      {"9 turns into 3",           reversed(9),                 128.0,  "%@Mb/s", 0.0009765625},
      {"-1 turns into 3",          reversed(-1),                128.0,  "%@Mb/s", 0.0009765625},
      {"no code is 0",             {{"reverse-type", true}},    256.0,  "%@Kb/s", 2.0},
      {"present is enough: false", {{"reverse-type", false}},   256.0,  "%@Kb/s", 2.0},
      {"present is enough: 0",     {{"reverse-type", 0}},       256.0,  "%@Kb/s", 2.0},
      {"present is enough: null",  {{"reverse-type", nullptr}}, 256.0,  "%@Kb/s", 2.0},
  };
  // clang-format on
  kBandwidth.expectAll(rows);
}

TEST(Bandwidth, EveryDoubleHasAnAnswer) {
  // clang-format off
  const DataRow rows[] = {
      {"zero",                    {},      0.0,           "%@KB/s", 0.0},
      {"zero, bits",              code(2), 0.0,           "%@Kb/s", 0.0},
      {"zero without kilo",       code(1), 0.0,           "%@MB/s", 0.0},
      {"zero bits without kilo",  code(3), 0.0,           "%@Mb/s", 0.0},
      {"minus zero",              {},      -0.0,          "%@KB/s", -0.0},
      {"the smallest",            {},      kSmallest,     "%@KB/s", 0.0},
      {"negative",                {},      -2048.0,       "%@KB/s", -2.0},
      {"large and negative",      {},      -1073741824.0, "%@KB/s", -1048576.0},
      {"negative without kilo",   code(1), -1048576.0,    "%@MB/s", -1.0},
      {"negative bits",           code(2), -256.0,        "%@Kb/s", -2.0},
      {"not a number",            {},      kNaN,          "%@KB/s", kNaN},
      {"not a number, no kilo",   code(3), kNaN,          "%@Mb/s", kNaN},
      {"infinite",                {},      kInfinity,     "%@GB/s", kInfinity},
      {"infinite, no kilo",       code(1), kInfinity,     "%@GB/s", kInfinity},
      {"minus infinite",          {},      -kInfinity,    "%@KB/s", -kInfinity},
      {"minus infinite, no kilo", code(1), -kInfinity,    "%@MB/s", -kInfinity},
      {"the largest",             {},      kLargest,      "%@GB/s", 0x1.fffffffffffffp993},
      {"the largest as bits",     code(2), kLargest,      "%@Gb/s", kInfinity},
  };
  // clang-format on
  kBandwidth.expectAll(rows);
}

void expectBothTexts(const Dictionary& options, double bytesPerSecond, const char* text) {
  EXPECT_EQ(KZMUtilitiesFormatBandwidth(options, bytesPerSecond), text);
  EXPECT_EQ(KZMUtilitiesFormatBandwidthWithAttributes(options, bytesPerSecond).text(), text);
}

// Every unit once: 2 kilo, 3 mega and 4 giga in each of the ten styles.
TEST(Bandwidth, EveryUnitInItsStyle) {
  struct Style {
    std::int64_t size;
    bool space;
    const char *bytes[3], *bits[3];
  };
  // clang-format off
  const Style styles[] = {
      {1, true,  {"2 K", "3 M", "4 G"},          {"2 K", "3 M", "4 G"}},
      {1, false, {"2K", "3M", "4G"},             {"2K", "3M", "4G"}},
      {2, true,  {"2 KB", "3 MB", "4 GB"},       {"2 Kb", "3 Mb", "4 Gb"}},
      {2, false, {"2KB", "3MB", "4GB"},          {"2Kb", "3Mb", "4Gb"}},
      {3, true,  {"2 KB/s", "3 MB/s", "4 GB/s"}, {"2 Kb/s", "3 Mb/s", "4 Gb/s"}},
      {3, false, {"2KB/s", "3MB/s", "4GB/s"},    {"2Kb/s", "3Mb/s", "4Gb/s"}},
  };
  // clang-format on
  constexpr double kBytes[] = {2048.0, 3145728.0, 4294967296.0};
  constexpr double kAsBits[] = {256.0, 393216.0, 536870912.0};
  for (const Style& style : styles) {
    const Dictionary bytes{{"unitsize", style.size}, {"space", style.space}};
    for (std::size_t level = 0; level < 3; ++level) {
      expectBothTexts(bytes, kBytes[level], style.bytes[level]);
      expectBothTexts(with(bytes, "bandwidthformat", 2), kAsBits[level], style.bits[level]);
    }
  }
}

TEST(Bandwidth, UnitSizes) {
  // clang-format off
  const TextRow rows[] = {
      {"none is 3",                {},                                  2048.0, "2KB/s"},
      {"0 is 3",                   {{"unitsize", 0}},                   2048.0, "2KB/s"},
      {"7 is 3",                   {{"unitsize", 7}},                   2048.0, "2KB/s"},
      {"-1 is 3",                  {{"unitsize", -1}},                  2048.0, "2KB/s"},
      {"4 is 3",                   {{"unitsize", 4}},                   2048.0, "2KB/s"},
      {"2^32 + 1 is not 1",        {{"unitsize", 4294967297}},          2048.0, "2KB/s"},
      {"1.9 is truncated",         {{"unitsize", 1.9}},                 2048.0, "2K"},
      {"\"2\" is read",            {{"unitsize", "2"}},                 2048.0, "2KB"},
      {"a dictionary is 0",        {{"unitsize", Dictionary{}}},        2048.0, "2KB/s"},
      {"short is 1",               {{"short", true}, {"unitsize", 2}},  2048.0, "2K"},
      {"present is enough: false", {{"short", false}, {"unitsize", 2}}, 2048.0, "2K"},
      {"present is enough: 0",     {{"short", 0}},                      2048.0, "2K"},
      {"present is enough: null",  {{"short", nullptr}},                2048.0, "2K"},
      {"short with a space",       {{"short", true}, {"space", true}},  2048.0, "2 K"},
      {"space as \"no\"",          {{"space", "no"}},                   2048.0, "2KB/s"},
      {"space as a text",          {{"space", "true"}},                 2048.0, "2 KB/s"},
      {"space as an array",        {{"space", Array{true}}},            2048.0, "2KB/s"},
      {"space as null",            {{"space", nullptr}},                2048.0, "2KB/s"},
  };
  // clang-format on
  for (const TextRow& row : rows)
    EXPECT_EQ(KZMUtilitiesFormatBandwidth(row.options, row.quantity), row.text) << row.why;
}

TEST(Bandwidth, TheWorkedExample) {
  const Dictionary options{{"bandwidthformat", 2},
                           {"space", true},
                           {"unitsize", 3},
                           {"decimals-mb", Array{rule(10, 2), rule(100, 1)}},
                           {"attributes-main", "bold"},
                           {"attributes-units", "gray"}};
  expectData({"data", {}, 0.0, "%@ Mb/s", 11.444091796875, 1}, KZMUtilitiesBandwidthData(options, 1500000.0));
  EXPECT_EQ(KZMUtilitiesFormatBandwidth(options, 1500000.0), "11.4 Mb/s");
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatBandwidthWithAttributes(options, 1500000.0)),
            (Runs{{"11.4", "bold"}, {" Mb/s", "gray"}}));
}

TEST(Bandwidth, WithoutDecimalsTheAttributedNumberIsNeverGrouped) {
  struct Case {
    const char* why;
    Dictionary options;
    double quantity;
    const char* plain;
    const char* attributed;
  };
  const Dictionary oneDigit{{"decimals-kb", Array{rule(1e9, 1)}}};
  const Dictionary negativeDigits{{"decimals-kb", Array{rule(1e9, -1)}}};
  const Case cases[] = {
      {"rounded up to four digits", {}, 1048166.4, "1,024KB/s", "1024KB/s"},
      {"a negative million", {}, -1073741824.0, "-1,048,576KB/s", "-1048576KB/s"},
      {"halves to even, down", {}, 2560.0, "2KB/s", "2KB/s"},
      {"halves to even, up", {}, 3584.0, "4KB/s", "4KB/s"},
      {"a small negative keeps its sign", {}, -1.0, "-0KB/s", "-0KB/s"},
      {"minus zero", {}, -0.0, "-0KB/s", "-0KB/s"},
      {"not a number", {}, kNaN, "NaNKB/s", "nanKB/s"},
      {"infinite", {}, kInfinity, "∞GB/s", "infGB/s"},
      {"minus infinite", {}, -kInfinity, "-∞KB/s", "-infKB/s"},
      {"negative digits are none", negativeDigits, 1047552.0, "1,023KB/s", "1023KB/s"},
      {"with decimals both are grouped", oneDigit, 1047552.0, "1,023.0KB/s", "1,023.0KB/s"},
      {"and name infinity alike",
       {{"decimals-gb", Array{rule(kInfinity, 1)}}},
       1e30,
       "931,322,574,615,478,500,000.0GB/s",
       "931,322,574,615,478,500,000.0GB/s"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(KZMUtilitiesFormatBandwidth(c.options, c.quantity), c.plain) << c.why;
    EXPECT_EQ(KZMUtilitiesFormatBandwidthWithAttributes(c.options, c.quantity).text(), c.attributed) << c.why;
  }
}

TEST(Bandwidth, AttributesAreHandedThrough) {
  const auto runs = [](const Dictionary& options) {
    return tests::runsOf(KZMUtilitiesFormatBandwidthWithAttributes(options, 2048.0));
  };
  EXPECT_EQ(runs({}), (Runs{{"2KB/s", nullptr}})) << "no attributes, one run";
  EXPECT_EQ(runs({{"attributes-main", "a"}}), (Runs{{"2", "a"}, {"KB/s", nullptr}}));
  EXPECT_EQ(runs({{"attributes-units", "a"}}), (Runs{{"2", nullptr}, {"KB/s", "a"}}));
  EXPECT_EQ(runs({{"attributes-main", "a"}, {"attributes-units", "a"}}), (Runs{{"2KB/s", "a"}})) << "equal, one run";
  EXPECT_EQ(runs({{"attributes-main", false}, {"attributes-units", 0}}), (Runs{{"2", false}, {"KB/s", 0}}))
      << "any set that is not null counts";
}

}  // namespace
}  // namespace kzm::bytes
