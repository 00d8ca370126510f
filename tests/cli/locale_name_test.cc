#include "cli/locale_name.h"

#include <gtest/gtest.h>
#include <string>

namespace kzm::cli {
namespace {

TEST(LocaleName, IsAnIdentifierOfAKnownLanguage) {
  using enum LocaleName;
  struct Case {
    const char* why;
    std::string name;
    LocaleName judged;
  };
  const Case cases[] = {
      {"a language", "de", good},
      {"and a region", "de_CH", good},
      {"a language tag", "de-CH", good},
      {"a script", "zh_Hant_TW", good},
      {"a POSIX name", "de_CH.UTF-8", good},
      {"a modifier", "sr_RS@latin", good},
      {"a codeset and a modifier", "ca_ES.UTF-8@valencia", good},
      {"keywords", "hi_IN@numbers=deva;measure=metric", good},
      {"a variant without a region", "ca__VALENCIA", good},
      {"no locale data, but a language", "oc", good},
      {"the same", "ht_HT", good},
      {"three letters", "nan", good},
      {"a former code", "iw_IL", good},
      {"C", "C", good},
      {"C with a codeset", "C.UTF-8", good},
      {"POSIX", "POSIX", good},
      {"no such language", "xx", unknownLanguage},
      {"no such language of a region", "xx_DE", unknownLanguage},
      {"three letters of no language", "qzz", unknownLanguage},
      {"nothing", "", malformed},
      {"one letter", "d", malformed},
      {"a word", "german", malformed},
      {"a digit", "d3_CH", malformed},
      {"a space", "de CH", malformed},
      {"a separator at the end", "de_", malformed},
      {"a separator at the beginning", "_CH", malformed},
      {"too long a part", "de_abcdefghi", malformed},
      {"a path", "../de", malformed},
      {"a zero byte", std::string("de\0", 3), malformed},
      {"a control character in a modifier", "de@\x1b", malformed},
      {"too long", "de@" + std::string(200, 'x'), malformed},
  };
  for (const Case& c : cases) EXPECT_EQ(judgeLocaleName(c.name), c.judged) << c.why;
}

}  // namespace
}  // namespace kzm::cli
