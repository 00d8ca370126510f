#include "cli/terminal/frame.h"

#include <gtest/gtest.h>

namespace kzm::cli {
namespace {

struct Case {
  const char* why;
  const char* text;
  std::size_t column;
  std::size_t room;
  const char* shown;
  std::size_t taken;
};
constexpr Case kCases[] = {
    {"as it is", "eth0", 0, 8, "eth0", 4},
    {"in its place", "eth0", 2, 6, "  eth0", 4},
    {"cut at its room", "coretemp", 0, 5, "core…", 5},
    {"cut at the end of the row", "coretemp", 4, 100, "    cor…", 4},
    {"a wide character takes two columns", "東京", 0, 8, "東京", 4},
    {"half of a wide character is none", "東京都", 0, 4, "東…", 3},
    {"marks join their letter", "e\u0301a", 0, 8, "e\u0301a", 2},
    {"marks of direction take no room", "\u2068٤٢\u2069", 6, 2, "      \u2068٤٢\u2069", 2},
    {"no room at all", "eth0", 0, 0, "", 0},
    {"beyond the row", "eth0", 8, 4, "", 0},
};

TEST(Frame, TextsInTheirColumns) {
  for (const Case& row : kCases) {
    Frame frame({.rows = 1, .columns = 8});
    EXPECT_EQ(frame.put(0, row.column, row.text, {}, row.room), row.taken) << row.why;
    EXPECT_EQ(frame.textOf(0), row.shown) << row.why;
  }
}

TEST(Frame, StylesGoWithTheirText) {
  Frame frame({.rows = 2, .columns = 4});
  frame.put(1, 1, "東", {.bold = true}, 2);
  EXPECT_EQ(frame.at(1, 1), (Glyph{"東", {.bold = true}}));
  EXPECT_EQ(frame.at(1, 2), (Glyph{"", {.bold = true}})) << "its right half";
  EXPECT_EQ(frame.at(1, 3), Glyph{});
  EXPECT_EQ(frame.textOf(0), "");
}

TEST(Frame, HalfOfAWideCharacterDoesNotStay) {
  Frame frame({.rows = 1, .columns = 6});
  frame.put(0, 0, "東京都", {}, 6);
  frame.put(0, 1, "ab", {}, 2);
  EXPECT_EQ(frame.textOf(0), " ab 都");
}

}  // namespace
}  // namespace kzm::cli
