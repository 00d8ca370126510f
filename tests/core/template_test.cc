#include "core/template.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>

#include "tests/support/runs.h"

namespace kzm::core {
namespace {

// A style whose NaN is the given text, so that anything can take the number's place.
class Style {
 public:
  explicit Style(std::string number) : symbols_(port::plainSymbols()) { symbols_.notANumber = std::move(number); }
  [[nodiscard]] NumberStyle operator()() const { return decimalStyle(symbols_, 0, 0); }

 private:
  NumberSymbols symbols_;
};

constexpr double kNumber = std::numeric_limits<double>::quiet_NaN();

std::string filled(std::string_view text, const std::string& number) {
  return Template(text).filled(Style(number)(), kNumber);
}

AttributedString composed(std::string_view text, const std::string& number, const Value& main, const Value& units) {
  return Template(text).composed(Style(number)(), kNumber, main, units);
}

TEST(Template, FillsInTheNumber) {
  struct Case {
    const char* why;
    const char* text;
    const char* number;
    const char* filled;
    const char* composed;
  };
  const Case cases[] = {
      {"the ordinary case", "%@ GB", "5", "5 GB", "5 GB"},
      {"the unit first", "GB %@", "5", "GB 5", "GB 5"},
      {"the number alone", "%@", "5", "5", "5"},
      {"a numbered place", "%1$@ Go", "5", "5 Go", "%1$@ Go"},
      {"another numbered place is text", "%2$@", "5", "%2$@", "%2$@"},
      {"two signs are one when formatted", "%@%%", "5", "5%", "5%%"},
      {"a lone sign at the end stays", "%@%", "5", "5%", "5%"},
      {"after a space too", "%@ %", "5", "5 %", "5 %"},
      {"a second place stays text", "%@ of %@", "5", "5 of %@", "5 of %@"},
      {"also a second place of another form", "%@ %1$@", "5", "5 %1$@", "5 %1$@"},
      {"directives are copied", "%d%s%n %@", "5", "%d%s%n 5", "%d%s%n 5"},
      {"the number is not scanned again", "%@ x", "%@%%%s", "%@%%%s x", "%@%%%s x"},
      {"no place: the text alone", "Off", "5", "Off", "Off"},
      {"no place, two signs", "a%%b", "5", "a%b", "a%%b"},
      {"a doubled sign hides the place", "%%@", "5", "%@", "%5"},
      {"an empty text", "", "5", "", ""},
      {"an empty number", "<%@>", "", "<>", "<>"},
      {"other scripts", "%@ ГБ", "٥", "٥ ГБ", "٥ ГБ"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Template(c.text).text(), c.text);
    EXPECT_EQ(filled(c.text, c.number), c.filled) << c.why;
    EXPECT_EQ(composed(c.text, c.number, "main", "units").text(), c.composed) << c.why;
  }
}

TEST(Template, ComposesNumberAndUnitInTheirAttributes) {
  using tests::Runs;
  EXPECT_EQ(tests::runsOf(composed("%@ GB", "5", "main", "units")), (Runs{{"5", "main"}, {" GB", "units"}}));
  EXPECT_EQ(tests::runsOf(composed("GB %@", "5", "main", "units")), (Runs{{"GB ", "units"}, {"5", "main"}}));
  EXPECT_EQ(tests::runsOf(composed("%@ GB", "5", nullptr, nullptr)), (Runs{{"5 GB", nullptr}}));
  EXPECT_EQ(tests::runsOf(composed("%@ GB", "5", "same", "same")), (Runs{{"5 GB", "same"}}));
  EXPECT_EQ(tests::runsOf(composed("Off", "5", "main", "units")), (Runs{{"Off", "units"}}));
}

TEST(Template, ShortNumbersAreNoDifferent) {
  struct Case {
    const char* text;
    double value;
    const char* filled;
  };
  const Case cases[] = {
      {"%@ GB", 5.0, "5 GB"},
      {"%@", -5.0, "-5"},
      {"GB %@", 5.0, "GB 5"},
      {"%1$@%%", 5.0, "5%"},
      {"%@%", 5.0, "5%"},
      {"<%@>", 12345678.0, "<12345678>"},
      {"1234567%@", 12345678.0, "123456712345678"},    // as much as fits in two words
      {"12345678%@", 12345678.0, "1234567812345678"},  // and one byte more
      {"%@1234567", 12345678.0, "123456781234567"},
      {"%@12345678", 12345678.0, "1234567812345678"},
      {"none", 5.0, "none"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Template(c.text).filled(decimalStyle(port::plainSymbols(), 0, 0), c.value), c.filled) << c.text;
  }
}

// Whatever is written by words, with room or without, in digits of one byte and of more.
TEST(Template, TheRoomAroundANumberChangesNothing) {
  constexpr double kValues[] = {0.0,      5.0,     -5.0,      0.05,       12.3,       999.94,
                                -1023.26, 12345.6, 9999999.0, 12345678.0, 987654321.0};
  for (const char* locale : {"en_US", "de_CH", "sv_SE", "hi_IN", "ar_EG", "fa_IR", "bn_BD", "mr_IN"}) {
    const NumberSymbols symbols = port::numberSymbols(locale);
    for (int most = 0; most <= 3; ++most) {
      const NumberStyle style = decimalStyle(symbols, most / 2, most);
      for (const double value : kValues) {
        const std::string number = numberAlone(style, value);
        for (std::size_t size = 0; size <= 70; ++size) {
          const std::string unit(size, 'u');
          ASSERT_EQ(Template("%@" + unit).filled(style, value), number + unit) << locale << ' ' << value;
          ASSERT_EQ(Template(unit + "%@ u").filled(style, value), unit + number + " u") << locale << ' ' << value;
        }
      }
    }
  }
}

TEST(Template, DigitsOfTwoBytesAreNoDifferent) {
  struct Case {
    int digits;
    double value;
    const char* filled;
  };
  const Case cases[] = {
      {0, 7.0, "٧ كيلوبايت/ث"},
      {0, 121.0, "١٢١ كيلوبايت/ث"},
      {0, 1023.0, "١٬٠٢٣ كيلوبايت/ث"},
      {1, 45.6, "٤٥٫٦ كيلوبايت/ث"},
      {2, 0.05, "٠٫٠٥ كيلوبايت/ث"},
      {2, 987.65, "٩٨٧٫٦٥ كيلوبايت/ث"},
      {5, 123.45678, "١٢٣٫٤٥٦٧٨ كيلوبايت/ث"},
      {7, 12.3456789, "١٢٫٣٤٥٦٧٨٩ كيلوبايت/ث"},
      {1, -2.5, "\u061c-٢٫٥ كيلوبايت/ث"},
      {0, 131072.0, "١٣١٬٠٧٢ كيلوبايت/ث"},
      {1, 1234.5, "١٬٢٣٤٫٥ كيلوبايت/ث"},
      {0, 12345678.0, "١٢٬٣٤٥٬٦٧٨ كيلوبايت/ث"},
      {1, 1234567.5, "١٬٢٣٤٬٥٦٧٫٥ كيلوبايت/ث"},
  };
  const NumberSymbols symbols = port::numberSymbols("ar_EG");
  for (const Case& c : cases) {
    EXPECT_EQ(Template("%@ كيلوبايت/ث").filled(decimalStyle(symbols, c.digits, c.digits), c.value), c.filled);
  }
}

// One separator fits a word of eight bytes, two do not, and neither does one that takes several.
TEST(Template, GroupedNumbersAreWrittenWithTheirUnit) {
  struct Case {
    const char* locale;
    int digits;
    double value;
    const char* filled;
  };
  const Case cases[] = {
      {"en_US", 0, 999.0, "999 Gb/s"},           {"en_US", 0, 1000.0, "1,000 Gb/s"},
      {"en_US", 0, 131072.0, "131,072 Gb/s"},    {"en_US", 1, 1234.5, "1,234.5 Gb/s"},
      {"en_US", 2, 1234.56, "1,234.56 Gb/s"},    {"en_US", 1, 12345.6, "12,345.6 Gb/s"},
      {"en_US", 2, 12345.67, "12,345.67 Gb/s"},  {"en_US", 1, 123456.7, "123,456.7 Gb/s"},
      {"en_US", 0, 1234567.0, "1,234,567 Gb/s"}, {"en_US", 1, -1234.5, "-1,234.5 Gb/s"},
      {"de_DE", 1, 1234.5, "1.234,5 Gb/s"},      {"es_ES", 1, 1234.5, "1234,5 Gb/s"},
      {"es_ES", 1, 12345.6, "12.345,6 Gb/s"},    {"hi_IN", 0, 123456.0, "1,23,456 Gb/s"},
      {"hi_IN", 1, 12345.6, "12,345.6 Gb/s"},    {"de_CH", 1, 1234.5, "1’234.5 Gb/s"},
      {"fr_FR", 1, 1234.5, "1\u202f234,5 Gb/s"}, {"en_US_POSIX", 1, 1234.5, "1234.5 Gb/s"},
  };
  for (const Case& c : cases) {
    const NumberSymbols symbols = port::numberSymbols(c.locale);
    EXPECT_EQ(Template("%@ Gb/s").filled(decimalStyle(symbols, c.digits, c.digits), c.value), c.filled) << c.locale;
  }
}

TEST(Template, LongTextsAreNoDifferent) {
  const std::string unit(100000, 'u');
  EXPECT_EQ(filled("%@" + unit, "5"), "5" + unit);
  EXPECT_EQ(composed(unit + "%@", "5", "main", nullptr).text(), unit + "5");
}

}  // namespace
}  // namespace kzm::core
