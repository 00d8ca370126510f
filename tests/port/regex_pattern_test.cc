#include "port/regex_pattern.h"

#include <gtest/gtest.h>
#include <string_view>

namespace kzm::port {
namespace {

TEST(RegexPattern, FindsBackReferences) {
  struct Case {
    const char* why;
    std::string_view pattern;
    bool refersBack;
  };
  const Case cases[] = {
      {"by number", R"((b)\1)", true},
      {"by the last number", R"((b)\9)", true},
      {"by name", R"((?<n>b)\k<n>)", true},
      {"none", R"((b)\d1)", false},
      {"an escaped backslash before a digit", R"((b)\\1)", false},
      {"an escaped backslash before a reference", R"((b)\\\1)", true},
      {"an octal digit", R"((b)\01)", false},
      {"quoted", R"(\Q\k\E(b))", false},
      {"quoted to the end", R"((b)\Q\1)", false},
      {"after a quotation", R"((b)\Qa\E\1)", true},
      {"an end of no quotation", R"((b)\E\1)", true},
      {"a quotation in what may be a comment", "(?x)#\\Q\n(b)\\1", true},
      {"a flag of a group", "(?i-x:#\\Q\n(b)\\1)", true},
      {"a name is no flag", R"((?<x>b)\Q\1)", false},
      {"a lone backslash", R"((b)\)", false},
      {"nothing", "", false},
  };
  for (const Case& c : cases) EXPECT_EQ(workOf(c.pattern).refersBack, c.refersBack) << c.why;
}

TEST(RegexPattern, EstimatesWhatSetsTake) {
  constexpr double kNothing = 0;
  constexpr double kLetters = 0.6;
  constexpr double kMost = 2.5;
  struct Case {
    const char* why;
    std::string_view pattern;
    double milliseconds;
  };
  const Case cases[] = {
      {"no set", R"((a|b)*\W\d\X)", kNothing},
      {"a set of single characters", "[abc\xc3\xa4]", kNothing},
      {"its complement", "[^abc]", kNothing},
      {"digits", R"([\d])", kNothing},
      {"a range", "[a-z]", kNothing},
      {"a range to an escaped sign", R"([+-\/])", kNothing},
      {"a range to an escape", R"([\x{0}-\x{10ffff}])", kMost},
      {"a range beyond ASCII", "[a-\xf4\x8f\xbf\xbf]", kMost},
      {"word characters", R"([\w])", kLetters},
      {"all others", R"([\W])", kMost},
      {"all but digits", R"([\D])", kMost},
      {"all but spaces within a line", R"([\H])", kMost},
      {"all but spaces", R"([\S])", kMost},
      {"all but line ends", R"([\V])", kMost},
      {"twice in one set", R"([\W\D])", kMost},
      {"in two sets", R"([\W][\D])", 2 * kMost},
      {"after a bracket in the first place", R"([]\W])", kMost},
      {"the same in a complement", R"([^]\W])", kMost},
      {"a quoted bracket", R"([a\Q]\E\W])", kMost},
      {"an escaped bracket", R"(\[\W])", kNothing},
      {"a complement in a set", "[b[^a]]", kMost},
      {"a set in a set", R"([[\W]])", 2 * kMost},
      {"what is kept of a set", "[a-z&&[^b]]", kNothing},
      {"what is kept of a large set", R"([\W&&a])", kNothing},
      {"what is taken away", R"([a--\W])", kNothing},
      {"what is taken away from a large set", R"([\W--a])", kNothing},
      {"a property", R"(\p{L})", kLetters},
      {"a property in a set", R"([\p{L}])", 2 * kLetters},
      {"the other characters in a set", R"([\P{L}])", kLetters + kMost},
      {"a POSIX class", "[[:alpha:]]", 2 * kLetters},
      {"the other characters", "[[:^alpha:]]", 2 * kMost},
      {"a set that is not closed", R"([\W)", kMost},
      {"a closing bracket alone", R"(a]\W)", kNothing},
      {"operators outside a set", R"(a&&b--c-\W)", kNothing},
      {"any set where comments may be", "(?x)[#]\n\\W]", kMost},
  };
  for (const Case& c : cases) EXPECT_DOUBLE_EQ(workOf(c.pattern).setMilliseconds, c.milliseconds) << c.why;
}

}  // namespace
}  // namespace kzm::port
