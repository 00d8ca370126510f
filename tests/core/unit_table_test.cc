#include "core/unit_table.h"

#include <gtest/gtest.h>
#include <string_view>

#include "core/rows.h"

namespace kzm::core {
namespace {

struct Text {
  std::string_view text;
  const char* comment = nullptr;
};
constexpr Text kOnePlaceOrNone[] = {{"%@ V"}, {"Off"}};
constexpr Text kWithPercentSign[] = {{"%@%%"}, {"%@"}};
constexpr Text kTwice[] = {{"%@ V"}, {"%@ V"}};
constexpr Text kTwoPlaces[] = {{"%@ of %@"}, {"%@ V"}};
constexpr Text kLonePercentSign[] = {{"%@%"}, {"%@ V"}};

TEST(UnitTable, IsWellFormedWithOnePlaceForTheNumberOrNone) {
  EXPECT_TRUE(wellFormed(kOnePlaceOrNone));
  EXPECT_TRUE(wellFormed(kWithPercentSign));
  EXPECT_FALSE(wellFormed(kTwice));
  EXPECT_FALSE(wellFormed(kTwoPlaces));
  EXPECT_FALSE(wellFormed(kLonePercentSign));
}

enum class Unit { volts, off };
struct Row {
  Unit unit;
  Spacing spacing;
};
constexpr Row kRows[] = {{Unit::volts, Spacing::spaced}, {Unit::volts, Spacing::tight}, {Unit::off, Spacing::tight}};
constexpr Row kWithoutOff[] = {{Unit::volts, Spacing::spaced}};

TEST(UnitTable, AUnitThatHasOneFormOnlyHasItInBothSpacings) {
  constexpr auto kIndex = unitIndex<countEnumerators<Unit>()>(kRows);
  EXPECT_EQ(kIndex.row(0, Spacing::spaced), 0U);
  EXPECT_EQ(kIndex.row(0, Spacing::tight), 1U);
  EXPECT_EQ(kIndex.row(1, Spacing::spaced), 2U);
  EXPECT_EQ(kIndex.row(1, Spacing::tight), 2U);
  EXPECT_TRUE(kIndex.hasAll());
}

TEST(UnitTable, AUnitWithoutARowIsMissed) { EXPECT_FALSE(unitIndex<countEnumerators<Unit>()>(kWithoutOff).hasAll()); }

TEST(UnitTable, AKeyIsThePrefixAndTheText) {
  constexpr UnitRow kRow("Units.Test.", "%@ V", "volts");
  EXPECT_EQ(kRow.key(), "Units.Test.%@ V");
  EXPECT_EQ(kRow.text(), "%@ V");
  EXPECT_STREQ(kRow.comment(), "volts");
}

}  // namespace
}  // namespace kzm::core
