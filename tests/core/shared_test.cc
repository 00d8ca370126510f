#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/shared.h>

namespace kzm {
namespace {

// Every test starts with an empty cache and leaves one.
class SharedState : public testing::Test {
 protected:
  SharedState() { KZMUtilities::shared().setCache(nullptr); }
  ~SharedState() override { KZMUtilities::shared().setCache(nullptr); }

  static std::shared_ptr<Cache> cache() { return KZMUtilities::shared().cache(); }
};

TEST_F(SharedState, IsOneInstance) { EXPECT_EQ(&KZMUtilities::shared(), &KZMUtilities::shared()); }

TEST_F(SharedState, AFreshInstanceHasAnEmptyCache) {
  const KZMUtilities fresh;
  ASSERT_NE(fresh.cache(), nullptr);
  EXPECT_EQ(fresh.cache()->size(), 0U);
}

TEST_F(SharedState, FormattersAreMadeOnceUnderTheirKeys) {
  struct Case {
    std::int64_t minimum;
    std::int64_t maximum;
    const char* key;
    std::int64_t keptMaximum;
  };
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
  const Case cases[] = {
      {1, 1, "NumberFormatter-Decimal-1.1", 1},
      {0, 0, "NumberFormatter-Decimal-0.0", 0},
      {2, 2, "NumberFormatter-Decimal-2.2", 2},
      {-1, -1, "NumberFormatter-Decimal--1.-1", -1},
      {3, 1, "NumberFormatter-Decimal-3.1", 3},
      {kLeast, kMost, "NumberFormatter-Decimal--9223372036854775808.9223372036854775807", kMost},
  };
  for (const Case& c : cases) {
    const std::size_t before = cache()->size();
    const auto formatter = KZMUtilitiesDecimalFormatterWithFractions(c.minimum, c.maximum);
    EXPECT_EQ(cache()->find(c.key).object(), formatter.get()) << c.key;
    EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(c.minimum, c.maximum), formatter) << c.key;
    EXPECT_EQ(cache()->size(), before + 1) << c.key;
    EXPECT_EQ(formatter->minimumFractionDigits(), c.minimum) << c.key;
    EXPECT_EQ(formatter->maximumFractionDigits(), c.keptMaximum) << c.key;
  }
}

TEST_F(SharedState, AMaximumAloneIsAnEntryOfItsOwn) {
  const auto fixed = KZMUtilitiesDecimalFormatterWithFractions(0, 0);
  const auto atMost = KZMUtilitiesDecimalFormatterWithMaximum(0);
  EXPECT_NE(fixed, atMost);
  EXPECT_EQ(cache()->find("NumberFormatter-Decimal-0.0").object(), fixed.get());
  EXPECT_EQ(cache()->find("NumberFormatter-Decimal--.0").object(), atMost.get());
  const auto negative = KZMUtilitiesDecimalFormatterWithMaximum(-1);
  EXPECT_EQ(cache()->find("NumberFormatter-Decimal--.-1").object(), negative.get());
  EXPECT_EQ(negative->maximumFractionDigits(), -1);
  EXPECT_EQ(negative->string(2.5), "2");
}

TEST_F(SharedState, FormattersShowTheirDigits) {
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(2, 2)->string(3.0), "3.00");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithMaximum(2)->string(3.0), "3");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithMaximum(2)->string(3.14159), "3.14");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(3, 1)->string(1.5), "1.500");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(1000000, 1000000)->string(1.0), "1." + std::string(340, '0'));
}

TEST_F(SharedState, NumbersFormatByTheirDecimals) {
  struct Case {
    const char* why;
    Dictionary options;
    double value;
    const char* text;
  };
  const Case cases[] = {
      {"half to even", {}, 2.5, "2"},
      {"half to even", {}, 3.5, "4"},
      {"a text is a number", {{"decimals", "2"}}, 2.675, "2.68"},
      {"at most", {{"decimals", 2}}, 3.0, "3"},
      {"truncated", {{"decimals", 1.9}}, 1.25, "1.2"},
      {"negative is none", {{"decimals", -3}}, 1.25, "1"},
      {"mistyped is none", {{"decimals", Array{}}}, 1.25, "1"},
      {"null is none", {{"decimals", nullptr}}, 1.25, "1"},
      {"grouped", {}, 1234567, "1,234,567"},
  };
  for (const Case& c : cases) EXPECT_EQ(KZMUtilitiesFormatNumber(c.options, c.value), c.text) << c.why;
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

TEST_F(SharedState, PosixLocalesAreMadeOnce) {
  struct Case {
    const char* identifier;
    const char* posix;
    bool made;
  };
  const Case cases[] = {
      {"en_US", "en_US_POSIX", true},
      {"de_CH", "de_CH_POSIX", true},
      {"de", "de_POSIX", true},
      {"zh_Hant_TW", "zh_Hant_TW_POSIX", true},
      {"es_419", "es_419_POSIX", true},
      {"ca_ES_VALENCIA", "ca_ES_VALENCIA_POSIX", true},
      {"", "", false},
      {"en_US@calendar=buddhist", "en_US@calendar=buddhist", false},
      {"ar_EG@numbers=latn", "ar_EG@numbers=latn", false},
      {"not a locale", "not a locale", false},
      {"../../etc", "../../etc", false},
      {"abcdefghijk", "abcdefghijk_POSIX", true},
      {"abcdefghijkl", "abcdefghijkl", false},
      {"abcdefghijkl_DE", "abcdefghijkl_DE", false},
  };
  for (const Case& c : cases) {
    const auto locale = std::make_shared<const Locale>(c.identifier);
    const auto posix = KZMUtilitiesPosixLocale(locale);
    EXPECT_EQ(posix->identifier(), c.posix) << c.identifier;
    EXPECT_EQ(KZMUtilitiesPosixLocale(std::make_shared<const Locale>(c.identifier)) == posix, c.made) << c.identifier;
    EXPECT_EQ(posix == locale, !c.made) << c.identifier;
    EXPECT_EQ(cache()->find(std::string("Locale-Posix-") + c.identifier).isNull(), !c.made) << c.identifier;
  }
  EXPECT_EQ(KZMUtilitiesPosixLocale(nullptr), nullptr);
  const std::string huge(100000, 'a');
  EXPECT_EQ(KZMUtilitiesPosixLocale(std::make_shared<const Locale>(huge))->identifier(), huge);
}

TEST_F(SharedState, ALocaleChosenByTheHostIsThatOfFormattersMadeFromThenOn) {
  EXPECT_EQ(currentLocale(), "en_US");
  const auto before = KZMUtilitiesDecimalFormatterWithMaximum(1);
  setCurrentLocale("de_DE.UTF-8");
  EXPECT_EQ(currentLocale(), "de_DE");
  EXPECT_EQ(before->string(1234.5), "1,234.5");
  EXPECT_EQ(KZMUtilitiesFormatNumber({{"decimals", 1}}, 1234.5), "1,234.5") << "made in the former locale";
  EXPECT_EQ(KZMUtilitiesFormatNumber({{"decimals", 2}}, 1234.5), "1.234,5");
  setCurrentLocale("nonsense!");
  EXPECT_EQ(currentLocale(), "en_001");
  setCurrentLocale("en_US");
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
