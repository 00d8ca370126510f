#include "c/options_memo.h"

#include <gtest/gtest.h>

#include "catalogue/errors.h"

namespace kzm::c {
namespace {

// {"n": number}, with as many bytes after it as make it that long.
std::string textOf(int number, std::size_t size = 0) {
  std::string text = "{\"n\": " + std::to_string(number) + "}";
  text.resize(std::max(text.size(), size), ' ');
  return text;
}

TEST(OptionsMemo, ReadsATextOnce) {
  OptionsMemo memo;
  const std::string text = textOf(1);
  const Dictionary* first = &memo.read(text.c_str());
  EXPECT_EQ(*first, (Dictionary{{"n", 1}}));
  EXPECT_EQ(&memo.read(std::string(text).c_str()), first) << "the same text at another place";
  EXPECT_TRUE(memo.read(nullptr).empty());
  EXPECT_TRUE(memo.read("null").empty());
}

TEST(OptionsMemo, TextsThatDifferInOneByteAreTwo) {
  OptionsMemo memo;
  std::string text = textOf(1, 100);
  EXPECT_EQ(memo.read(text.c_str()), (Dictionary{{"n", 1}}));
  text[6] = '2';
  EXPECT_EQ(memo.read(text.c_str()), (Dictionary{{"n", 2}}));
  EXPECT_EQ(memo.read(textOf(1).c_str()), (Dictionary{{"n", 1}}));
}

TEST(OptionsMemo, MoreTextsThanItRemembersAreStillRight) {
  OptionsMemo memo;
  constexpr int kTexts = 2 * OptionsMemo::kTexts + 1;
  for (int round = 0; round < 3; ++round) {
    for (int i = 0; i < kTexts; ++i) EXPECT_EQ(memo.read(textOf(i).c_str()), (Dictionary{{"n", i}}));
  }
}

TEST(OptionsMemo, TheOldestIsForgottenFirst) {
  OptionsMemo memo;
  const auto placeOf = [&memo](int number) { return &memo.read(textOf(number).c_str()); };
  constexpr int kTexts = OptionsMemo::kTexts;
  for (int i = 0; i < kTexts; ++i) static_cast<void>(placeOf(i));
  const Dictionary* second = placeOf(1);
  const Dictionary* first = placeOf(0);
  EXPECT_EQ(placeOf(kTexts), first) << "one more takes the place of the first";
  EXPECT_EQ(placeOf(1), second);
}

TEST(OptionsMemo, LongTextsAreReadAnew) {
  OptionsMemo memo;
  const std::string longest = textOf(1, OptionsMemo::kLongest);
  const Dictionary* kept = &memo.read(longest.c_str());
  EXPECT_EQ(memo.read(textOf(2, OptionsMemo::kLongest + 1).c_str()), (Dictionary{{"n", 2}}));
  EXPECT_EQ(memo.read(textOf(3, 65536).c_str()), (Dictionary{{"n", 3}}));
  EXPECT_EQ(&memo.read(longest.c_str()), kept);
}

TEST(OptionsMemo, WhatIsNoObjectIsRefusedEachTime) {
  OptionsMemo memo;
  for (int i = 0; i < 2; ++i) {
    EXPECT_THROW(static_cast<void>(memo.read("[]")), catalogue::InputError);
    EXPECT_THROW(static_cast<void>(memo.read("{")), catalogue::InputError);
  }
}

}  // namespace
}  // namespace kzm::c
