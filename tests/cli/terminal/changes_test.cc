#include "cli/terminal/changes.h"

#include <gtest/gtest.h>
#include <string>

namespace kzm::cli {
namespace {

Frame frameOf(const char* text, Style style = {}) {
  Frame frame({.rows = 2, .columns = 20});
  frame.put(1, 0, text, style, 20);
  return frame;
}

struct Case {
  const char* why;
  const char* before;
  const char* after;
  const char* written;
};
constexpr Case kCases[] = {
    {"nothing", "eth0 1 KB", "eth0 1 KB", ""},
    {"one digit", "eth0 1 KB", "eth0 2 KB", "\x1b[2;6H2"},
    {"two that are near each other", "1 KB", "2 MB", "\x1b[2;1H2 M"},
    {"two that are far from each other", "1 234567 1", "2 234567 2", "\x1b[2;1H2\x1b[2;10H2"},
    {"what is gone becomes spaces", "12", "1", "\x1b[2;2H "},
    {"a wide character as a whole", "東京", "東都", "\x1b[2;3H都"},
    {"in place of a wide character", "東", "ab", "\x1b[2;1Hab"},
    {"from right to left: the whole row", "a ש", "b ש", "\x1b[2;1Hb ש                 "},
};

TEST(Changes, OnlyWhatDiffers) {
  for (const Case& row : kCases) {
    EXPECT_EQ(changes(frameOf(row.before), frameOf(row.after), Dress::colors), row.written) << row.why;
  }
}

TEST(Changes, FramesOfAnotherSizeHaveNothingInCommon) {
  EXPECT_EQ(changes(Frame(), frameOf("a"), Dress::none), "\x1b[0m\x1b[2J\x1b[2;1Ha");
}

TEST(Changes, Styles) {
  const Style red{.color = Color::red, .bold = true, .reverse = true};
  const Frame nothing = frameOf("");
  EXPECT_EQ(changes(nothing, frameOf("a", red), Dress::colors), "\x1b[2;1H\x1b[0;1;7;31ma\x1b[0m");
  EXPECT_EQ(changes(nothing, frameOf("a", red), Dress::monochrome), "\x1b[2;1H\x1b[0;1;7ma\x1b[0m");
  EXPECT_EQ(changes(nothing, frameOf("a", red), Dress::none), "\x1b[2;1Ha");
  EXPECT_EQ(changes(frameOf("a"), frameOf("a", {.faint = true}), Dress::colors), "\x1b[2;1H\x1b[0;2ma\x1b[0m");
}

}  // namespace
}  // namespace kzm::cli
