#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/text.h>

#include "tests/support/runs.h"

namespace kzm {
namespace {

using namespace std::string_view_literals;
using tests::Runs;

AttributedString sample() {
  AttributedString text("%@ of ", "gray");
  text.append(AttributedString("%@ GB", "bold"));
  return text;
}

TEST(ReplaceString, TheFirstOccurrenceGetsTheTextAndTheAttributes) {
  AttributedString text = sample();
  replaceStringWithStringAttributes(text, "%@", "3", "red");
  const Runs expected = {{"3", "red"}, {" of ", "gray"}, {"%@ GB", "bold"}};
  EXPECT_EQ(tests::runsOf(text), expected);
  replaceStringWithStringAttributes(text, "%@", "%@", nullptr);
  EXPECT_EQ(text.text(), "3 of %@ GB") << "what was put in is not searched again";
}

TEST(ReplaceString, AnAttributedReplacementKeepsItsRuns) {
  AttributedString text = sample();
  AttributedString number("3", "red");
  number.append(AttributedString(".5", "blue"));
  replaceStringWithAttributedString(text, "of %@", number);
  const Runs expected = {{"%@ ", "gray"}, {"3", "red"}, {".5", "blue"}, {" GB", "bold"}};
  EXPECT_EQ(tests::runsOf(text), expected) << "across two runs";
}

TEST(ReplaceString, WhatIsNotFoundChangesNothing) {
  for (const std::string_view target : {""sv, "OF"sv, "gb"sv, "%@ of %@ GB "sv, "\xff"sv, "\0"sv}) {
    AttributedString text = sample();
    replaceStringWithStringAttributes(text, target, "X", "red");
    EXPECT_EQ(text, sample()) << target;
    replaceStringWithAttributedString(text, target, AttributedString("X"));
    EXPECT_EQ(text, sample()) << target;
  }
  AttributedString nothing;
  replaceStringWithStringAttributes(nothing, "%@", "X", nullptr);
  EXPECT_EQ(nothing, AttributedString());
}

TEST(ReplaceString, TheSearchIsLiteral) {
  AttributedString text("a.b* .b", "gray");
  replaceStringWithStringAttributes(text, ".b", "$1", nullptr);
  EXPECT_EQ(text.text(), "a$1* .b");
}

TEST(ReplaceString, AnEmptyReplacementDeletesAndNeighborsJoin) {
  AttributedString text("1 of 2", "gray");
  replaceStringWithStringAttributes(text, " of ", "", "red");
  EXPECT_EQ(tests::runsOf(text), (Runs{{"12", "gray"}}));
  replaceStringWithAttributedString(text, "12", AttributedString());
  EXPECT_TRUE(text.runs().empty());
}

TEST(ReplaceString, ATextMayReplaceAPartOfItself) {
  AttributedString text("ab", "gray");
  replaceStringWithAttributedString(text, "b", text);
  EXPECT_EQ(text.text(), "aab");
}

TEST(ReplaceString, NeverSplitsACharacter) {
  AttributedString text("20°C", "gray");
  replaceStringWithStringAttributes(text, "\xb0", "-", nullptr);  // The second byte of the degree sign.
  EXPECT_EQ(text.text(), "20-C");
}

struct MatchCase {
  const char* why;
  std::string_view text;
  std::string_view pattern;
  std::optional<std::string> group;
};

TEST(MatchForExpression, GivesTheFirstGroupOfTheFirstMatch) {
  const MatchCase cases[] = {
      {"digits before a word in another case", "12 Files", "(\\d+) files", "12"},
      {"capital letters find small ones", "x ab", "([A-Z]{2})", "ab"},
      {"the first match only", "a1 b2", "[a-z](\\d)", "1"},
      {"of two groups the first", "k=v", "(\\w)=(\\w)", "k"},
      {"an outer group counts first", "ab", "((a)b)", "ab"},
      {"an empty group takes part", "abc", "()b", ""},
      {"an empty text", "", "(a*)", ""},
      {"lines are no borders", "a\nb", "a\\s(b)", "b"},
      {"the caret is the text's beginning", "a\nb", "^(b)", std::nullopt},
      {"the dot stops at a line's end", "ab\ncd", "(.+)", "ab"},
      {"sharp s and double s", "Straße", "(STRASSE)", "Straße"},
      {"final sigma", "ΟΔΟΣ", "(οδος)", "ΟΔΟΣ"},
      {"the Kelvin sign", "\u212A", "(k)", "\u212A"},
      {"the dotted capital is no i", "İ", "^(i)$", std::nullopt},
      {"beyond the first plane", "a😀b", "a(.)b", "😀"},
      {"a zero byte in the text", "a\0b"sv, "(\\x00b)", std::string("\0b", 2)},
      {"a zero byte in the pattern", "a\0b"sv, "(a\0b)"sv, std::string("a\0b", 3)},
      {"a back-reference", "xx yy", "(y)\\1", "y"},
      {"one group referred to by name", "abab", "(?<p>ab)\\k<p>", "ab"},
      {"an invalid byte is one U+FFFD",
       "a\xff"
       "b"sv,
       "a(.)b", "\uFFFD"},
      {"a cut character too", "a\xc3"sv, "a(.)$", "\uFFFD"},
      {"invalid bytes in the pattern",
       "a\xff"
       "b"sv,
       "(a\xff"
       "b)"sv,
       "a\uFFFDb"},
      {"a surrogate in UTF-8", "\xed\xa0\x80"sv, "(b)", std::nullopt},
      {"the optional group took no part", "bc", "(a)?bc", std::nullopt},
      {"no match", "abc", "(d)", std::nullopt},
      {"no group", "abc", "b", std::nullopt},
      {"an uncounted group", "abc", "(?:b)", std::nullopt},
      {"an empty pattern", "abc", "", std::nullopt},
      {"unclosed group", "abc", "(", std::nullopt},
      {"unclosed set", "abc", "([", std::nullopt},
      {"nothing to repeat", "abc", "(*a)", std::nullopt},
      {"a lone backslash", "abc", "(b)\\", std::nullopt},
      {"interval the wrong way", "aaa", "(a{2,1})", std::nullopt},
      {"interval too large", "aaa", "(a){0,2147483647}", std::nullopt},
      {"unknown property", "abc", "(\\p{Nonsense})", std::nullopt},
      {"unbounded look-behind", "abc", "(?<=a*)(b)", std::nullopt},
  };
  for (const MatchCase& c : cases) {
    EXPECT_EQ(matchForExpression(c.text, c.pattern), c.group) << c.why;
    EXPECT_EQ(doesStringMatchExpression(c.text, c.pattern), c.group.has_value()) << c.why;
  }
}

}  // namespace
}  // namespace kzm
