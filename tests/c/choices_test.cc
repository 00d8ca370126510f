#include <gtest/gtest.h>

#include "tests/c/text.h"

namespace kzm::tests {
namespace {

TEST(Choices, TheLocaleIsChosenBeforeTheFirstText) {
  EXPECT_EQ(kzm_mps_to_kph(1.0), 3.6);  // no text
  EXPECT_EQ(kzm_set_locale("de_DE"), 1);
  EXPECT_EQ(text(kzm_current_locale()), "de_DE");
  EXPECT_EQ(kzm_set_locale("fr_FR"), 1);
  EXPECT_EQ(text(kzm_format_number("{\"decimals\": 1}", 1234.5)), "1\u202f234,5");

  EXPECT_EQ(kzm_set_locale("de_DE"), 0);
  EXPECT_EQ(lastError(), "the locale is chosen before the first text is made");
  EXPECT_EQ(text(kzm_current_locale()), "fr_FR");
  EXPECT_EQ(text(kzm_format_number("{\"decimals\": 2}", 1234.56)), "1\u202f234,56");
}

TEST(Choices, TheTimeZoneCanBeChosenAtAnyTime) {
  EXPECT_EQ(kzm_set_time_zone("Asia/Tokyo"), 1);
  EXPECT_EQ(kzm_corrected(0.0), 32400.0);
  EXPECT_EQ(kzm_set_time_zone("UTC"), 1);
  EXPECT_EQ(kzm_corrected(0.0), 0.0);
}

}  // namespace
}  // namespace kzm::tests
