#include "widest/digits.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kzm::widest {
namespace {

double widthOf(const std::string& number, const DigitWidths& digits) {
  double width = 0.0;
  const std::size_t end = digits.showsLastZeros ? number.size() : number.find_last_not_of('0') + 1;
  for (const char digit : number.substr(0, end)) width += digits.widths[static_cast<std::size_t>(digit - '0')];
  return width;
}

std::string widestOf(const std::vector<std::string>& numbers, const DigitWidths& digits) {
  return *std::ranges::max_element(numbers, {}, [&](const std::string& number) { return widthOf(number, digits); });
}

TEST(WideNumbers, HoldTheWidest) {
  constexpr DigitWidths kEven{{7, 7, 7, 7, 7, 7, 7, 7, 7, 7}, true};
  constexpr DigitWidths kNarrowOne{{7, 4, 6, 6, 6, 6, 6, 5, 8, 6}, true};
  constexpr DigitWidths kWideZero{{9, 4, 6, 6, 6, 6, 6, 5, 8, 6}, true};
  constexpr DigitWidths kWideZeroNotLast{{9, 4, 6, 6, 6, 6, 6, 5, 8, 6}, false};
  struct Case {
    const char* why;
    std::string_view least;
    std::string_view most;
    DigitWidths digits;
    const char* widest;
  };
  const Case cases[] = {
      {"the longest", "1", "1024", kEven, "1024"},
      {"nothing but zero", "", "", kEven, ""},
      {"from zero on", "", "7", kNarrowOne, "6"},
      {"one number only", "42", "42", kNarrowOne, "42"},
      {"wide digits throughout", "1", "999", kNarrowOne, "888"},
      {"an end that leaves no room", "1", "100", kNarrowOne, "100"},
      {"three wide digits are more than four narrow ones", "1", "1111", {{7, 1, 6, 6, 6, 6, 6, 5, 8, 6}, true}, "1088"},
      {"the first digit shared", "512", "579", kNarrowOne, "568"},
      {"the digits where they part", "2345", "2355", kNarrowOne, "2348"},
      {"a zero does not come first", "1", "99", kWideZero, "80"},
      {"a last zero is not shown", "1", "99", kWideZeroNotLast, "88"},
      {"a last zero that is all there is", "980", "981", kWideZeroNotLast, "981"},
  };
  for (const Case& c : cases) {
    const std::string found = widestOf(wideNumbers(c.least, c.most, c.digits), c.digits);
    EXPECT_EQ(widthOf(found, c.digits), widthOf(c.widest, c.digits)) << c.why << ": " << found;
  }
}

TEST(WideNumbers, StayBetweenTheEnds) {
  constexpr DigitWidths kNarrowOne{{7, 4, 6, 6, 6, 6, 6, 5, 8, 6}, true};
  for (int least = 1; least < 130; ++least) {
    for (int most = least; most < 1300; most += 7) {
      for (const std::string& number : wideNumbers(std::to_string(least), std::to_string(most), kNarrowOne)) {
        EXPECT_TRUE(std::stoi(number) >= least && std::stoi(number) <= most) << least << " to " << most;
      }
    }
  }
}

TEST(WideNumbers, HoldTheWidestOfAllBetweenAnyTwo) {
  constexpr DigitWidths kMixed{{6, 4, 7, 5, 9, 3, 8, 5, 7, 6}, true};
  for (int least = 1; least < 400; least += 3) {
    double width = 0.0;
    for (int most = least; most < 1500; ++most) {
      width = std::max(width, widthOf(std::to_string(most), kMixed));
      if (most % 11 != 0) continue;
      const std::string found = widestOf(wideNumbers(std::to_string(least), std::to_string(most), kMixed), kMixed);
      ASSERT_EQ(widthOf(found, kMixed), width) << least << " to " << most << ": " << found;
    }
  }
}

}  // namespace
}  // namespace kzm::widest
