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
    std::size_t units;
    std::size_t words;
  };
  const Case cases[] = {
      {"en", "English", 127, 33},
      {"de", "Deutsch", 127, 33},
      {"pt-PT", "português (Portugal)", 127, 33},
      {"de-CH", "Deutsch (Schweiz)", 127, 33},
      {"sr-Latn", "srpski (latinica)", 127, 33},
  };
  const std::vector<Coverage> all = coverages();
  for (const Case& test : cases) {
    const auto found = std::ranges::find(all, test.language, &Coverage::language);
    ASSERT_NE(found, all.end()) << test.language;
    EXPECT_EQ(found->name, test.name);
    EXPECT_EQ(found->units, test.units) << test.language;
    EXPECT_EQ(found->words, test.words) << test.language;
  }
  EXPECT_TRUE(std::ranges::is_sorted(all, {}, &Coverage::language));
}

}  // namespace
}  // namespace kzm::cli
