// Which level a quantity is shown on, and what is left of it there.
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/properties/families.h"
#include "tests/support/any_json.h"
#include "tests/support/draws.h"

namespace kzm::tests {
namespace {

constexpr std::size_t kMarkAfterNumber = 2;  // "%@"

const Level& levelOf(const Family& family, const Dictionary& data) {
  const std::string_view unit = std::string_view(formatIn(data)).substr(kMarkAfterNumber);
  const std::string_view mark = unit.substr(std::min(unit.find_first_not_of(' '), unit.size()));
  const auto level = std::ranges::find_if(family.levels, [&](const Level& row) { return mark.starts_with(row.mark); });
  if (level == family.levels.end()) throw std::logic_error("no level has the unit text " + formatIn(data));
  return *level;
}

const Family& anyWithLevels(Input& input) {
  const Family* family = &input.any(families());
  while (family->levels.empty()) family = &input.any(families());
  return *family;
}

// Of the sensors' quantities the magnitude counts, and zero has a unit of its own.
double anyPositive(Input& input) {
  const double quantity = std::abs(anyDouble(input));
  return quantity > 0.0 ? quantity : 1.0;  // neither is NaN
}

TEST(Levels, NeverFallAsTheQuantityGrows) {
  forDraws(100'000, 10'000, [](Input& input) {
    const Family& family = anyWithLevels(input);
    const Dictionary options = family.adjusted(catalogue::optionsFromJson(anyOptions(input)));
    std::array<double, 8> quantities{};
    for (double& quantity : quantities) quantity = anyPositive(input);
    std::ranges::sort(quantities);
    const Level* level = &family.levels.front();
    for (const double quantity : quantities) {
      const Level* next = &levelOf(family, family.data(options, quantity));
      ASSERT_GE(next - level, 0) << family << ' ' << quantity;
      level = next;
    }
  });
}

TEST(Levels, TimesTheirFactorGiveTheQuantityBack) {
  forDraws(200'000, 20'000, [](Input& input) {
    const Family& family = anyWithLevels(input);
    const Dictionary options = family.adjusted(catalogue::optionsFromJson(anyOptions(input)));
    const double quantity = anyPositive(input);
    // Next to the smallest doubles digits are lost, and next to the largest there is no room for bits.
    if (quantity < 1e-290 || quantity > 1e290) return;
    for (const double signedQuantity : {quantity, -quantity}) {
      const Dictionary data = family.data(options, signedQuantity);
      EXPECT_NEAR(valueIn(data) * levelOf(family, data).factor, signedQuantity, quantity * family.precision) << family;
    }
  });
}

}  // namespace
}  // namespace kzm::tests
