#include <gtest/gtest.h>
#include <memory>
#include <string>

#include <KZMUtilities/formatters.h>
#include <KZMUtilities/shared.h>

#include "tests/support/shared_state.h"

namespace kzm {
namespace {

class PosixLocales : public tests::SharedState {};

TEST_F(PosixLocales, AreMadeOnce) {
  struct Case {
    const char* identifier;
    const char* posix;
    bool made;
  };
  const Case cases[] = {
      {"en_US", "en_US_POSIX", true},
      {"de_CH", "de_CH_POSIX", true},
      {"de", "de_POSIX", true},
      {"zh_Hant_TW", "zh_Hant_TW_POSIX", true},
      {"es_419", "es_419_POSIX", true},
      {"ca_ES_VALENCIA", "ca_ES_VALENCIA_POSIX", true},
      {"", "", false},
      {"en_US@calendar=buddhist", "en_US@calendar=buddhist", false},
      {"ar_EG@numbers=latn", "ar_EG@numbers=latn", false},
      {"not a locale", "not a locale", false},
      {"../../etc", "../../etc", false},
      {"abcdefghijk", "abcdefghijk_POSIX", true},
      {"abcdefghijkl", "abcdefghijkl", false},
      {"abcdefghijkl_DE", "abcdefghijkl_DE", false},
  };
  for (const Case& c : cases) {
    const auto locale = std::make_shared<const Locale>(c.identifier);
    const auto posix = KZMUtilitiesPosixLocale(locale);
    EXPECT_EQ(posix->identifier(), c.posix) << c.identifier;
    EXPECT_EQ(KZMUtilitiesPosixLocale(std::make_shared<const Locale>(c.identifier)) == posix, c.made) << c.identifier;
    EXPECT_EQ(posix == locale, !c.made) << c.identifier;
    EXPECT_EQ(cache()->find(std::string("Locale-Posix-") + c.identifier).isNull(), !c.made) << c.identifier;
  }
  EXPECT_EQ(KZMUtilitiesPosixLocale(nullptr), nullptr);
  const std::string huge(100000, 'a');
  EXPECT_EQ(KZMUtilitiesPosixLocale(std::make_shared<const Locale>(huge))->identifier(), huge);
}

}  // namespace
}  // namespace kzm
