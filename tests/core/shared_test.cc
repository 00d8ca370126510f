#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/shared.h>

#include "tests/support/shared_state.h"

namespace kzm {
namespace {

using tests::SharedState;

TEST_F(SharedState, IsOneInstance) { EXPECT_EQ(&KZMUtilities::shared(), &KZMUtilities::shared()); }

TEST_F(SharedState, AFreshInstanceHasAnEmptyCache) {
  const KZMUtilities fresh;
  ASSERT_NE(fresh.cache(), nullptr);
  EXPECT_EQ(fresh.cache()->size(), 0U);
}

TEST_F(SharedState, AHostsFormatterIsHonoredByTheNextCall) {
  EXPECT_EQ(KZMUtilitiesFormatNumber({{"decimals", 1}}, 1.25), "1.2");
  cache()->set("NumberFormatter-Decimal--.1", std::make_shared<const NumberFormatter>(4, 4));
  EXPECT_EQ(KZMUtilitiesFormatNumber({{"decimals", 1}}, 1.25), "1.2500");
}

TEST_F(SharedState, AHostsUnitTableIsHonoredByTheNextCall) {
  const Dictionary options{{"unitsize", 2}, {"space", true}};
  EXPECT_EQ(KZMUtilitiesFormatBandwidth(options, 5 * 1073741824.0), "5 GB");
  cache()->set("Localizations-Units-Network", Dictionary{{"%@ GB", "Go: %@"}});
  EXPECT_EQ(KZMUtilitiesFormatBandwidth(options, 5 * 1073741824.0), "Go: 5");
  EXPECT_EQ(KZMUtilitiesFormatBandwidth(options, 5.0), "") << "a unit that the host's table lacks";
  EXPECT_TRUE(KZMUtilitiesBandwidthData(options, 5.0).find("format")->isNull());
}

TEST_F(SharedState, AUnitTableThatAHostMakesAnewIsHonoredByTheNextCall) {
  const Dictionary options{{"unitsize", 2}, {"space", true}};
  EXPECT_EQ(KZMUtilitiesFormatBandwidth(options, 5 * 1073741824.0), "5 GB");
  const auto isHosts = [](const Value& value) {
    return value.dictionary() != nullptr && value.dictionary()->size() == 1;
  };
  cache()->findOrMake("Localizations-Units-Network", isHosts, [] { return Value(Dictionary{{"%@ GB", "Go: %@"}}); });
  EXPECT_EQ(KZMUtilitiesFormatBandwidth(options, 5 * 1073741824.0), "Go: 5");
}

TEST_F(SharedState, AHostsCacheTakesThePlaceOfTheFormerOne) {
  EXPECT_EQ(KZMUtilitiesFormatNumber({{"decimals", 1}}, 1.25), "1.2");
  auto own = std::make_shared<Cache>();
  own->set("NumberFormatter-Decimal--.1", std::make_shared<const NumberFormatter>(3, 3));
  KZMUtilities::shared().setCache(own);
  EXPECT_EQ(KZMUtilitiesFormatNumber({{"decimals", 1}}, 1.25), "1.250");
  own->set("NumberFormatter-Decimal--.1", nullptr);
  EXPECT_EQ(KZMUtilitiesFormatNumber({{"decimals", 1}}, 1.25), "1.2");
}

TEST_F(SharedState, AnEntryOfAnotherKindCountsAsMissing) {
  cache()->set("NumberFormatter-Decimal--.1", "nonsense");
  cache()->set("Localizations-Units-Memory", 42);
  cache()->set("Localizations-Units-Space", Dictionary{{"%@KB", 42}});
  EXPECT_EQ(KZMUtilitiesFormatNumber({{"decimals", 1}}, 1.25), "1.2");
  EXPECT_EQ(KZMUtilitiesFormatMemory({}, 1024.0), "1KB");
  EXPECT_EQ(KZMUtilitiesFormatSpace({}, 1000.0), "") << "a text that is no text is missing";
  EXPECT_NE(cache()->find("NumberFormatter-Decimal--.1").object(), nullptr) << "the library's own took its place";
}

TEST_F(SharedState, ATableHoldsEveryRowAfterTheFirstCall) {
  EXPECT_EQ(KZMUtilitiesFormatBandwidth({}, 0.0), "0KB/s");
  const Value table = cache()->find("Localizations-Units-Network");
  ASSERT_NE(table.dictionary(), nullptr);
  EXPECT_EQ(table.dictionary()->size(), 30U);
  EXPECT_EQ(*table.dictionary()->find("%@ Gb/s"), Value("%@ Gb/s"));
}

TEST_F(SharedState, AnEntryIsMadeOnlyWhenNoneIsAccepted) {
  Cache entries;
  entries.set("key", 1);
  const auto isInteger = [](const Value& value) { return value.integer() != nullptr; };
  const auto isText = [](const Value& value) { return value.string() != nullptr; };
  EXPECT_EQ(entries.findOrMake("key", isInteger, [] { return Value(2); }), Value(1));
  EXPECT_EQ(entries.findOrMake("key", isText, [] { return Value("made"); }), Value("made"));
  EXPECT_EQ(entries.find("key"), Value("made"));
  EXPECT_EQ(entries.findOrMake("other", isText, [] { return Value(); }), Value());
  EXPECT_EQ(entries.size(), 1U) << "what could not be made is not stored";
  EXPECT_EQ(entries.entries(), (Dictionary{{"key", "made"}}));
}

TEST_F(SharedState, WhatSomebodyElseHasMadeInTheMeantimeStays) {
  Cache entries;
  const auto isText = [](const Value& value) { return value.string() != nullptr; };
  const auto make = [&entries] {
    entries.set("key", "made before");
    return Value("made");
  };
  EXPECT_EQ(entries.findOrMake("key", isText, make), Value("made before"));
  EXPECT_EQ(entries.find("key"), Value("made before"));
}

TEST_F(SharedState, AnAbsentEntryIsShownToTheOneWhoAcceptsAsNull) {
  Cache entries;
  const auto takesNull = [](const Value& value) { return value.isNull(); };
  EXPECT_EQ(entries.findOrMake("key", takesNull, [] { return Value("made"); }), Value());
  EXPECT_EQ(entries.size(), 0U);
}

TEST_F(SharedState, AnEmptyFunctionThrowsAndLeavesTheCacheAsItWas) {
  Cache cache;
  const auto isThere = [](const Value& value) { return !value.isNull(); };
  EXPECT_THROW(cache.findOrMake("a", {}, [] { return Value(1); }), std::bad_function_call);
  EXPECT_THROW(cache.findOrMake("a", isThere, {}), std::bad_function_call);
  EXPECT_EQ(cache.size(), 0U);
}

TEST_F(SharedState, AnEntryThatIsMadeInThePlaceOfAnotherCountsAtTheNextCall) {
  EXPECT_EQ(KZMUtilitiesFormatMemory({}, 1073741824.0), "1GB");
  const auto nothing = [](const Value&) { return false; };
  cache()->findOrMake("Localizations-Units-Memory", nothing, [] { return Value(Dictionary{{"%@GB", "%@ giga"}}); });
  EXPECT_EQ(KZMUtilitiesFormatMemory({}, 1073741824.0), "1 giga");
}

TEST_F(SharedState, TheCacheNeverShrinks) {
  std::size_t size = 0;
  for (int digits = -3; digits < 40; ++digits) {
    (void)KZMUtilitiesFormatNumber({{"decimals", digits}}, 1.0);
    (void)KZMUtilitiesFormatMemory({{"decimals-kb", Array{Dictionary{{"value", 9}, {"decimals", digits}}}}}, 1.0);
    EXPECT_GE(cache()->size(), size);
    size = cache()->size();
  }
  EXPECT_EQ(size, 43U * 2 + 1);
}

}  // namespace
}  // namespace kzm
