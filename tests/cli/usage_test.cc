// What holds for every verb.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/cli/program.h"

namespace kzm::tests {
namespace {

constexpr const char* kVerbs[] = {"show", "monitor", "format", "settings", "languages", "call", "list"};

TEST(Usage, EveryVerbHasHelp) {
  for (const char* verb : kVerbs) {
    const Outcome outcome = run({verb, "--help"});
    EXPECT_TRUE(outcome.output.starts_with("usage: kzmutil ")) << verb;
    EXPECT_NE(outcome.output.find(verb), std::string::npos) << verb;
    EXPECT_EQ(outcome.errors, "") << verb;
    EXPECT_EQ(outcome.status, 0) << verb;
  }
}

TEST(Usage, TheProgramsHelpNamesEveryVerb) {
  const Outcome help = run({"--help"});
  EXPECT_EQ(help.status, 0);
  for (const char* verb : kVerbs)
    EXPECT_NE(help.output.find("\n  " + std::string(verb) + " "), std::string::npos) << verb;
  for (const std::vector<std::string>& words : {std::vector<std::string>{}, {"--locale", "de_DE"}}) {
    EXPECT_EQ(run(words).errors, help.output);
    EXPECT_EQ(run(words).status, 2);
  }
  const Outcome nothing = run({});
  EXPECT_EQ(nothing.status, 2);
  EXPECT_EQ(nothing.output, "");
  EXPECT_EQ(nothing.errors, help.output);
}

TEST(Usage, TheProgramTakesFlagsBeforeItsVerb) {
  struct Case {
    std::vector<std::string> words;
    const char* output;
  };
  const Case cases[] = {
      {{"--locale", "de_DE", "format", "number", "1234"}, "1.234\n"},
      {{"--locale=de_DE", "format", "number", "1234"}, "1.234\n"},
      {{"--locale", "C", "format", "number", "1234"}, "1,234\n"},
      {{"--locale", "oc", "format", "number", "5"}, "5\n"},  // newer ICU has its number style
      {{"--locale", "de_DE", "--time-zone", "Asia/Tokyo", "call", "dayStart", "1700000000"}, "1699974000.0\n"},
      {{"--locale", "de_DE", "format", "--locale", "fr_CA", "number", "0.5", "--decimals", "1"}, "0,5\n"},
  };
  for (const Case& c : cases) {
    const Outcome outcome = run(c.words);
    EXPECT_EQ(outcome.output, c.output) << testing::PrintToString(c.words);
    EXPECT_EQ(outcome.errors, "") << testing::PrintToString(c.words);
    EXPECT_EQ(outcome.status, 0) << testing::PrintToString(c.words);
  }
}

TEST(Usage, HelpAndVersionHaveShortNamesToo) {
  const std::string help = run({"--help"}).output;
  for (const char* word : {"-h", "help"}) EXPECT_EQ(run({word}).output, help) << word;
  const std::string version = run({"--version"}).output;
  EXPECT_TRUE(version.starts_with("kzmutil 1.")) << version;
  EXPECT_EQ(run({"-V"}).output, version);
}

TEST(Usage, UnknownWordsAreOneLine) {
  struct Case {
    std::vector<std::string> words;
    const char* errors;
  };
  const Case cases[] = {
      {{"frobnicate"}, "kzmutil: no verb is named \"frobnicate\"; `kzmutil --help` lists them\n"},
      {{"--frobnicate"}, "kzmutil: no option \"--frobnicate\"; `kzmutil --help` lists them\n"},
      {{"--locale"}, "kzmutil: --locale: its value is missing\n"},
      {{"--locale", "german", "list"}, "kzmutil: no locale \"german\"; names are such as de_CH\n"},
      {{"--locale=", "list"}, "kzmutil: no locale \"\"; names are such as de_CH\n"},
      {{"format", "number", "1", "--locale", "xx_DE"}, "kzmutil: locale \"xx_DE\" is of no known language\n"},
      {{"list", "x"}, "kzmutil: list takes no arguments\n"},
      {{"languages", "de"}, "kzmutil: languages takes no arguments\n"},
      {{"call", "--frob"}, "kzmutil: call: no option \"--frob\"; `kzmutil call --help` lists them\n"},
      {{"call"}, "kzmutil: call: a name is missing; `kzmutil list` shows them\n"},
      {{"call", "--locale"}, "kzmutil: --locale: its value is missing\n"},
      {{"call", "--time-zone", "Mars/Base", "mpsToKph", "1"},
       "kzmutil: no time zone \"Mars/Base\"; names are such as Europe/Paris\n"},
      {{"call", "--batch", "x"}, "kzmutil: call: --batch takes no name\n"},
      {{"call", "--set", "x"}, "kzmutil: --set: takes KEYPATH=JSON\n"},
      {{"show", "--output", "html"},
       "kzmutil: --output: no output \"html\"; there are table, json, waybar, i3bar, polybar, plain\n"},
      {{"show", "--output", "json", "--constant-width"},
       "kzmutil: show: --constant-width goes with --output waybar, i3bar, polybar, plain\n"},
      {{"monitor", "memory", "sound"},
       "kzmutil: monitor: no topic \"sound\"; there are network, disks, volumes, memory, load, "
       "temperatures, fans, voltages, currents, power, frequencies, light, battery\n"},
      {{"monitor", "--count", "0"}, "kzmutil: --count: \"0\" is not a whole number from 1 to 9223372036854775807\n"},
      {{"show", "--count", "1"}, "kzmutil: show: no option \"--count\"; `kzmutil show --help` lists them\n"},
      {{"show", "--interval", "0"}, "kzmutil: --interval: \"0\" is not from 0.1 to 3600\n"},
      {{"show", "--interval", "NaN"}, "kzmutil: --interval: \"NaN\" is not from 0.1 to 3600\n"},
      {{"show", "--interval", "3601"}, "kzmutil: --interval: \"3601\" is not from 0.1 to 3600\n"},
      {{"show", "--unit-size", "x"}, "kzmutil: --unit-size: \"x\" is not a whole number from 1 to 3\n"},
      {{"show", "sound"},
       "kzmutil: show: no topic \"sound\"; there are network, disks, volumes, memory, load, "
       "temperatures, fans, voltages, currents, power, frequencies, light, battery\n"},
  };
  for (const Case& c : cases) {
    const Outcome outcome = run(c.words);
    EXPECT_EQ(outcome.errors, c.errors);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.status, 2) << c.errors;
  }
}

TEST(Usage, OutputThatCannotBeWrittenIsStatusOne) {
  const std::vector<std::string> commands[] = {
      {"--help"},
      {"format", "memory", "1"},
      {"format", "--help"},
      {"settings", "list"},
      {"list"},
      {"call", "KZMUtilitiesFormatMemory", "{}", "1"},
      {"show", "memory"},
      {"monitor", "memory"},
  };
  for (const std::vector<std::string>& words : commands) {
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    const int quiet = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    ASSERT_GE(full, 0);
    EXPECT_EQ(statusOf(started(words, quiet, full, quiet)), 1) << testing::PrintToString(words);
    ::close(full);
    ::close(quiet);
  }
}

}  // namespace
}  // namespace kzm::tests
