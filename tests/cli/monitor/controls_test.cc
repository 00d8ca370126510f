#include "cli/monitor/controls.h"

#include <gtest/gtest.h>

namespace kzm::cli {
namespace {

Controls after(std::initializer_list<Key> keys, Controls controls = {}) {
  for (const Key key : keys) press(key, controls);
  return controls;
}

struct ScrollCase {
  const char* why;
  std::initializer_list<Key> keys;
  std::size_t scrolled;
};
const ScrollCase kScrolls[] = {
    {"a line", {Key::down}, 1},
    {"down and up", {Key::down, Key::down, Key::up}, 1},
    {"not above the first line", {Key::up}, 0},
    {"a page", {Key::pageDown}, 10},
    {"not beyond the last line", {Key::pageDown, Key::pageDown, Key::pageDown}, 25},
    {"to the end", {Key::last}, 25},
    {"to the end and a page back", {Key::last, Key::pageUp}, 15},
    {"to the start", {Key::last, Key::first}, 0},
    {"the wheel", {Key::wheelDown, Key::wheelDown, Key::wheelUp}, 3},
};

TEST(Controls, Scrolling) {
  for (const ScrollCase& row : kScrolls) {
    EXPECT_EQ(after(row.keys, {.mostScrolled = 25, .lines = 10}).choices.scrolled, row.scrolled) << row.why;
  }
}

TEST(Controls, SwitchesGoThereAndBack) {
  EXPECT_TRUE(after({Key::pause}).choices.paused);
  EXPECT_FALSE(after({Key::pause, Key::pause}).choices.paused);
  EXPECT_TRUE(after({Key::help}).choices.help);
  EXPECT_FALSE(after({Key::help, Key::help}).choices.help);
  EXPECT_FALSE(after({Key::help, Key::escape}).choices.help);
  EXPECT_TRUE(after({Key::bits}).otherUnit);
  EXPECT_FALSE(after({Key::bits, Key::bits}).otherUnit);
}

struct IntervalCase {
  double seconds;
  double slower;
  double faster;
};
constexpr IntervalCase kIntervals[] = {
    {0.1, 0.2, 0.1},
    {1.0, 2.0, 0.5},
    {3.0, 5.0, 2.0},
    {3600.0, 3600.0, 900.0},
};

TEST(Controls, Intervals) {
  for (const IntervalCase& row : kIntervals) {
    const Controls controls{.choices = {.seconds = row.seconds}};
    EXPECT_EQ(after({Key::slower}, controls).choices.seconds, row.slower) << row.seconds;
    EXPECT_EQ(after({Key::faster}, controls).choices.seconds, row.faster) << row.seconds;
  }
}

TEST(Controls, TopicsOneAfterTheOther) {
  const Topic* network = &topics()[0];
  const Topic* memory = &topics()[3];
  const Controls controls{.choices = {.scrolled = 5}, .topics = {network, memory}};
  EXPECT_EQ(after({Key::shown}, controls).choices.topic, network);
  EXPECT_EQ(after({Key::shown}, controls).choices.scrolled, 0U);
  EXPECT_EQ(after({Key::shown, Key::shown}, controls).choices.topic, memory);
  EXPECT_EQ(after({Key::shown, Key::shown, Key::shown}, controls).choices.topic, nullptr) << "all again";
  EXPECT_EQ(after({Key::shown}).choices.topic, nullptr) << "there is none";
}

}  // namespace
}  // namespace kzm::cli
