#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <thread>
#include <vector>

#include <KZMUtilities/text.h>

#include "port/regex.h"
#include "tests/support/runs.h"
#include "tests/support/sweeps.h"

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

TEST(MatchForExpression, LongTextsAreReadToTheEnd) {
  const std::string text = std::string(1000000, 'a') + " 42 b";
  EXPECT_EQ(matchForExpression(text, "(\\d+) B"), "42");
  EXPECT_EQ(matchForExpression(text, "a (\\d+)"), "42");
  const std::string large = std::string(tests::inSweep<std::size_t>(64, 4) << 20U, 'a') + " 42 zebra";
  for (const char* pattern : {"(zebra)", "\\d+ (ZEBRA)", "(z[a-e]+ra)$"})
    EXPECT_EQ(matchForExpression(large, pattern), "zebra") << pattern;
}

// Most of these would take years without a bound.
TEST(MatchForExpression, GivesUpWhatWouldRunAway) {
  const MatchCase cases[] = {
      {"nested repetition", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!", "(a+)+$", std::nullopt},
      {"alternatives", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!", "(a|aa)+$", std::nullopt},
      {"nested look-ahead", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!", "((?=(a+)+$)|a)+!?\\d", std::nullopt},
  };
  for (const MatchCase& c : cases) EXPECT_EQ(matchForExpression(c.text, c.pattern), c.group) << c.why;
  const std::string many(1000000, 'a');
  EXPECT_EQ(matchForExpression(many, "((?:a|b)*)c"), std::nullopt) << "the engine's stack is full";
  EXPECT_EQ(matchForExpression(many, "(a*)\\1b"), std::nullopt) << "long back-references";
}

TEST(MatchForExpression, GivesUpAfterItsTime) {
  if (!tests::sweepsAreWhole()) GTEST_SKIP() << "left out: it takes the seconds that a search may take";
  const std::string many(1000000, 'a');
  EXPECT_EQ(matchForExpression(many, "([^x]*+)y"), std::nullopt) << "work that is not counted in steps";
  EXPECT_EQ(matchForExpression(many, std::string(16000, 'a') + "(b)"), std::nullopt) << "a long literal";
  const std::string_view longest = std::string_view(many).substr(0, port::kLongestTextForBackReference);
  EXPECT_EQ(matchForExpression(longest, "(a*)\\1b"), std::nullopt) << "back-references in all that is searched";
}

TEST(MatchForExpression, TheBoundsAreThese) {
  EXPECT_EQ(port::kLongestText, 1073741824U);
  EXPECT_EQ(port::kLongestTextForBackReference, 16384U);
  EXPECT_EQ(port::kLongestPattern, 65536U);
  EXPECT_EQ(port::kAlwaysCompiled, 2048U);
}

std::string repeated(std::string_view text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

TEST(MatchForExpression, LongTextsAreNotSearchedForBackReferences) {
  const std::string doubled = std::string(port::kLongestTextForBackReference - 2, 'a') + "bb";
  EXPECT_EQ(matchForExpression(doubled, "(b)\\1"), "b");
  EXPECT_EQ(matchForExpression(doubled + "a", "(b)\\1"), std::nullopt);
  EXPECT_EQ(matchForExpression(doubled + "\\1", "(b)\\\\1"), "b") << "a backslash and a digit";
  EXPECT_EQ(matchForExpression(doubled + "\\k", "\\Q\\k\\E|(b)"), "b") << "quoted";
}

TEST(MatchForExpression, RefusesPatternsThatTakeTooLongToCompile) {
  const std::string set = "[\\W]";
  const std::size_t fits = (port::kAlwaysCompiled - 8) / set.size();
  EXPECT_EQ(matchForExpression("b", "(b)|" + repeated(set, fits)), "b") << "two kilobytes, whatever they hold";
  EXPECT_EQ(matchForExpression("b", "(b)|" + repeated(set, 3200)), std::nullopt);
  EXPECT_EQ(matchForExpression("b", "(b)|" + repeated("[\\x{0}-\\x{10ffff}]", 700)), std::nullopt);
  EXPECT_EQ(matchForExpression("b", "(b)|" + repeated("[^a]", 4000)), "b") << "sets that cost next to nothing";
  EXPECT_EQ(matchForExpression("b", "(b)|" + repeated("\\W", 5000)), "b") << "no set at all";
  const std::string longest = "(b)|" + std::string(port::kLongestPattern - 4, 'c');
  EXPECT_EQ(matchForExpression("b", longest), "b");
  EXPECT_EQ(matchForExpression("b", longest + "c"), std::nullopt);
}

TEST(MatchForExpression, ATextBeyondAnyLimitIsNotEvenRead) {
  // Where there can be one, a size that does not fit in 32 bits.
  constexpr std::size_t kMebibytes = sizeof(std::size_t) > 4 ? 5 * 1024 : 1536;
  constexpr std::size_t kSize = kMebibytes << 20U;
  void* memory = mmap(nullptr, kSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  ASSERT_NE(memory, MAP_FAILED);
  const std::string_view huge(static_cast<const char*>(memory), kSize);
  EXPECT_FALSE(doesStringMatchExpression(huge, "(a)"));
  EXPECT_FALSE(doesStringMatchExpression("a", huge));
  munmap(memory, kSize);
}

TEST(MatchForExpression, AnotherPatternIsNotTakenForTheLastOne) {
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(matchForExpression("ab", "(a)"), "a");
    EXPECT_EQ(matchForExpression("b", "(a)"), std::nullopt);
    EXPECT_EQ(matchForExpression("ab", "(a"), std::nullopt);
    EXPECT_EQ(matchForExpression("ab", "(a"), std::nullopt);
    EXPECT_EQ(matchForExpression("ab", ""), std::nullopt);
    EXPECT_EQ(matchForExpression("ab", "(b)"), "b");
  }
}

TEST(MatchForExpression, EveryThreadMaySearch) {
  std::vector<std::optional<std::string>> results(8);
  std::vector<std::thread> threads;
  threads.reserve(results.size());
  for (auto& result : results) {
    threads.emplace_back([&result] {
      for (int i = 0; i < 200; ++i) result = matchForExpression("12 Files", "(\\d+) files");
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const auto& result : results) EXPECT_EQ(result, "12");
}

}  // namespace
}  // namespace kzm
