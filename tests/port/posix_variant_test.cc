#include "port/posix_variant.h"

#include <gtest/gtest.h>

#include "port/canonical_locale.h"

namespace kzm::port {
namespace {

TEST(PosixVariant, IsThereForWellFormedIdentifiersWithoutKeywords) {
  struct Case {
    const char* why;
    const char* identifier;
    bool takes;
  };
  const Case cases[] = {
      {"a language", "de", true},
      {"a country", "de_CH", true},
      {"a script", "zh_Hant_TW", true},
      {"empty", "", false},
      {"a keyword, which would swallow the suffix", "hi_IN@numbers=deva", false},
      {"a codeset", "de_CH.UTF-8", false},
      {"a space", "de CH", false},
      {"a digit first", "1de", false},
      {"a separator first", "_CH", false},
      {"a letter of no identifier", "dé", false},
  };
  for (const Case& c : cases) EXPECT_EQ(takesPosixVariant(c.identifier), c.takes) << c.why;
}

TEST(PosixVariant, IsNotThereForWhatIcuCutsOff) {
  std::string identifier = "de_CH";
  while (identifier.size() + 9 <= kLongestIdentifier) identifier += "_VARIANTS";
  identifier += "_" + std::string(kLongestIdentifier - identifier.size() - 1, 'V');
  EXPECT_TRUE(takesPosixVariant(identifier)) << identifier;
  EXPECT_FALSE(takesPosixVariant(identifier + "V"));
  EXPECT_FALSE(takesPosixVariant("de_" + std::string(200, 'x')));
}

}  // namespace
}  // namespace kzm::port
