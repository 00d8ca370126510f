#include <gtest/gtest.h>
#include <span>
#include <string>
#include <vector>

#include "tests/cli/program.h"

namespace kzm::tests {
namespace {

struct Case {
  std::vector<std::string> words;
  const char* output;
};

void expectOutputs(std::span<const Case> cases) {
  for (const Case& c : cases) {
    EXPECT_EQ(run(line("format", c.words)), (Outcome{c.output, "", 0})) << testing::PrintToString(c.words);
  }
}

TEST(Format, EveryFamily) {
  // clang-format off
  const Case cases[] = {
      {{"bandwidth", "1500000"},                                        "1MB/s\n"},
      {{"disk", "3145728"},                                             "3MB/s\n"},
      {{"space", "250000000000"},                                       "250GB\n"},
      {{"memory", "1073741824"},                                        "1GB\n"},
      {{"percentage", "42"},                                            "42%\n"},
      {{"number", "1234.56"},                                           "1,235\n"},
      {{"sensor", "temperature", "--units", "45.2"},                    "113°\n"},
      {{"sensor", "percentage", "--units", "0.5"},                      "50%\n"},
      {{"sensor", "fan", "--units", "--space", "1200"},                 "1,200 rpm\n"},
      {{"sensor", "current", "--units", "0.25"},                        "250mA\n"},
      {{"sensor", "power", "--units", "--space", "12.34"},              "12.3 W\n"},
      {{"sensor", "voltage", "--units", "1.25"},                        "1.2V\n"},
      {{"sensor", "light", "--units", "--space", "--short", "300"},     "300 Lx\n"},
      {{"sensor", "frequency", "--units", "--space", "2600"},           "2.6 GHz\n"},
      {{"sensor", "multiplier", "--units", "24"},                       "24x\n"},
      {{"sensor", "capacity", "--units", "--space", "4000"},            "4,000 mAh\n"},
      {{"weather", "temperature", "--units", "20"},                     "68°\n"},
      {{"weather", "wind", "--units", "--space", "10"},                 "22 mph\n"},
      {{"weather", "direction", "90"},                                  "East\n"},
      {{"weather", "distance", "1234.4"},                               "767 miles\n"},
      {{"weather", "visibility", "9.6"},                                "10 miles\n"},
      {{"weather", "rain", "25.4"},                                     "1\"\n"},
      {{"weather", "snow", "25.4"},                                     "1\"\n"},
      {{"weather", "uv", "5.5"},                                        "6\n"},
      {{"weather", "humidity", "57"},                                   "57%\n"},
      {{"weather", "altitude", "--decimals", "1", "41.26"},             "41.3°\n"},
      {{"weather", "azimuth", "41.26"},                                 "41°\n"},
      {{"weather", "days", "12.3456"},                                  "12.35 Days\n"},
      {{"weather", "illumination", "98.5"},                             "98.5%\n"},
  };
  // clang-format on
  expectOutputs(cases);
}

TEST(Format, FlagsAreTheLibrarysOptions) {
  // clang-format off
  const Case cases[] = {
      {{"bandwidth", "--bits", "--space", "--unit-size", "3", "--decimals-mb", "10:2,100:1", "1500000"}, "11.4 Mb/s\n"},
      {{"bandwidth", "--bits", "--from-mega", "131072"},                 "1Mb/s\n"},
      {{"bandwidth", "--from-mega", "1048576"},                          "1MB/s\n"},
      {{"bandwidth", "--from-mega", "1024"},                             "0MB/s\n"},
      {{"bandwidth", "--reverse-type", "256"},                           "2Kb/s\n"},
      {{"bandwidth", "--unit-size=1", "2048"},                           "2K\n"},
      {{"bandwidth", "--unit-size", "2", "2048"},                        "2KB\n"},
      {{"bandwidth", "--short", "--space", "2048"},                      "2 K\n"},
      {{"bandwidth", "--early-upgrade", "1000000"},                      "1MB/s\n"},
      {{"bandwidth", "--decimals-kb", "10:2,100:1", "1536"},             "1.50KB/s\n"},
      {{"bandwidth", "--decimals-gb", "Infinity:3", "1073741824"},       "1.000GB/s\n"},
      {{"disk", "--hide-bytes", "500"},                                  "-\n"},
      {{"disk", "--hide-bytes", "1024"},                                 "1KB/s\n"},
      {{"space", "--decimals-tb", "10:2", "1500000000000"},              "1.5TB\n"},
      {{"space", "--decimals-pb", "1.5:1", "1250000000000000"},          "1.3PB\n"},
      {{"memory", "--decimals-tb", "10:2", "1649267441664"},             "1.50TB\n"},
      {{"memory", "--short", "2048"},                                    "2K\n"},
      {{"percentage", "--decimals", "1", "--space", "42.25"},            "42.2 %\n"},
      {{"number", "--decimals", "2", "1234.567"},                        "1,234.57\n"},
      {{"sensor", "temperature", "--reverse-type", "--units", "45"},     "45°\n"},
      {{"sensor", "temperature", "45"},                                  "113\n"},
      {{"sensor", "fan", "--units", "--off", "0"},                       "Off\n"},
      {{"sensor", "fan", "--units", "--space", "--strip", "1200"},       "1200rpm\n"},
      {{"sensor", "voltage", "--units", "--decimals-voltage", "10:3", "1.2345"}, "1.234V\n"},
      {{"weather", "temperature", "--reverse", "--decimals", "1", "21.64"}, "21.6\n"},
  };
  // clang-format on
  expectOutputs(cases);
}

TEST(Format, Values) {
  // clang-format off
  const Case cases[] = {
      {{"memory", "1024", "2048"},                 "1KB\n2KB\n"},
      {{"memory", "-2048"},                        "-2KB\n"},
      {{"memory", "-2048", "--space"},             "-2 KB\n"},
      {{"memory", "--", "-2048"},                  "-2KB\n"},
      {{"memory", "1e3"},                          "1KB\n"},
      {{"memory", "-1.5E+3"},                      "-1KB\n"},
      {{"memory", ".5e4"},                         "5KB\n"},
      {{"memory", "NaN", "Infinity", "-Infinity"}, "NaNPB\n∞PB\n-∞KB\n"},
  };
  // clang-format on
  expectOutputs(cases);
}

TEST(Format, LocalesMayBeAnywhere) {
  // clang-format off
  const Case cases[] = {
      {{"--locale", "de_DE", "number", "--decimals", "2", "1234.56"}, "1.234,56\n"},
      {{"number", "--decimals", "2", "1234.56", "--locale=hi_IN"},    "1,234.56\n"},
      {{"number", "--locale", "de_CH", "1234567"},                    "1’234’567\n"},
      {{"number", "--locale", "es_ES", "1234"},                       "1234\n"},
  };
  // clang-format on
  expectOutputs(cases);
}

TEST(Format, ReadsLinesFromStandardInput) {
  const Outcome outcome = run({"format", "memory", "--space"}, "1024\n  -2048 \r\n\t1e6\nNaN");
  EXPECT_EQ(outcome.output, "1 KB\n-2 KB\n977 KB\nNaN PB\n");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(run({"format", "memory"}).output, "");
}

// Lines are read in blocks of 65,536 bytes, and end where they end.
TEST(Format, ReadsLinesAcrossBlocks) {
  std::string lines;
  std::string answers;
  for (int i = 0; i < 30000; ++i) {
    lines += "1024\n";
    answers += "1KB\n";
  }
  EXPECT_EQ(run({"format", "memory"}, lines).output, answers);
  EXPECT_EQ(run({"format", "memory"}, std::string(200000, ' ') + "2048\n1024").output, "2KB\n1KB\n");
  EXPECT_EQ(run({"format", "memory"}, std::string(65536 - 5, ' ') + "1024\n2048\n").output, "1KB\n2KB\n");
}

TEST(Format, InputThatCannotBeReadIsAFailure) {
  Pipe out;
  Pipe err;
  const int folder = ::open("/", O_RDONLY | O_CLOEXEC);
  const pid_t process = started({"format", "memory"}, folder, out.writer(), err.writer());
  ::close(folder);
  err.closeWriter();
  std::string errors;
  while (readSome(err.reader(), errors)) {
  }
  EXPECT_EQ(errors, "kzmutil: standard input could not be read\n");
  EXPECT_EQ(statusOf(process), 1);
}

TEST(Format, AnswersEachLineAtOnce) {
  Pipe in;
  Pipe out;
  const pid_t process = started({"format", "memory"}, in.reader(), out.writer(), STDERR_FILENO);
  out.closeWriter();
  for (const char* line : {"1024\n", "2048\n"}) {
    ASSERT_EQ(::write(in.writer(), line, 5), 5);
    std::string answer;
    while (answer.find('\n') == std::string::npos && readSome(out.reader(), answer)) {
    }
    EXPECT_EQ(answer, line[0] == '1' ? "1KB\n" : "2KB\n");
  }
  in.closeWriter();
  EXPECT_EQ(statusOf(process), 0);
}

TEST(Format, BadInputIsOneLineAndStatusTwo) {
  struct Refused {
    std::vector<std::string> words;
    std::string input;
    const char* output;
    const char* errors;
  };
  const std::string manyDigits(100, '7');
  const Refused cases[] = {
      {{}, "", "", "format: a family is missing; `kzmutil format --help` lists them"},
      {{"ram"}, "", "", "format: no family \"ram\"; `kzmutil format --help` lists them"},
      {{"sensor"}, "", "", "format: its kind is missing; `kzmutil format sensor --help` lists them"},
      {{"weather", "moon", "1"}, "", "", "format: no kind \"moon\"; `kzmutil format weather --help` lists them"},
      {{"--bits", "memory"}, "", "", "format: no option \"--bits\"; `kzmutil format --help` lists them"},
      {{"memory", "--bits", "1"},
       "",
       "",
       "format memory: no option \"--bits\"; `kzmutil format memory --help` lists them"},
      {{"memory", "1", "two"}, "", "", "format: \"two\" is not a number"},
      {{"memory", ""}, "", "", "format: \"\" is not a number"},
      {{"memory", "-"}, "", "", "format: \"-\" is not a number"},
      {{"memory", "1x"}, "", "", "format: \"1x\" is not a number"},
      {{"memory", "0x10"}, "", "", "format: \"0x10\" is not a number"},
      {{"memory", "1,5"}, "", "", "format: \"1,5\" is not a number"},
      {{"memory", "nan"}, "", "", "format: \"nan\" is not a number"},
      {{"memory", "inf"}, "", "", "format: \"inf\" is not a number"},
      {{"memory", "1e999"}, "", "", "format: \"1e999\" is out of range"},
      {{"memory", "a\x1b[31m\nb"}, "", "", "format: \"a?[31m?b\" is not a number"},
      {{"memory", "--", "--space"}, "", "", "format: \"--space\" is not a number"},
      {{"memory", "x" + manyDigits},
       "",
       "",
       "format: \"x77777777777777777777777777777777777777777777777777777777777...\" is not a number"},
      {{"memory", "--decimals-kb"}, "", "", "--decimals-kb: its value is missing"},
      {{"memory", "--decimals-kb", "10"}, "", "", "--decimals-kb: \"10\" is not BOUND:DECIMALS, such as 10:2"},
      {{"memory", "--decimals-kb", "10:2,"}, "", "", "--decimals-kb: \"\" is not BOUND:DECIMALS, such as 10:2"},
      {{"memory", "--decimals-kb", "x:2"}, "", "", "--decimals-kb: \"x\" is not a number"},
      {{"memory", "--space=1", "1"}, "", "", "--space takes no value"},
      {{"bandwidth", "--unit-size", "4"}, "", "", "--unit-size: \"4\" is not a whole number from 1 to 3"},
      {{"memory"}, "1024\n\n2048\n", "1KB\n", "format: line 2: \"\" is not a number"},
      {{"memory"}, std::string("1\0\n", 3), "", "format: line 1: \"1?\" is not a number"},
  };
  for (const Refused& c : cases) {
    const std::string errors = "kzmutil: " + std::string(c.errors) + "\n";
    EXPECT_EQ(run(line("format", c.words), c.input), (Outcome{c.output, errors, 2})) << testing::PrintToString(c.words);
  }
}

TEST(Format, HelpNamesTheFlagsOfTheFamily) {
  const std::string memory = run({"format", "memory", "--help"}).output;
  EXPECT_NE(memory.find("--decimals-pb"), std::string::npos);
  EXPECT_EQ(memory.find("--bits"), std::string::npos);
  const std::string all = run({"format", "--help"}).output;
  EXPECT_NE(all.find("sensor multiplier"), std::string::npos);
  const std::string sensors = run({"format", "sensor", "--help"}).output;
  EXPECT_NE(sensors.find("sensor fan"), std::string::npos);
  EXPECT_EQ(sensors.find("bandwidth"), std::string::npos);
}

}  // namespace
}  // namespace kzm::tests
