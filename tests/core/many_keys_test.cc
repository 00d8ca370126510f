// The shared cache is never trimmed.
#include <cstdint>
#include <gtest/gtest.h>
#include <string>

#include <KZMUtilities/formatters.h>
#include <KZMUtilities/shared.h>

namespace kzm {
namespace {

TEST(ManyKeys, TheMillionthWorksAndNoneLeaves) {
  constexpr std::int64_t kMany = 1'000'000;
  const auto first = KZMUtilitiesDecimalFormatterWithFractions(0, 0);
  const std::size_t before = KZMUtilities::shared().cache()->size();
  for (std::int64_t digits = 1; digits <= kMany; ++digits)
    ASSERT_NE(KZMUtilitiesDecimalFormatterWithFractions(0, digits), nullptr) << digits;
  EXPECT_EQ(KZMUtilities::shared().cache()->size() - before, static_cast<std::size_t>(kMany));
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(0, 0), first) << "the very same one";
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(0, 1)->string(0.25), "0.2");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(0, kMany)->string(0.25), "0.25");
  EXPECT_NE(KZMUtilities::shared().cache()->find("NumberFormatter-Decimal-0." + std::to_string(kMany)), Value());
}

}  // namespace
}  // namespace kzm
