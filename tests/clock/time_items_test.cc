#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include <KZMUtilities/time_items.h>

namespace kzm {
namespace {

// One text for each entry: "[marker]" or "token", then "=label", then "!" where it is forced.
std::string described(const Value& entry) {
  const Dictionary& members = *entry.dictionary();
  const auto text = [&](const char* key) {
    return members.contains(key) ? *members.find(key)->string() : std::string();
  };
  std::string result = members.contains("type") ? "[" + text("type") + "]" : text("token");
  if (members.contains("label")) result += "=" + text("label");
  if (members.contains("force")) result += *members.find("force") == Value(true) ? "!" : "?";
  return result;
}

std::string described(const Array& items) {
  std::string result;
  for (const Value& item : items) result += (result.empty() ? "" : " ") + described(item);
  return result;
}

TEST(TimeItems, AreTheWholeCatalogueInOrder) {
  struct Case {
    const char* type;
    std::size_t count;
    const char* items;
  };
  const Case cases[] = {
      {"hour", 6, "[hour-12] h=1-12 hh=01-12 [hour-24] HH=00-23 H=0-23"},
      {"minute", 4, "[seconds-2] mm=05 [seconds-1] m=5!"},
      {"second", 4, "[seconds-2] ss=03 [seconds-1] s=3!"},
      {"ampm", 2, "a aaaaa"},
      {"day", 8, "d dd d-suffix EEEEE EEEEEE EEE EEEE MTWRFSU=M (MTWRFSU format)"},
      {"month", 5, "M MM MMMMM MMM MMMM"},
      {"year", 2, "yy yyyy"},
      {"timezone", 8, "ZZZ ZZZZZ O ZZZZ zzz vvvv zzzz VVV"},
      {"weeknumber", 1, "w"},
      {"daynumber", 1, "D"},
      {"fuzzy", 1, "fuzzy"},
      {"offset", 3, "offset offset2 offset3"},
      {"icons", 6,
       "icon-moon icon-clock icon-calendar-mono icon-calendar-color icon-calendar-color-fill "
       "icon-calendar-color-fill-day"},
  };
  const Array groups = KZMUtilitiesTimeItems();
  ASSERT_EQ(groups.size(), std::size(cases));
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const Dictionary& group = *groups[i].dictionary();
    EXPECT_EQ(group.size(), 2U) << cases[i].type;
    EXPECT_EQ(*group.find("type"), Value(cases[i].type));
    EXPECT_EQ(group.find("items")->array()->size(), cases[i].count) << cases[i].type;
    EXPECT_EQ(described(*group.find("items")->array()), cases[i].items) << cases[i].type;
  }
}

TEST(TimeItems, EntriesAreMarkersOrItemsAndHoldNothingElse) {
  for (const Value& group : KZMUtilitiesTimeItems()) {
    for (const Value& entry : *group.dictionary()->find("items")->array()) {
      const Dictionary& members = *entry.dictionary();
      EXPECT_NE(members.contains("type"), members.contains("token")) << described(entry);
      EXPECT_TRUE(members.contains("token") || members.size() == 1) << described(entry);
      for (const auto& member : members) {
        EXPECT_NE(std::string("type token label force").find(member.key), std::string::npos) << member.key;
      }
    }
  }
}

TEST(TimeItems, OnlyTheSingleDigitMinuteAndSecondAreForced) {
  std::string forced;
  for (const Value& group : KZMUtilitiesTimeItems()) {
    for (const Value& entry : *group.dictionary()->find("items")->array()) {
      if (entry.dictionary()->contains("force")) forced += described(entry) + " ";
    }
  }
  EXPECT_EQ(forced, "m=5! s=3! ");
}

TEST(TimeItems, TheOuterArrayIsNewAndTheGroupsAreShared) {
  Array first = KZMUtilitiesTimeItems();
  const Array second = KZMUtilitiesTimeItems();
  EXPECT_EQ(first, second);
  for (std::size_t i = 0; i < second.size(); ++i) EXPECT_EQ(first[i].dictionary(), second[i].dictionary()) << i;
  first.emplace_back("mine");
  first[0] = nullptr;
  EXPECT_EQ(second.size(), 13U);
  EXPECT_EQ(KZMUtilitiesTimeItems(), second);
}

TEST(TimeItems, AreBuiltOnceAlsoWhenAskedForByManyThreadsAtOnce) {
  std::vector<Array> results(8);
  std::vector<std::thread> threads;
  threads.reserve(results.size());
  for (Array& result : results) threads.emplace_back([&result] { result = KZMUtilitiesTimeItems(); });
  for (std::thread& thread : threads) thread.join();
  for (const Array& result : results) EXPECT_EQ(result[0].dictionary(), results[0][0].dictionary());
}

}  // namespace
}  // namespace kzm
