#include "port/locale_form.h"

#include <gtest/gtest.h>

namespace kzm::port {
namespace {

TEST(LocaleForm, IsALanguageAndSubtagsAfterSeparators) {
  struct Case {
    const char* why;
    std::string_view head;
    bool isOne;
  };
  const Case cases[] = {
      {"a language", "de", true},
      {"of three letters", "yue", true},
      {"a region", "de_CH", true},
      {"the other separator", "de-CH", true},
      {"a script and a region", "sr_Latn_RS", true},
      {"an empty region", "ca__VALENCIA", true},
      {"digits in a subtag", "es_419", true},
      {"the longest subtag", "de_12345678", true},
      {"a subtag that is too long", "de_123456789", false},
      {"nothing", "", false},
      {"one letter", "d", false},
      {"one letter and a subtag", "C_UTF", false},
      {"a long language", "german", false},
      {"a digit in the language", "d1", false},
      {"a digit after the language", "de1", false},
      {"a separator first", "_DE", false},
      {"a separator last", "de_", false},
      {"a codeset", "de.UTF-8", false},
      {"letters beyond ASCII", "dé_DE", false},
      {"a space", "de CH", false},
  };
  for (const Case& c : cases) EXPECT_EQ(isLocaleHead(c.head), c.isOne) << c.why;
}

}  // namespace
}  // namespace kzm::port
