// The decimals rules, which all byte families share.
#include "tests/bytes/rows.h"

namespace kzm::bytes {
namespace {

struct RuleRow {
  const char* why;
  Value rules;
  double kilobytes;
  std::int64_t decimals;
};

// clang-format off
const RuleRow kRules[] = {
    {"no rules", Array{}, 1.5, 0},
    {"the first bound above", Array{rule(10, 2), rule(100, 1)}, 1.5, 2},
    {"the second bound above", Array{rule(10, 2), rule(100, 1)}, 50.0, 1},
    {"none above", Array{rule(10, 2), rule(100, 1)}, 500.0, 0},
    {"equal is not above", Array{rule(10, 2), rule(100, 1)}, 10.0, 1},
    {"equal to the last", Array{rule(10, 2), rule(100, 1)}, 100.0, 0},
    {"one ulp below the bound", Array{rule(10, 2), rule(100, 1)}, 0x1.3ffffffffffffp3, 2},
    {"the order of the rules decides", Array{rule(100, 1), rule(10, 2)}, 1.5, 1},
    {"a negative value", Array{rule(0, 3), rule(10, 2)}, -1.5, 3},
    {"minus zero is not below zero", Array{rule(0, 3), rule(10, 2)}, -0.0, 2},
    {"a bound that is not a number", Array{rule(kNaN, 3), rule(10, 2)}, 1.5, 2},
    {"an infinite bound", Array{rule(kInfinity, 3)}, 1e5 / 1024, 3},
    {"more than any text has", Array{rule(10, kMost)}, 1.5, kMost},
    {"fewer than none", Array{rule(10, -1)}, 1.5, -1},
    {"texts are read", Array{rule("10", "2")}, 1.5, 2},
    {"a bound with a fraction in a text", Array{rule("1.25", 5), rule("1.75", 2)}, 1.5, 2},
    {"decimals are truncated", Array{rule(10, 2.9)}, 1.5, 2},
    {"absent decimals are none", Array{Dictionary{{"value", 10}}}, 1.5, 0},
    {"an absent bound is zero", Array{Dictionary{{"decimals", 4}}, rule(10, 2)}, 1.5, 2},
    {"an absent bound is above what is negative", Array{Dictionary{{"decimals", 4}}}, -1.5, 4},
    {"entries of other kinds are passed over", Array{7, "x", nullptr, Array{}, rule(10, 2)}, 1.5, 2},
    {"not an array: a dictionary", rule(10, 2), 1.5, 0},
    {"not an array: a number", 2, 1.5, 0},
    {"not an array: a text", "10:2", 1.5, 0},
    {"null", nullptr, 1.5, 0},
};
// clang-format on

std::int64_t decimalsOf(const Dictionary& result) { return *result.find("decimals")->integer(); }

TEST(DecimalsRules, TheFirstBoundAboveTheNumberDecides) {
  for (const RuleRow& row : kRules) {
    const Dictionary options{{"decimals-kb", row.rules}};
    EXPECT_EQ(decimalsOf(KZMUtilitiesBandwidthData(options, row.kilobytes * 1024.0)), row.decimals) << row.why;
    EXPECT_EQ(decimalsOf(KZMUtilitiesDiskActivityData(options, row.kilobytes * 1024.0)), row.decimals) << row.why;
    EXPECT_EQ(decimalsOf(KZMUtilitiesMemoryData(options, row.kilobytes * 1024.0)), row.decimals) << row.why;
    EXPECT_EQ(decimalsOf(KZMUtilitiesSpaceData(options, row.kilobytes * 1000.0)), row.decimals) << row.why;
  }
}

TEST(DecimalsRules, NoRuleMatchesWhatIsNotANumber) {
  Dictionary options;
  for (const char* key : {"decimals-kb", "decimals-mb", "decimals-gb", "decimals-tb", "decimals-pb"}) {
    options.set(key, Array{rule(kInfinity, 3)});
  }
  EXPECT_EQ(decimalsOf(KZMUtilitiesBandwidthData(options, kNaN)), 0);
  EXPECT_EQ(decimalsOf(KZMUtilitiesDiskActivityData(options, kNaN)), 0);
  EXPECT_EQ(decimalsOf(KZMUtilitiesSpaceData(options, kNaN)), 0);
  EXPECT_EQ(decimalsOf(KZMUtilitiesMemoryData(options, kNaN)), 0);
  EXPECT_EQ(decimalsOf(KZMUtilitiesMemoryData(options, kInfinity)), 0) << "infinity is not above infinity";
}

TEST(DecimalsRules, OnlyThoseOfTheLevelReachedAreRead) {
  const Dictionary options{{"decimals-kb", Array{rule(10000, 1)}},
                           {"decimals-mb", Array{rule(10000, 2)}},
                           {"decimals-gb", Array{rule(1e9, 3)}},
                           {"decimals-tb", Array{rule(10000, 4)}},
                           {"decimals-pb", Array{rule(10000, 5)}}};
  struct Case {
    double bytes;
    const char *bandwidth, *activity, *space, *memory;
  };
  const Case cases[] = {
      {0x1.8p11, "3.0KB/s", "3.0KB/s", "3.1KB", "3.0KB"},
      {0x1.8p21, "3.00MB/s", "3.00MB/s", "3.15MB", "3.00MB"},
      {0x1.8p31, "3.000GB/s", "3.000GB/s", "3.221GB", "3.000GB"},
      {0x1.8p41, "3,072.000GB/s", "3,072.000GB/s", "3.2985TB", "3.0000TB"},
      {0x1.8p51, "3,145,728.000GB/s", "3,145,728.000GB/s", "3.3777PB", "3.00000PB"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(KZMUtilitiesFormatBandwidth(options, c.bytes), c.bandwidth);
    EXPECT_EQ(KZMUtilitiesFormatDiskActivity(options, c.bytes), c.activity);
    EXPECT_EQ(KZMUtilitiesFormatSpace(options, c.bytes), c.space);
    EXPECT_EQ(KZMUtilitiesFormatMemory(options, c.bytes), c.memory);
  }
  const Dictionary fromMega = with(options, "bandwidthformat", 1);
  EXPECT_EQ(KZMUtilitiesFormatBandwidth(fromMega, 500.0), "0.00MB/s") << "without kilo level the mega rules apply";
}

TEST(DecimalsRules, CountsAreClampedOnlyWhenANumberIsWritten) {
  const auto text = [](std::int64_t decimals) {
    return KZMUtilitiesFormatMemory({{"decimals-kb", Array{rule(10, decimals)}}}, 1536.0);
  };
  EXPECT_EQ(text(-1), "2KB");
  EXPECT_EQ(text(340), "1.5" + std::string(339, '0') + "KB");
  EXPECT_EQ(text(341), "1.5" + std::string(339, '0') + "KB");
  EXPECT_EQ(text(kMost), "1.5" + std::string(339, '0') + "KB");
}

TEST(DecimalsRules, AThousandRulesAreWalked) {
  Array rules;
  for (int i = 0; i < 1000; ++i) rules.push_back(rule(0, 9));
  rules.push_back(rule(2, 1));
  EXPECT_EQ(KZMUtilitiesFormatMemory({{"decimals-kb", rules}}, 1536.0), "1.5KB");
}

}  // namespace
}  // namespace kzm::bytes
