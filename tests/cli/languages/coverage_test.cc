// Which languages there are, and how far they are translated.
#include "cli/languages/coverage.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kzm::cli {
namespace {

TEST(Coverage, OfEveryLanguage) {
  struct Case {
    const char* language;
    const char* name;
  };
  const Case cases[] = {
      {"en", "English"},
      {"de", "Deutsch"},
      {"de-CH", "Deutsch (Schweiz)"},
      {"pt-PT", "português (Portugal)"},
      {"sr-Latn", "srpski (latinica)"},
  };
  const std::vector<Coverage> all = coverages();
  const std::size_t words = std::ranges::find(all, "en", &Coverage::language)->words;
  EXPECT_GE(words, 33U);
  for (const Case& test : cases) {
    const auto found = std::ranges::find(all, test.language, &Coverage::language);
    ASSERT_NE(found, all.end()) << test.language;
    EXPECT_EQ(found->name, test.name);
    EXPECT_EQ(found->units, 127U) << test.language;
    EXPECT_GE(found->words, 33U) << test.language << ", with those of its parent";
    EXPECT_LE(found->words, words) << test.language;
  }
  EXPECT_TRUE(std::ranges::is_sorted(all, {}, &Coverage::language));
}

}  // namespace
}  // namespace kzm::cli
