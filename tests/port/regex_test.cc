#include "port/regex.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <thread>
#include <vector>

#include "tests/support/sweeps.h"

namespace kzm::port {
namespace {

TEST(Regex, LongTextsAreReadToTheEnd) {
  const std::string text = std::string(1000000, 'a') + " 42 b";
  EXPECT_EQ(firstGroup(text, "(\\d+) B"), "42");
  EXPECT_EQ(firstGroup(text, "a (\\d+)"), "42");
  const std::string large = std::string(tests::inSweep<std::size_t>(64, 4) << 20U, 'a') + " 42 zebra";
  for (const char* pattern : {"(zebra)", "\\d+ (ZEBRA)", "(z[a-e]+ra)$"})
    EXPECT_EQ(firstGroup(large, pattern), "zebra") << pattern;
}

// Most of these would take years without a bound.
TEST(Regex, GivesUpWhatWouldRunAway) {
  struct Case {
    const char* why;
    const char* text;
    const char* pattern;
  };
  const Case cases[] = {
      {"nested repetition", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!", "(a+)+$"},
      {"alternatives", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!", "(a|aa)+$"},
      {"nested look-ahead", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!", "((?=(a+)+$)|a)+!?\\d"},
  };
  for (const Case& c : cases) EXPECT_EQ(firstGroup(c.text, c.pattern), std::nullopt) << c.why;
  const std::string many(1000000, 'a');
  EXPECT_EQ(firstGroup(many, "((?:a|b)*)c"), std::nullopt) << "the engine's stack is full";
  EXPECT_EQ(firstGroup(many, "(a*)\\1b"), std::nullopt) << "long back-references";
}

TEST(Regex, GivesUpAfterItsTime) {
  if (!tests::sweepsAreWhole()) GTEST_SKIP() << "left out: it takes the seconds that a search may take";
  const std::string many(1000000, 'a');
  EXPECT_EQ(firstGroup(many, "([^x]*+)y"), std::nullopt) << "work that is not counted in steps";
  EXPECT_EQ(firstGroup(many, std::string(16000, 'a') + "(b)"), std::nullopt) << "a long literal";
  const std::string_view longest = std::string_view(many).substr(0, kLongestTextForBackReference);
  EXPECT_EQ(firstGroup(longest, "(a*)\\1b"), std::nullopt) << "back-references in all that is searched";
}

TEST(Regex, TheBoundsAreThese) {
  EXPECT_EQ(kLongestText, 1073741824U);
  EXPECT_EQ(kLongestTextForBackReference, 16384U);
  EXPECT_EQ(kLongestPattern, 65536U);
  EXPECT_EQ(kAlwaysCompiled, 2048U);
}

std::string repeated(std::string_view text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

TEST(Regex, LongTextsAreNotSearchedForBackReferences) {
  const std::string doubled = std::string(kLongestTextForBackReference - 2, 'a') + "bb";
  EXPECT_EQ(firstGroup(doubled, "(b)\\1"), "b");
  EXPECT_EQ(firstGroup(doubled, "(b)\\1|" + std::string(kAlwaysCompiled, 'c')), "b") << "long patterns neither";
  EXPECT_EQ(firstGroup(doubled + "a", "(b)\\1"), std::nullopt);
  EXPECT_EQ(firstGroup(doubled + "\\1", "(b)\\\\1"), "b") << "a backslash and a digit";
  EXPECT_EQ(firstGroup(doubled + "\\k", "\\Q\\k\\E|(b)"), "b") << "quoted";
}

TEST(Regex, RefusesPatternsThatTakeTooLongToCompile) {
  const std::string set = "[\\W]";
  const std::size_t fits = (kAlwaysCompiled - 8) / set.size();
  EXPECT_EQ(firstGroup("b", "(b)|" + repeated(set, fits)), "b") << "two kilobytes, whatever they hold";
  EXPECT_EQ(firstGroup("b", "(b)|" + repeated(set, 3200)), std::nullopt);
  EXPECT_EQ(firstGroup("b", "(b)|" + repeated("[\\x{0}-\\x{10ffff}]", 700)), std::nullopt);
  EXPECT_EQ(firstGroup("b", "(b)|" + repeated("[^a]", 4000)), "b") << "sets that cost next to nothing";
  EXPECT_EQ(firstGroup("b", "(b)|" + repeated("\\W", 5000)), "b") << "no set at all";
  const std::string longest = "(b)|" + std::string(kLongestPattern - 4, 'c');
  EXPECT_EQ(firstGroup("b", longest), "b");
  EXPECT_EQ(firstGroup("b", longest + "c"), std::nullopt);
}

TEST(Regex, ATextBeyondAnyLimitIsNotEvenRead) {
  // Where there can be one, a size that does not fit in 32 bits.
  constexpr std::size_t kMebibytes = sizeof(std::size_t) > 4 ? 5 * 1024 : 1536;
  constexpr std::size_t kSize = kMebibytes << 20U;
  void* memory = mmap(nullptr, kSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  ASSERT_NE(memory, MAP_FAILED);
  const std::string_view huge(static_cast<const char*>(memory), kSize);
  EXPECT_EQ(firstGroup(huge, "(a)"), std::nullopt);
  EXPECT_EQ(firstGroup("a", huge), std::nullopt);
  munmap(memory, kSize);
}

TEST(Regex, AnotherPatternIsNotTakenForTheLastOne) {
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(firstGroup("ab", "(a)"), "a");
    EXPECT_EQ(firstGroup("b", "(a)"), std::nullopt);
    EXPECT_EQ(firstGroup("ab", "(a"), std::nullopt);
    EXPECT_EQ(firstGroup("ab", "(a"), std::nullopt);
    EXPECT_EQ(firstGroup("ab", ""), std::nullopt);
    EXPECT_EQ(firstGroup("ab", "(b)"), "b");
  }
}

TEST(Regex, EveryThreadMaySearch) {
  std::vector<std::optional<std::string>> results(8);
  std::vector<std::thread> threads;
  threads.reserve(results.size());
  for (auto& result : results) {
    threads.emplace_back([&result] {
      for (int i = 0; i < 200; ++i) result = firstGroup("12 Files", "(\\d+) files");
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const auto& result : results) EXPECT_EQ(result, "12");
}

}  // namespace
}  // namespace kzm::port
