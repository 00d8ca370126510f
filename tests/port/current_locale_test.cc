#include <gtest/gtest.h>

#include <KZMUtilities/formatters.h>

#include "tests/support/shared_state.h"

namespace kzm {
namespace {

class CurrentLocale : public tests::SharedState {};

TEST_F(CurrentLocale, OfTheHostIsThatOfFormattersMadeFromThenOn) {
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

}  // namespace
}  // namespace kzm
