#include "c/last_error.h"

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <string>

namespace kzm::c {
namespace {

TEST(LastError, IsCutBetweenCharacters) {
  struct Case {
    const char* why;
    std::string text;
    std::string reported;
  };
  const Case cases[] = {
      {"short", "no", "no"},
      {"the longest", std::string(255, 'a'), std::string(255, 'a')},
      {"one byte too long", std::string(256, 'a'), std::string(255, 'a')},
      {"two bytes that do not fit", std::string(254, 'a') + "\u00e4", std::string(254, 'a')},
      {"two bytes that just fit", std::string(253, 'a') + "\u00e4b", std::string(253, 'a') + "\u00e4"},
  };
  for (const Case& c : cases) {
    setError(c.text);
    EXPECT_EQ(lastError, c.reported) << c.why;
  }
}

TEST(LastError, ReportsWhateverIsThrown) {
  EXPECT_EQ(guarded(7, []() -> int { throw std::bad_alloc(); }), 7);
  EXPECT_STREQ(lastError, "out of memory");
  EXPECT_EQ(guarded(7, []() -> int { throw std::runtime_error("no"); }), 7);
  EXPECT_STREQ(lastError, "no");
  EXPECT_EQ(guarded(7, []() -> int { throw 1; }), 7);
  EXPECT_STREQ(lastError, "something was thrown that is no error");
  EXPECT_EQ(guarded(7, [] { return 8; }), 8);
  EXPECT_EQ(lastError, nullptr);
}

}  // namespace
}  // namespace kzm::c
