#include "cli/description.h"

#include <gtest/gtest.h>

namespace kzm::cli {
namespace {

TEST(Description, NamesOfAnyLengthLineUp) {
  struct Case {
    FlagText flag;
    const char* line;
  };
  const Case cases[] = {
      {{"show", "", "readings"}, "  show                    readings\n"},
      {{"--unit-size", "N", "size"}, "  --unit-size N           size\n"},
      {{"a-name-of-24-characters-", "", "text"}, "  a-name-of-24-characters-  text\n"},
      {{"--a-name-of-many-characters", "VALUE", "text"}, "  --a-name-of-many-characters VALUE  text\n"},
  };
  for (const Case& c : cases) EXPECT_EQ(flagLine(c.flag), c.line);
}

TEST(Description, TheHelpHasUsageTextChoicesAndFlags) {
  const Description verb{.usage = {"do WHAT", "do nothing"},
                         .text = "It is done.\n",
                         .choices = {{.name = "this", .help = "the one"}},
                         .flags = {{"--fast", "", "sooner"}}};
  EXPECT_EQ(helpText(verb),
            "usage: kzmutil do WHAT\n"
            "       kzmutil do nothing\n"
            "\n"
            "It is done.\n"
            "\n"
            "  this                    the one\n"
            "\n"
            "  --fast                  sooner\n"
            "  --locale ID             locale of numbers, texts and default units, such as de_CH\n"
            "  --time-zone ID          default time zone, such as Europe/Paris\n");
}

}  // namespace
}  // namespace kzm::cli
