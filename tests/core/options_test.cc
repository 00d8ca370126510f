#include <gtest/gtest.h>

#include <KZMUtilities/options.h>

namespace kzm {
namespace {

TEST(Options, AreADictionary) {
  const Options options{{"space", true}, {"decimals", 2}, {"attributes-main", "bold"}};
  const Dictionary expected{{"space", true}, {"decimals", 2}, {"attributes-main", "bold"}};
  EXPECT_EQ(static_cast<const Dictionary&>(options), expected);
  EXPECT_EQ(Options(), Dictionary());
}

TEST(Options, TakeValuesThatAreKnownLater) {
  Options options;
  for (const bool isOn : {false, true}) {
    options.set("short", isOn);
    EXPECT_EQ(*options.find("short"), Value(isOn));
  }
  EXPECT_EQ(options.size(), 1U);
}

TEST(Options, HoldRules) {
  const Array rules = decimalsRules({{10.0, 2}, {100.0, 1}});
  const Array expected{Dictionary{{"value", 10.0}, {"decimals", 2}}, Dictionary{{"value", 100.0}, {"decimals", 1}}};
  EXPECT_EQ(rules, expected);
  EXPECT_TRUE(decimalsRules({}).empty());
}

}  // namespace
}  // namespace kzm
