#include "core/number_text.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <unicode/locid.h>

#include "core/template.h"
#include "port/environment_locale.h"
#include "tests/core/number_reference.h"
#include "tests/support/sweeps.h"

namespace kzm::core {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

const NumberSymbols& symbolsOf(const std::string& locale) {
  static auto& known = *new std::map<std::string, NumberSymbols>;
  return known.try_emplace(locale, port::numberSymbols(locale)).first->second;
}

std::string text(const std::string& locale, int least, int most, double value) {
  return numberAlone(decimalStyle(symbolsOf(locale), least, most), value);
}

TEST(NumberText, RoundsHalfToEvenOnTheShortestDecimal) {
  struct Case {
    double value;
    int digits;
    const char* text;
  };
  const Case cases[] = {
      {2.675, 2, "2.68"},
      {1.015, 2, "1.02"},
      {8.345, 2, "8.34"},
      {4.35, 1, "4.4"},
      {1.005, 2, "1.00"},
      {0.35, 1, "0.4"},
      {0.45, 1, "0.4"},
      {0.65, 1, "0.6"},
      {0.15, 1, "0.2"},
      {0.125, 2, "0.12"},
      {42.25, 1, "42.2"},
      {42.35, 1, "42.4"},
      {1013.25, 1, "1,013.2"},
      {2.5, 0, "2"},
      {3.5, 0, "4"},
      {0.5, 0, "0"},
      {1.5, 0, "2"},
      {-0.5, 0, "-0"},
      {-0.3, 0, "-0"},
      {-0.0, 0, "-0"},
      {-0.0, 2, "-0.00"},
      {0.0, 0, "0"},
      {0.05, 1, "0.0"},
      {0.15000000000000002, 1, "0.2"},
      {9.5, 0, "10"},
      {99.5, 0, "100"},
      {999.5, 0, "1,000"},
      {9.995, 2, "10.00"},
      {0.9995, 3, "1.000"},
      {0.1, 17, "0.10000000000000000"},
      {0.30000000000000004, 17, "0.30000000000000004"},
      {5e-324, 0, "0"},
      {5e-324, 5, "0.00000"},
      {1e21, 1, "1,000,000,000,000,000,000,000.0"},
      {123456789012345.67, 1, "123,456,789,012,345.7"},
      {11.444091796875, 1, "11.4"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(text("en_US", c.digits, c.digits, c.value), c.text) << c.value << " with " << c.digits;
  }
}

// The numbers of a monitor take the quick way.
TEST(NumberText, ShortNumbersAreLaidOut) {
  struct Case {
    const char* why;
    double value;
    int digits;
    bool isLaidOut;
    std::size_t size;
  };
  const Case cases[] = {
      {"zero", 0.0, 0, true, 1},
      {"a fraction", 19.73, 1, true, 4},
      {"below zero", -1234.0, 0, true, 6},
      {"nine digits", 999999998.0, 0, true, 11},
      {"the largest of nine", 999999999.0, 0, false, 0},
      {"eight digits after the point", 1.23456781, 8, true, 10},
      {"nine", 0.1, 9, false, 0},
      {"a tie", 42.25, 1, false, 0},
      {"as near to a tie as is in doubt", 42.2500999, 1, false, 0},
      {"less near", 42.2501001, 1, true, 4},
      {"NaN", kNaN, 0, false, 0},
      {"infinity", kInfinity, 0, false, 0},
  };
  for (const Case& c : cases) {
    const ShortNumber number(decimalStyle(symbolsOf("en_US"), c.digits, c.digits), c.value);
    EXPECT_EQ(number.isLaidOut(), c.isLaidOut) << c.why;
    EXPECT_EQ(number.size(), c.size) << c.why;
  }
}

TEST(NumberText, CountsDigits) {
  std::uint32_t power = 1;
  for (int digits = 1; digits <= 9; ++digits, power *= 10) {
    EXPECT_EQ(countDigits(power), digits);
    EXPECT_EQ(countDigits(power * 10 - 1), digits);
  }
  EXPECT_EQ(countDigits(0), 1);
}

TEST(NumberText, DropsZerosDownToTheMinimum) {
  EXPECT_EQ(text("en_US", 0, 2, 3.0), "3");
  EXPECT_EQ(text("en_US", 0, 2, 3.14159), "3.14");
  EXPECT_EQ(text("en_US", 0, 2, 1.5), "1.5");
  EXPECT_EQ(text("en_US", 1, 3, 2.0), "2.0");
  EXPECT_EQ(text("en_US", 1, 3, 2.125), "2.125");
  EXPECT_EQ(text("en_US", 0, 20, 1e-7), "0.0000001");
}

TEST(NumberText, FollowsTheLocale) {
  struct Case {
    const char* locale;
    double value;
    const char* text;
  };
  const Case cases[] = {
      {"en_US", 1234567.891, "1,234,567.89"},
      {"en_001", 1234567.891, "1,234,567.89"},
      {"de_DE", 1234567.891, "1.234.567,89"},
      {"de_AT", 1234.5, "1\u00a0234,5"},
      {"de_CH", 1234567.891, "1’234’567.89"},
      {"fr_FR", 1234.5, "1\u202f234,5"},
      {"es_ES", 1234.0, "1234"},
      {"es_ES", 12345.0, "12.345"},
      {"es_MX", 1234.0, "1,234"},
      {"pl_PL", 1234.0, "1234"},
      {"pl_PL", 12345.0, "12\u00a0345"},
      {"pt_PT", 1234.0, "1234"},
      {"pt_BR", 1234.0, "1.234"},
      {"hi_IN", 1234567.891, "12,34,567.89"},
      {"hi_IN", 123456789.0, "12,34,56,789"},
      {"en_IN", 12345678.0, "1,23,45,678"},
      {"bn_BD", 1234567.0, "১২,৩৪,৫৬৭"},
      {"ar_EG", -1234.5, "\u061c-١٬٢٣٤٫٥"},
      {"fa_IR", -1234.5, "\u200e\u2212۱٬۲۳۴٫۵"},
      {"he_IL", -1.0, "\u200e-1"},
      {"sv_SE", -1234.5, "\u22121\u00a0234,5"},
      {"ru_RU", 1234.5, "1\u00a0234,5"},
      {"en_US_POSIX", 1234567.891, "1234567.89"},
      {"ja_JP", 1234.5, "1,234.5"},
      {"ar_EG@numbers=latn", 1234.5, "1,234.5"},
      {"en_US", kNaN, "NaN"},
      {"en_US", -kNaN, "NaN"},
      {"ru_RU", kNaN, "не\u00a0число"},
      {"fi_FI", -kNaN, "epäluku"},
      {"en_US", kInfinity, "∞"},
      {"en_US", -kInfinity, "-∞"},
      {"sv_SE", -kInfinity, "\u2212∞"},
      {"en_US_POSIX", kInfinity, "INF"},
  };
  for (const Case& c : cases) EXPECT_EQ(text(c.locale, 0, 2, c.value), c.text) << c.locale << ' ' << c.value;
}

TEST(NumberText, AnUnusableNumberingSystemIsSetAside) { EXPECT_EQ(text("de_DE@numbers=nonsense", 0, 1, 1.5), "1,5"); }

TEST(NumberText, TheLargestAndTheLongestFit) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  for (const char* locale : {"en_US", "hi_IN", "ar_EG", "fa_IR", "en_US_POSIX"}) {
    const std::string written = text(locale, kMostFractionDigits, kMostFractionDigits, -kLargest);
    EXPECT_GT(written.size(), 600U) << locale;
  }
  EXPECT_EQ(text("en_US_POSIX", 0, 0, kLargest), "17976931348623157" + std::string(292, '0'));
  EXPECT_EQ(text("en_US", 0, 340, 5e-324), "0." + std::string(323, '0') + "5");
}

TEST(NumberText, PlainWholeNumbersHaveNoLocale) {
  struct Case {
    double value;
    const char* text;
  };
  const Case cases[] = {
      {1023.6, "1024"},
      {0.5, "0"},
      {1.5, "2"},
      {2.5, "2"},
      {-0.2, "-0"},
      {-0.0, "-0"},
      {0.0, "0"},
      {kNaN, "nan"},
      {-kNaN, "nan"},
      {kInfinity, "inf"},
      {-kInfinity, "-inf"},
      {1e15, "1000000000000000"},
      {1e23, "99999999999999991611392"},
      {-1234567.0, "-1234567"},
  };
  for (const Case& c : cases) EXPECT_EQ(numberAlone(plainStyle(), c.value), c.text) << c.value;
}

TEST(NumberText, EqualsTheLocaleLibrarysFormatter) {
  std::mt19937_64 random(20260101);
  for (const char* locale : {"en_US", "de_CH", "es_ES", "hi_IN", "ar_EG", "sv_SE", "fr_FR", "pl_PL"}) {
    for (int most = 0; most <= 8; ++most) {
      const int least = most % 2 == 0 ? most : 0;
      const tests::NumberReference reference(locale, least, most);
      for (int left = tests::inSweep(1500, 200); left > 0; --left) {
        const double value = tests::anyDouble(random);
        ASSERT_EQ(text(locale, least, most, value), reference.text(value)) << locale << ' ' << most << ' ' << value;
      }
    }
  }
}

// Around every tie the quick rounding must hand over to the exact one.
TEST(NumberText, EqualsTheReferenceAroundTies) {
  const tests::NumberReference reference("en_US", 0, 3);
  for (int i = 0; i < 2000; ++i) {
    const double tie = i * 1.037 + 0.0005;
    for (const double value : {std::nextafter(tie, 0.0), tie, std::nextafter(tie, 1e9), tie * 1e8, -tie}) {
      ASSERT_EQ(text("en_US", 0, 3, value), reference.text(value)) << value;
    }
  }
}

// Asking whether a language is known must not harm what is known of it: Norwegian has its numbers from a parent.
TEST(NumberText, EveryLocaleLooksAsItsDataSayAfterItsNameWasRead) {
  int32_t count = 0;
  const icu::Locale* locales = icu::Locale::getAvailableLocales(count);
  ASSERT_GT(count, 500);
  for (int32_t i = 0; i < count; ++i) {
    const std::string name = port::usableLocale(locales[i].getName());
    ASSERT_EQ(text(name, 2, 2, -1234567.891), tests::NumberReference(name.c_str(), 2, 2).text(-1234567.891)) << name;
  }
  EXPECT_EQ(text(port::usableLocale("nb_NO.UTF-8"), 0, 2, -1234.5), "\u22121\u00a0234,5");
  EXPECT_EQ(text(port::usableLocale("nn_NO.UTF-8"), 0, 2, -1234.5), "\u22121\u00a0234,5");
}

}  // namespace
}  // namespace kzm::core
