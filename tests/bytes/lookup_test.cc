// What the families ask the localization library for: this program brings its own, which writes down every lookup.
#include "tests/support/lookup.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/bytes.h>
#include <KZMUtilities/resources.h>
#include <KZMUtilities/shared.h>

namespace {

std::vector<kzm::tests::Lookup> lookups;

}  // namespace

std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view table,
                                                const kzm::ResourceBundle* bundle, const char* comment) {
  lookups.emplace_back(key, table, bundle, comment);
  return "<%@ of " + std::string(key) + ">";
}

namespace kzm::bytes {
namespace {

constexpr const char* kNone = nullptr;

struct Row {
  const char* text;
  const char* comment;
};

void expectLookups(std::string_view prefix, std::span<const Row> rows) {
  ASSERT_EQ(lookups.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(lookups[i].key, std::string(prefix) + rows[i].text);
    EXPECT_EQ(lookups[i].table, "KZMUtilities");
    EXPECT_EQ(lookups[i].bundle, bundleWithIdentifier(kBundleIdentifier));
    EXPECT_EQ(lookups[i].comment.has_value(), rows[i].comment != nullptr) << rows[i].text;
    EXPECT_EQ(lookups[i].comment.value_or(""), rows[i].comment != nullptr ? rows[i].comment : "") << rows[i].text;
  }
}

// Every test starts with nothing looked up and nothing cached.
class Lookups : public testing::Test {
 protected:
  Lookups() {
    KZMUtilities::shared().setCache(nullptr);
    lookups.clear();
  }
  [[nodiscard]] static Value cached(std::string_view key) { return KZMUtilities::shared().cache()->find(key); }
};

TEST_F(Lookups, BandwidthUnitsWithoutPerSecondHaveItsHintsAllTheSame) {
  constexpr Row kRows[] = {
      {"%@ G", "gigabyte"},         {"%@ M", "megabyte"},         {"%@ K", "kilobyte"},
      {"%@G", "gigabyte"},          {"%@M", "megabyte"},          {"%@K", "kilobyte"},
      {"%@ Gb", "gigabits/sec"},    {"%@ Mb", "megabits/sec"},    {"%@ Kb", "kilobits/sec"},
      {"%@ GB", "gigabytes/sec"},   {"%@ MB", "megabytes/sec"},   {"%@ KB", "kilobytes/sec"},
      {"%@Gb", "gigabits/sec"},     {"%@Mb", "megabits/sec"},     {"%@Kb", "kilobits/sec"},
      {"%@GB", "gigabytes/sec"},    {"%@MB", "megabytes/sec"},    {"%@KB", "kilobytes/sec"},
      {"%@ Gb/s", "gigabits/sec"},  {"%@ Mb/s", "megabits/sec"},  {"%@ Kb/s", "kilobits/sec"},
      {"%@ GB/s", "gigabytes/sec"}, {"%@ MB/s", "megabytes/sec"}, {"%@ KB/s", "kilobytes/sec"},
      {"%@Gb/s", "gigabits/sec"},   {"%@Mb/s", "megabits/sec"},   {"%@Kb/s", "kilobits/sec"},
      {"%@GB/s", "gigabytes/sec"},  {"%@MB/s", "megabytes/sec"},  {"%@KB/s", "kilobytes/sec"},
  };
  EXPECT_EQ(KZMUtilitiesFormatBandwidth({}, 3145728.0), "<3 of Units.Network.%@MB/s>");
  expectLookups("Units.Network.", kRows);
  EXPECT_NE(cached("Localizations-Units-Network").dictionary(), nullptr);
}

TEST_F(Lookups, ActivityHintsAreLaidOnTheFirstFiveRowsAsTheyCome) {
  constexpr Row kRows[] = {
      {"%@G", "petabyte"}, {"%@M", "terabyte"}, {"%@K", "gigabyte"}, {"%@ GB/s", "megabyte"}, {"%@ MB/s", "kilobyte"},
      {"%@ KB/s", kNone},  {"%@GB/s", kNone},   {"%@MB/s", kNone},   {"%@KB/s", kNone},
  };
  EXPECT_EQ(*KZMUtilitiesDiskActivityData({}, 0.0).find("format"), Value("<%@ of Units.Activity.%@KB/s>"));
  expectLookups("Units.Activity.", kRows);
}

TEST_F(Lookups, ActivityKeysDifferFromItsCacheKey) {
  EXPECT_NE(KZMUtilitiesFormatDiskActivity({}, 0.0), "");
  EXPECT_EQ(cached("Localizations-Units-DiskActivity").dictionary()->size(), 9U);
  EXPECT_TRUE(cached("Localizations-Units-Activity").isNull());
}

constexpr Row kSizeRows[] = {
    {"%@P", "petabyte"}, {"%@T", "terabyte"}, {"%@G", "gigabyte"}, {"%@M", "megabyte"}, {"%@K", "kilobyte"},
    {"%@ PB", kNone},    {"%@ TB", kNone},    {"%@ GB", kNone},    {"%@ MB", kNone},    {"%@ KB", kNone},
    {"%@PB", kNone},     {"%@TB", kNone},     {"%@GB", kNone},     {"%@MB", kNone},     {"%@KB", kNone},
};

TEST_F(Lookups, Space) {
  EXPECT_NE(KZMUtilitiesFormatSpace({}, 0.0), "");
  expectLookups("Units.Space.", kSizeRows);
  EXPECT_EQ(cached("Localizations-Units-Space").dictionary()->size(), 15U);
}

TEST_F(Lookups, Memory) {
  EXPECT_NE(KZMUtilitiesFormatMemory({}, 0.0), "");
  expectLookups("Units.Memory.", kSizeRows);
  EXPECT_EQ(cached("Localizations-Units-Memory").dictionary()->size(), 15U);
}

TEST_F(Lookups, ATableIsBuiltOnceForAllThreeCalls) {
  EXPECT_EQ(KZMUtilitiesMemoryData({}, 0.0).size(), 3U);
  EXPECT_NE(KZMUtilitiesFormatMemory({}, 1e12), "");
  EXPECT_NE(KZMUtilitiesFormatMemoryWithAttributes({}, 1e6).text(), "");
  EXPECT_EQ(lookups.size(), 15U);
}

TEST_F(Lookups, AHiddenRateLooksNothingUp) {
  EXPECT_EQ(KZMUtilitiesFormatDiskActivityWithAttributes({{"hide-bytes", true}}, 1023.0).text(), "-");
  EXPECT_TRUE(lookups.empty());
  EXPECT_EQ(KZMUtilities::shared().cache()->size(), 0U);
}

}  // namespace
}  // namespace kzm::bytes
