#include "port/number_symbols.h"

#include <gtest/gtest.h>

namespace kzm::port {
namespace {

// Zero, decimal separator, group separator, minus; the groups, and the digits before the first separator.
std::string shown(const NumberSymbols& symbols) {
  return symbols.digits[0] + "|" + symbols.decimalSeparator + "|" + symbols.groupSeparator + "|" +
         symbols.negativePrefix + "|" + std::to_string(symbols.primaryGroup) + "," +
         std::to_string(symbols.secondaryGroup) + "," + std::to_string(symbols.minimumGroupDigits);
}

TEST(NumberSymbols, AreThoseOfTheLocale) {
  struct Case {
    const char* locale;
    const char* symbols;
  };
  const Case cases[] = {
      {"en_US", "0|.|,|-|3,3,1"}, {"de_CH", "0|.|’|-|3,3,1"},       {"es_ES", "0|,|.|-|3,3,2"},
      {"hi_IN", "0|.|,|-|3,2,1"}, {"ar_EG", "٠|٫|٬|\u061C-|3,3,1"}, {"sv_SE", "0|,|\u00A0|\u2212|3,3,1"},
  };
  for (const Case& c : cases) EXPECT_EQ(shown(numberSymbols(c.locale)), c.symbols) << c.locale;
}

TEST(NumberSymbols, KnowTheSizeOfADigit) {
  EXPECT_TRUE(numberSymbols("en_US").digitsAreAscii);
  EXPECT_EQ(numberSymbols("en_US").digitBytes, 1U);
  EXPECT_FALSE(numberSymbols("ar_EG").digitsAreAscii);
  EXPECT_EQ(numberSymbols("ar_EG").digitBytes, 2U);
}

TEST(NumberSymbols, KnowWhatFitsAWord) {
  struct Case {
    const char* locale;
    bool takeOneByteEach;
    int separatorsInWord;
  };
  constexpr Case kCases[] = {
      {"en_US", true, 1}, {"de_DE", true, 1}, {"de_CH", true, 0}, {"fr_FR", true, 0}, {"ar_EG", false, 0},
  };
  for (const Case& c : kCases) {
    const NumberSymbols symbols = numberSymbols(c.locale);
    EXPECT_EQ(symbols.takeOneByteEach, c.takeOneByteEach) << c.locale;
    EXPECT_EQ(symbols.separatorsInWord, c.separatorsInWord) << c.locale;
  }
}

TEST(NumberSymbols, HaveWordsForWhatIsNoFiniteNumber) {
  EXPECT_EQ(numberSymbols("en_US").notANumber, "NaN");
  EXPECT_EQ(numberSymbols("ru_RU").notANumber, "не\u00A0число");
  EXPECT_EQ(numberSymbols("en_US").infinity, "∞");
}

TEST(NumberSymbols, PlainOnesAreThoseOfPrintf) {
  const NumberSymbols plain = plainSymbols();
  EXPECT_EQ(plain.digits[9], "9");
  EXPECT_EQ(plain.negativePrefix, "-");
  EXPECT_EQ(plain.notANumber, "nan");
  EXPECT_EQ(plain.infinity, "inf");
  EXPECT_EQ(plain.primaryGroup, 0);
}

}  // namespace
}  // namespace kzm::port
