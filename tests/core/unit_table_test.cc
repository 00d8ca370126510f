#include "core/unit_table.h"

#include <gtest/gtest.h>
#include <string_view>

#include "core/rows.h"

namespace kzm::core {
namespace {

enum class Unit { volts, off };
using Text = UnitText<Unit>;
constexpr Text reading(std::string_view text) { return {Unit::off, Spacing::tight, text, nullptr}; }
constexpr Text kOnePlaceOrNone[] = {reading("%@ V"), reading("Off")};
constexpr Text kWithPercentSign[] = {reading("%@%%"), reading("%@")};
constexpr Text kTwice[] = {reading("%@ V"), reading("%@ V")};
constexpr Text kTwoPlaces[] = {reading("%@ of %@"), reading("%@ V")};
constexpr Text kLonePercentSign[] = {reading("%@%"), reading("%@ V")};

TEST(UnitTable, IsWellFormedWithOnePlaceForTheNumberOrNone) {
  EXPECT_TRUE(wellFormed(kOnePlaceOrNone));
  EXPECT_TRUE(wellFormed(kWithPercentSign));
  EXPECT_FALSE(wellFormed(kTwice));
  EXPECT_FALSE(wellFormed(kTwoPlaces));
  EXPECT_FALSE(wellFormed(kLonePercentSign));
}

// clang-format off
//   unit          spacing          template  translator's hint
constexpr Text kTexts[] = {
    {Unit::volts,  Spacing::spaced, "%@ V",   "volts"},
    {Unit::volts,  Spacing::tight,  "%@V",    "volts"},
    {Unit::off,    Spacing::tight,  "Off",    nullptr},
};
constexpr Text kWithoutOff[] = {
    {Unit::volts,  Spacing::spaced, "%@ V",   "volts"},
};
// clang-format on

TEST(UnitTable, AUnitThatHasOneFormOnlyHasItInBothSpacings) {
  constexpr auto kIndex = unitIndex<countEnumerators<Unit>()>(kTexts);
  EXPECT_EQ(kIndex.row(0, Spacing::spaced), 0U);
  EXPECT_EQ(kIndex.row(0, Spacing::tight), 1U);
  EXPECT_EQ(kIndex.row(1, Spacing::spaced), 2U);
  EXPECT_EQ(kIndex.row(1, Spacing::tight), 2U);
  EXPECT_TRUE(kIndex.hasAll());
}

TEST(UnitTable, AUnitWithoutARowIsMissed) { EXPECT_FALSE(unitIndex<countEnumerators<Unit>()>(kWithoutOff).hasAll()); }

TEST(UnitTable, RowsHaveTheKeysAndHintsOfTheTexts) {
  constexpr auto kRows = unitRows("Units.Test.", kTexts);
  EXPECT_EQ(kRows[1].key(), "Units.Test.%@V");
  EXPECT_STREQ(kRows[1].comment(), "volts");
  EXPECT_EQ(kRows[2].comment(), nullptr);
}

TEST(UnitTable, AKeyIsThePrefixAndTheText) {
  constexpr UnitRow kRow("Units.Test.", "%@ V", "volts");
  EXPECT_EQ(kRow.key(), "Units.Test.%@ V");
  EXPECT_EQ(kRow.text(), "%@ V");
  EXPECT_STREQ(kRow.comment(), "volts");
}

}  // namespace
}  // namespace kzm::core
