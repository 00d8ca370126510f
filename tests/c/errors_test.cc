#include <cmath>
#include <gtest/gtest.h>

#include "tests/c/text.h"

namespace kzm::tests {
namespace {

std::string deep(std::size_t levels) { return "{\"a\": " + std::string(levels, '[') + std::string(levels, ']') + "}"; }

TEST(Errors, AreReportedInOneLine) {
  struct Case {
    const char* why;
    char* (*call)();
    const char* error;
  };
  const Case cases[] = {
      {"no JSON", [] { return kzm_format_memory("{", 1.0); }, "malformed JSON at byte 2"},
      {"empty text", [] { return kzm_format_memory("", 1.0); }, "malformed JSON at byte 1"},
      {"no object", [] { return kzm_format_memory("[]", 1.0); }, "expected an object or null, not array"},
      {"too large a number", [] { return kzm_format_memory("{\"a\": 1e999}", 1.0); },
       "a number in the JSON is out of range"},
      {"JSON that is not UTF-8", [] { return kzm_format_memory("{\"a\": \"\xff\"}", 1.0); },
       "malformed JSON at byte 8"},
      {"too deep", [] { return kzm_format_memory(deep(257).c_str(), 1.0); }, "nested deeper than 256 levels"},
      {"absurdly deep", [] { return kzm_format_memory(deep(200000).c_str(), 1.0); }, "nested deeper than 256 levels"},
      {"no text", [] { return kzm_match_for_expression(nullptr, "(a)"); }, "expected a string, not null"},
      {"a text that is not UTF-8", [] { return kzm_match_for_expression("\xc3", "(a)"); }, "a text is not UTF-8"},
      {"no locale", [] { return kzm_posix_locale(nullptr); }, "expected a locale identifier, not null"},
      {"no styled text", [] { return kzm_replace_string_with_attributed_string(nullptr, "a", "{\"runs\": []}"); },
       "expected an object with \"text\" and \"runs\", not null"},
      {"the first of two", [] { return kzm_replace_string_with_attributed_string("1", "a", "2 2"); },
       "expected an object with \"text\" and \"runs\", not number"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(text(c.call()), "NULL") << c.why;
    EXPECT_EQ(lastError(), c.error) << c.why;
  }
}

TEST(Errors, OfNumbersAreNaNAndOfTruthZero) {
  EXPECT_TRUE(std::isnan(kzm_day_start_with_timezone(0.0, "No/Where")));
  EXPECT_EQ(lastError(), "no time zone is named \"No/Where\"");
  EXPECT_EQ(kzm_does_string_match_expression("a", nullptr), 0);
  EXPECT_EQ(lastError(), "expected a string, not null");
  EXPECT_EQ(kzm_set_time_zone("No/Where"), 0);
  EXPECT_EQ(lastError(), "no time zone is named \"No/Where\"");
  EXPECT_EQ(kzm_use_settings("[]"), 0);
  EXPECT_EQ(lastError(), "expected an object or null, not array");
}

TEST(Errors, AreForgottenByTheNextCall) {
  EXPECT_EQ(text(kzm_format_memory("{", 1.0)), "NULL");
  EXPECT_NE(lastError(), "");
  EXPECT_EQ(text(kzm_sensor_data(99, nullptr, 1.0)), "NULL");
  EXPECT_EQ(lastError(), "");
}

TEST(Errors, AreNotRememberedWithTheOptions) {
  for (int i = 0; i < 3; ++i) EXPECT_EQ(text(kzm_format_memory("{\"space\"", 1.0)), "NULL");
  EXPECT_EQ(text(kzm_format_memory("{\"space\": 1}", 1.0)), "0 KB");
}

TEST(Errors, NothingIsFreed) { kzm_free(nullptr); }

}  // namespace
}  // namespace kzm::tests
