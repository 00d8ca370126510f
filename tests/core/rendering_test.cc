#include "core/rendering.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include <KZMUtilities/formatters.h>

#include "tests/support/allocations.h"

namespace kzm::core {
namespace {

constexpr Template kGiga("%@ GB");

class Rendering : public testing::Test {
 protected:
  Rendering() { setCurrentLocale("en_US"); }
};

std::vector<std::string> keysOf(const Dictionary& dictionary) {
  std::vector<std::string> keys;
  for (const auto& entry : dictionary) keys.push_back(entry.key);
  return keys;
}

TEST_F(Rendering, DigitsAreWrittenAsTheAmountSays) {
  struct Case {
    Digits digits;
    std::int64_t decimals;
    const char* text;
  };
  constexpr Case kCases[] = {
      {Digits::exactly, 2, "1,234.50 GB"},
      {Digits::exactly, 0, "1,234 GB"},
      {Digits::atMost, 2, "1,234.5 GB"},
      {Digits::atMostNow, 2, "1,234.5 GB"},
      {Digits::atMostNow, 0, "1,234 GB"},
      {Digits::wholeByThrees, 2, "1,234 GB"},
      {Digits::exactly, 20, "1,234.50000000000000000000 GB"},
      {Digits::plain, 2, "1234 GB"},
  };
  for (const Case& c : kCases) EXPECT_EQ(text(kGiga, {c.digits, c.decimals, 1234.5}), c.text);
}

TEST_F(Rendering, OfAUnitThatIsNotThereIsEmpty) {
  const Amount amount{Digits::exactly, 1, 2.5};
  EXPECT_EQ(text(Template(), amount), "");
  EXPECT_EQ(attributedText(Template(), amount, {}), AttributedString());
  EXPECT_EQ(data(Template(), amount), (Dictionary{{"format", Value()}, {"decimals", std::int64_t{1}}, {"value", 2.5}}));
}

TEST_F(Rendering, DataHasItsEntriesInOrder) {
  const Amount amount{Digits::exactly, 1, 2.5};
  const Dictionary expected{{"format", "%@ GB"}, {"decimals", std::int64_t{1}}, {"value", 2.5}};
  const Dictionary first = data(kGiga, amount);
  const Dictionary last = data(kGiga, amount, FormatKey::last);
  EXPECT_EQ(first, expected);
  EXPECT_EQ(last, expected);
  EXPECT_EQ(keysOf(first), (std::vector<std::string>{"format", "decimals", "value"}));
  EXPECT_EQ(keysOf(last), (std::vector<std::string>{"decimals", "value", "format"}));
}

TEST_F(Rendering, TakesAsFewAllocationsAsAResultCan) {
  const Amount amount{Digits::exactly, 1, 2.5};
  const Dictionary styles{{"attributes-main", "bold"}, {"attributes-units", "gray"}};
  const auto allocationsOf = [](const auto& render) {
    static_cast<void>(render());
    const std::size_t before = tests::allocations();
    static_cast<void>(render());
    return tests::allocations() - before;
  };
  EXPECT_EQ(allocationsOf([&] { return text(kGiga, amount); }), 0U) << "the string's own room";
  EXPECT_EQ(allocationsOf([&] { return attributedText(kGiga, amount, styles); }), 1U) << "its runs";
  EXPECT_EQ(allocationsOf([&] { return data(kGiga, amount); }), 1U) << "its entries";
}

}  // namespace
}  // namespace kzm::core
