#include "cli/flags.h"

#include <gtest/gtest.h>

namespace kzm::cli {
namespace {

struct Target {
  bool loud = false;
  std::string name;
  std::string option;

  friend bool operator==(const Target&, const Target&) = default;
};

constexpr Flag<Target> kFlags[] = {
    {{"--loud", "", "makes noise"}, [](Target& target, std::string_view, std::string_view) { target.loud = true; }},
    {{"--name", "NAME", "what it is called"},
     [](Target& target, std::string_view option, std::string_view value) {
       if (value.empty()) throw InputError("is empty");
       target.name = value;
       target.option = option;
     }},
};

using List = std::vector<std::string_view>;

Operands taken(const List& words, Target& target) { return takeFlags<Target>("verb", words, kFlags, target); }

std::string refusal(const List& words) {
  Target target;
  try {
    taken(words, target);
  } catch (const InputError& error) {
    return error.what();
  }
  return "none";
}

TEST(Flags, AreAnywhereAndEndAtTwoDashes) {
  struct Case {
    List words;
    List operands;
    bool loud;
    const char* name;
    bool help;
  };
  // clang-format off
  const Case cases[] = {
      {{},                                        {},                       false, "",    false},
      {{"a", "b"},                                {"a", "b"},               false, "",    false},
      {{"--loud", "a"},                           {"a"},                    true,  "",    false},
      {{"a", "--name", "x", "b", "--loud"},       {"a", "b"},               true,  "x",   false},
      {{"--name=x"},                              {},                       false, "x",   false},
      {{"--name=a=b"},                            {},                       false, "a=b", false},
      {{"--name", "--loud"},                      {},                       false, "--loud", false},
      {{"--name", "x", "--name", "y"},            {},                       false, "y",   false},
      {{"-5", "-x", "-"},                         {"-5", "-x", "-"},        false, "",    false},
      {{"--", "--loud", "--"},                    {"--loud", "--"},         false, "",    false},
      {{"a", "--", "--name"},                     {"a", "--name"},          false, "",    false},
      {{"--help"},                                {},                       false, "",    true},
      {{"a", "--loud", "--help", "b"},            {"a", "b"},               true,  "",    true},
      {{"--", "--help"},                          {"--help"},               false, "",    false},
  };
  // clang-format on
  for (const Case& c : cases) {
    Target target;
    const Operands operands = taken(c.words, target);
    const Target expected{c.loud, c.name, c.name[0] != '\0' ? "name" : ""};
    EXPECT_EQ(operands.words, c.operands) << testing::PrintToString(c.words);
    EXPECT_EQ(operands.help, c.help) << testing::PrintToString(c.words);
    EXPECT_TRUE(target == expected) << testing::PrintToString(c.words);
  }
}

TEST(Flags, AreRefusedByName) {
  struct Case {
    List words;
    const char* error;
  };
  // clang-format off
  const Case cases[] = {
      {{"--quiet"},       "verb: no option \"--quiet\"; `kzmutil verb --help` lists them"},
      {{"--loudest"},     "verb: no option \"--loudest\"; `kzmutil verb --help` lists them"},
      {{"--loud=yes"},    "--loud takes no value"},
      {{"--loud="},       "--loud takes no value"},
      {{"a", "--name"},   "--name: its value is missing"},
      {{"--name="},       "--name: is empty"},
  };
  // clang-format on
  for (const Case& c : cases) {
    EXPECT_EQ(refusal(c.words), c.error);
  }
}

TEST(Flags, LeadingOnesEndAtTheFirstOtherWord) {
  const List list{"--loud", "a", "--name", "x"};
  Words words = list;
  Target target;
  EXPECT_FALSE(takeLeadingFlags<Target>("verb", words, kFlags, target));
  EXPECT_TRUE(target.loud);
  EXPECT_EQ(List(words.begin(), words.end()), (List{"a", "--name", "x"}));
}

TEST(Flags, TheHelpLinesUp) {
  EXPECT_EQ(flagsHelp(textsOf(kFlags)),
            "  --loud                  makes noise\n"
            "  --name NAME             what it is called\n"
            "  --locale ID             locale of numbers, texts and default units, such as de_CH\n"
            "  --time-zone ID          default time zone, such as Europe/Paris\n");
}

}  // namespace
}  // namespace kzm::cli
