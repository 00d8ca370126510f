#include "core/rows.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace kzm::core {
namespace {

enum class Wind : std::uint8_t { calm, breeze, storm };
enum class Tide : std::uint8_t { low = 1, high = 2 };

struct Row {
  Wind wind;
};
constexpr Row kAll[] = {{Wind::calm}, {Wind::breeze}, {Wind::storm}};
constexpr Row kWithoutTheLast[] = {{Wind::calm}, {Wind::breeze}};
constexpr Row kWithoutTheFirst[] = {{Wind::breeze}, {Wind::storm}};
constexpr Row kInAnotherOrder[] = {{Wind::calm}, {Wind::storm}, {Wind::breeze}};
constexpr Row kWithOneTwice[] = {{Wind::calm}, {Wind::breeze}, {Wind::storm}, {Wind::storm}};

TEST(Rows, EveryEnumeratorHasItsRowAndEveryRowItsPlace) {
  EXPECT_TRUE(areInOrder(kAll, &Row::wind));
  EXPECT_FALSE(areInOrder(kWithoutTheLast, &Row::wind));
  EXPECT_FALSE(areInOrder(kWithoutTheFirst, &Row::wind));
  EXPECT_FALSE(areInOrder(kInAnotherOrder, &Row::wind));
  EXPECT_FALSE(areInOrder(kWithOneTwice, &Row::wind));
}

TEST(Rows, TheLastEnumeratorsMayHaveNoRowWhenTheirNumberIsGiven) {
  EXPECT_TRUE(areInOrder(kWithoutTheLast, &Row::wind, 1));
  EXPECT_FALSE(areInOrder(kWithoutTheFirst, &Row::wind, 1));
  EXPECT_FALSE(areInOrder(kAll, &Row::wind, 1));
}

TEST(Rows, AListHasAnElementForEachEnumerator) {
  constexpr int kBeaufort[] = {0, 3, 10};
  constexpr int kTooFew[] = {0, 3};
  constexpr int kTooMany[] = {0, 3, 10, 12};
  EXPECT_TRUE(haveAll<Wind>(kBeaufort));
  EXPECT_FALSE(haveAll<Wind>(kTooFew));
  EXPECT_FALSE(haveAll<Wind>(kTooMany));
}

TEST(Rows, EnumeratorsAreCountedFromZeroWithoutAGap) {
  EXPECT_EQ(countEnumerators<Wind>(), 3U);
  EXPECT_EQ(countEnumerators<Tide>(), 0U);
}

TEST(Rows, ANumberWithoutANameIsNoEnumerator) {
  EXPECT_FALSE(isEnumerator<Tide{}>());
  EXPECT_TRUE(isEnumerator<Tide::low>());
  EXPECT_FALSE(isEnumerator<static_cast<Tide>(3)>());
}

}  // namespace
}  // namespace kzm::core
