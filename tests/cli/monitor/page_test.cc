// What holds of every screen; files have some of them as a whole.
#include "cli/monitor/page.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/cli/monitor/example.h"

namespace kzm::cli {
namespace {

const tests::Example& machine() {
  static const tests::Example example = tests::example();
  return example;
}

Page page(Size size, const Choices& choices = {}) {
  static const Texts texts;
  return pageOf({machine().groups, machine().tracks, texts}, choices, size);
}

std::string textOf(const Page& page) {
  std::string text;
  for (std::size_t row = 0; row < page.frame.size().rows; ++row) text += page.frame.textOf(row) + '\n';
  return text;
}

// The columns in which a text begins, row by row.
std::vector<std::size_t> placesOf(const Page& page, const std::string& wanted) {
  std::vector<std::size_t> places;
  for (std::size_t row = 0; row < page.frame.size().rows; ++row) {
    for (std::size_t column = 0; column < page.frame.size().columns; ++column) {
      if (page.frame.at(row, column).text == wanted) places.push_back(column);
    }
  }
  return places;
}

TEST(Page, EverySizeHasAPage) {
  for (std::size_t rows = 0; rows < 30; rows += 3) {
    for (std::size_t columns = 0; columns < 130; ++columns) {
      for (const bool help : {false, true}) {
        const Page shown = page({.rows = rows, .columns = columns}, {.help = help});
        EXPECT_EQ(shown.frame.size(), (Size{.rows = rows, .columns = columns}));
      }
    }
  }
}

TEST(Page, EveryValueCanBeReadAtFortyColumns) {
  std::string all;
  const std::size_t most = page({.rows = 12, .columns = 40}).mostScrolled;
  for (std::size_t scrolled = 0; scrolled <= most; ++scrolled) {
    all += textOf(page({.rows = 12, .columns = 40}, {.scrolled = scrolled}));
  }
  const Texts texts;
  for (const Group& group : machine().groups) {
    for (const Item& item : group.items) {
      for (const Measured& reading : item.readings) {
        EXPECT_NE(all.find(texts.text(reading)), std::string::npos) << item.id << ' ' << reading.name;
      }
    }
  }
}

TEST(Page, ColumnsAreWhereTheyWereWithOtherNumbers) {
  tests::Example other = machine();
  for (Group& group : other.groups) {
    for (Item& item : group.items) {
      for (Measured& reading : item.readings) {
        if (isRate(reading.quantity)) reading.value = 1.0;
      }
    }
  }
  const Texts texts;
  const Size size{.rows = 24, .columns = 80};
  EXPECT_EQ(placesOf(pageOf({other.groups, other.tracks, texts}, {}, size), "↑"), placesOf(page(size), "↑"));
}

TEST(Page, ScrollingEndsWithTheLastLine) {
  const Page end = page({.rows = 12, .columns = 40}, {.scrolled = 100000});
  EXPECT_EQ(textOf(end), textOf(page({.rows = 12, .columns = 40}, {.scrolled = end.mostScrolled})));
  EXPECT_NE(textOf(end).find("BAT0"), std::string::npos);
  EXPECT_NE(textOf(end).find("▲" + std::to_string(end.mostScrolled)), std::string::npos);
  EXPECT_EQ(textOf(end).find("▼"), std::string::npos) << "nothing is below";
}

TEST(Page, AWideScreenHasRoomForAll) {
  EXPECT_EQ(page({.rows = 60, .columns = 200}).mostScrolled, 0U);
  EXPECT_EQ(page({.rows = 24, .columns = 200}).mostScrolled, 0U) << "in panels side by side";
  EXPECT_GT(page({.rows = 24, .columns = 80}).mostScrolled, 0U);
}

TEST(Page, ATopicAlone) {
  const std::string text = textOf(page({.rows = 24, .columns = 80}, {.topic = &topics()[3]}));
  EXPECT_TRUE(text.starts_with("Memory")) << text;
  EXPECT_EQ(text.find("eth0"), std::string::npos);
}

TEST(Page, LevelsHaveASign) {
  const std::string text = textOf(page({.rows = 60, .columns = 200}));
  EXPECT_NE(text.find("\n!!nvme  Composite"), std::string::npos) << text;
  EXPECT_NE(text.find("\n! /home"), std::string::npos) << text;
  EXPECT_NE(text.find("\n  coretemp"), std::string::npos) << text;
}

TEST(Page, APauseIsShown) {
  EXPECT_NE(textOf(page({.rows = 24, .columns = 80}, {.paused = true})).find("‖"), std::string::npos);
  EXPECT_EQ(textOf(page({.rows = 24, .columns = 80})).find("‖"), std::string::npos);
}

TEST(Page, Help) {
  const std::string text = textOf(page({.rows = 24, .columns = 60}, {.help = true, .topic = &topics()[0]}));
  for (const char* line :
       {" q    Quit\n", " p    Pause\n", " + -  1 s\n", " b    12 MB/s / 98 Mb/s\n", "    ▸ Network\n"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line << text;
  }
}

}  // namespace
}  // namespace kzm::cli
