#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include <KZMUtilities/attributed_string.h>

#include "tests/support/runs.h"

namespace kzm {
namespace {

using tests::Runs;

AttributedString sample() {
  AttributedString text("11.4", "bold");
  text.append(AttributedString(" Mb/s", "gray"));
  return text;
}

static_assert(std::input_iterator<AttributedString::Runs::Iterator>, "algorithms take the runs");

TEST(AttributedString, ReplacesRangesAndKeepsTheRest) {
  constexpr std::size_t kEnd = std::numeric_limits<std::size_t>::max();
  struct Case {
    const char* why;
    std::size_t position;
    std::size_t length;
    AttributedString replacement;
    Runs runs;
  };
  const Case cases[] = {
      {"inside one run",
       2,
       1,
       AttributedString(","),
       {{"11", "bold"}, {",", nullptr}, {"4", "bold"}, {" Mb/s", "gray"}}},
      {"across two runs", 2, 4, AttributedString("x", "red"), {{"11", "bold"}, {"x", "red"}, {"b/s", "gray"}}},
      {"equal neighbors are one", 4, 1, AttributedString("!", "bold"), {{"11.4!", "bold"}, {"Mb/s", "gray"}}},
      {"an insertion", 0, 0, AttributedString("~", "gray"), {{"~", "gray"}, {"11.4", "bold"}, {" Mb/s", "gray"}}},
      {"a deletion", 0, 5, AttributedString(), {{"Mb/s", "gray"}}},
      {"cut at the end", 4, kEnd, AttributedString("."), {{"11.4", "bold"}, {".", nullptr}}},
      {"beyond the end", 99, 1, AttributedString("?", "gray"), {{"11.4", "bold"}, {" Mb/s?", "gray"}}},
      {"everything", 0, kEnd, AttributedString(), {}},
  };
  for (const Case& c : cases) {
    AttributedString text = sample();
    text.replace(c.position, c.length, c.replacement);
    EXPECT_EQ(tests::runsOf(text), c.runs) << c.why;
  }
}

TEST(AttributedString, NeverSplitsACharacter) {
  AttributedString text("a°b", "bold");
  text.replace(2, 0, AttributedString("-"));  // between the two bytes of the degree sign
  EXPECT_EQ(text.text(), "a-b") << "the range grows to the whole character";
  text = AttributedString("%@\x85", "bold");  // no UTF-8: a byte that continues nothing
  text.replace(0, 2, AttributedString("3"));
  EXPECT_EQ(text.text(), "3\x85") << "it is text of its own";
}

TEST(AttributedString, ReplacesTheFirstOccurrenceOnly) {
  AttributedString text("%@ of %@", "gray");
  EXPECT_TRUE(text.replaceFirst("%@", AttributedString("3", "bold")));
  EXPECT_EQ(tests::runsOf(text), (Runs{{"3", "bold"}, {" of %@", "gray"}}));
  EXPECT_FALSE(text.replaceFirst("OF", AttributedString("x"))) << "the search is case-sensitive";
  EXPECT_FALSE(text.replaceFirst("", AttributedString("x"))) << "an empty target is not found";
}

TEST(AttributedString, AppendsItself) {
  AttributedString text = sample();
  text.append(text);
  EXPECT_EQ(text.text(), "11.4 Mb/s11.4 Mb/s");
}

TEST(AttributedString, AnEmptySetIsStillASet) {
  AttributedString text("a", Dictionary{});
  text.append(AttributedString("b"));
  EXPECT_EQ(tests::runsOf(text), (Runs{{"a", Dictionary{}}, {"b", nullptr}}));
}

}  // namespace
}  // namespace kzm
