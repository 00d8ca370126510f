// What the texts of a family have to do with its data, and with each other: whatever the options, the quantity and the
// language.
#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/shared.h>

#include "tests/properties/families.h"
#include "tests/support/any_json.h"
#include "tests/support/draws.h"
#include "tests/support/runs.h"

namespace kzm::tests {
namespace {

void useLocale(const std::string& locale) {
  setCurrentLocale(locale);
  KZMLocalizationSetLanguages(std::array{locale});
  KZMUtilities::shared().setCache(nullptr);
}

// One locale after another, and back.
template <class Body>
void inEveryLocale(const Body& body) {
  for (const char* locale : {"de_CH", "ar_EG", "hi_IN", "es_ES", "en_US"}) {
    SCOPED_TRACE(locale);
    useLocale(locale);
    body();
  }
}

std::string numberIn(const Dictionary& data, bool dropsZeros) {
  const std::int64_t decimals = decimalsIn(data);
  return (dropsZeros ? KZMUtilitiesDecimalFormatterWithMaximum(decimals)
                     : KZMUtilitiesDecimalFormatterWithFractions(decimals, decimals))
      ->string(valueIn(data));
}

// The format operation: "%%" is one percent sign, the place becomes the number.
std::string filled(std::string format, const std::string& number) {
  for (std::size_t i = 0; (i = format.find("%%", i)) != std::string::npos; ++i) format.erase(i, 1);
  const std::size_t place = format.find("%@");
  return place == std::string::npos ? format : format.replace(place, 2, number);
}

TEST(Texts, AreTheTemplateWithOneReplacement) {
  inEveryLocale([] {
    forDraws(20'000, 2'000, [](Input& input) {
      const Family& family = input.any(families());
      const double quantity = anyDouble(input);
      const Dictionary options = family.adjusted(catalogue::optionsFromJson(anyOptions(input)));
      const Dictionary data = family.data(options, quantity);
      const std::string number = numberIn(data, family.dropsZeros);
      EXPECT_EQ(family.plain(options, quantity), filled(formatIn(data), number)) << family << ' ' << quantity;
      AttributedString expected = composed(formatIn(data), number, options);
      if (family.attributed == nullptr) return;
      if (family.isMeantToDiffer != nullptr) family.isMeantToDiffer(options, quantity, data, expected);
      EXPECT_EQ(runsOf(family.attributed(options, quantity)), runsOf(expected)) << family << ' ' << quantity;
    });
  });
}

TEST(Texts, AgreeWithAttributesAndWithoutButWhereTheyAreMeantNotTo) {
  inEveryLocale([] {
    forDraws(20'000, 2'000, [](Input& input) {
      const Family& family = input.any(families());
      const double quantity = anyDouble(input);
      const Dictionary options = family.adjusted(catalogue::optionsFromJson(anyOptions(input)));
      EXPECT_EQ(KZMUtilitiesFormatPercentageWithAttributes(options, quantity).text(),
                KZMUtilitiesFormatPercentage(options, quantity))
          << quantity;
      AttributedString other;
      if (family.attributed == nullptr) return;
      if (family.isMeantToDiffer != nullptr &&
          family.isMeantToDiffer(options, quantity, family.data(options, quantity), other))
        return;
      EXPECT_EQ(family.attributed(options, quantity).text(), family.plain(options, quantity))
          << family << ' ' << quantity;
    });
  });
}

}  // namespace
}  // namespace kzm::tests
