#include <algorithm>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/cli/program.h"

namespace kzm::tests {
namespace {

struct Case {
  std::vector<std::string> words;
  const char* output;
};

TEST(Call, PrintsTheResult) {
  const Case cases[] = {
      {{"--locale", "en_US", "KZMUtilitiesFormatBandwidth",
        R"({"bandwidthformat":2,"space":true,"unitsize":3,)"
        R"("decimals-mb":[{"value":10,"decimals":2},{"value":100,"decimals":1}]})",
        "1500000"},
       "11.4 Mb/s\n"},
      {{"KZMUtilitiesFormatMemory", "{}", "1024"}, "1KB\n"},
      {{"KZMUtilitiesFormatMemory", "null", "1024.0"}, "1KB\n"},
      {{"--json", "KZMUtilitiesFormatMemory", "{}", "1024"}, "\"1KB\"\n"},
      {{"--json", "KZMUtilitiesFormatMemory", "{}", "\"Infinity\""}, "\"∞PB\"\n"},
      {{"KZMUtilitiesMemoryData", "{}", "1048576"}, "{\"format\": \"%@KB\", \"decimals\": 0, \"value\": 1024.0}\n"},
      {{"KZMUtilitiesMemoryData", "{}", "-0.0"}, "{\"format\": \"%@KB\", \"decimals\": 0, \"value\": -0.0}\n"},
      {{"KZMUtilitiesMemoryData", "{}", "\"NaN\""}, "{\"format\": \"%@PB\", \"decimals\": 0, \"value\": \"NaN\"}\n"},
      {{"KZMUtilitiesMemoryData", "{}", "\"-Infinity\""},
       "{\"format\": \"%@KB\", \"decimals\": 0, \"value\": \"-Infinity\"}\n"},
      {{"KZMUtilitiesMemoryData", "{}", "11258999068426240000000000000000000000"},
       "{\"format\": \"%@PB\", \"decimals\": 0, \"value\": 1e+22}\n"},
      {{"KZMUtilitiesFormatMemoryWithAttributes",
        R"({"space": true, "attributes-main": {"b": [1, null]}, "attributes-units": 7})", "1024"},
       "{\"text\": \"1 KB\", \"runs\": [{\"text\": \"1\", \"attributes\": {\"b\":[1,null]}}, {\"text\": \" KB\", "
       "\"attributes\": 7}]}\n"},
      {{"KZMUtilitiesFormatMemoryWithAttributes", R"({"attributes-main": {"a": 1}, "attributes-units": {"a": 1.0}})",
        "1024"},
       "{\"text\": \"1KB\", \"runs\": [{\"text\": \"1\", \"attributes\": {\"a\":1}}, {\"text\": \"KB\", "
       "\"attributes\": {\"a\":1.0}}]}\n"},
      {{"KZMUtilitiesFormatMemoryWithAttributes",
        R"({"attributes-main": -1, "attributes-units": 18446744073709551615})", "1024"},
       "{\"text\": \"1KB\", \"runs\": [{\"text\": \"1\", \"attributes\": -1}, {\"text\": \"KB\", \"attributes\": "
       "18446744073709551615}]}\n"},
      {{"KZMUtilitiesFormatMemoryWithAttributes", R"({"attributes-main": {"a": [1]}, "attributes-units": {"a": [1]}})",
        "1024"},
       "{\"text\": \"1KB\", \"runs\": [{\"text\": \"1KB\", \"attributes\": {\"a\":[1]}}]}\n"},
      {{"KZMUtilitiesFormatMemoryWithAttributes", R"({"attributes-main": null})", "1024"},
       "{\"text\": \"1KB\", \"runs\": [{\"text\": \"1KB\", \"attributes\": null}]}\n"},
      {{"KZMUtilitiesDecimalFormatterWithFractions", "-1", "500"},
       "{\"minimumFractionDigits\": -1, \"maximumFractionDigits\": 500}\n"},
      {{"KZMUtilitiesPosixLocale", "\"de_CH\""}, "de_CH_POSIX\n"},
      {{"KZMLocalizedStringFromTableInBundle", "\"Units.Memory.%@ GB\"", "\"KZMUtilities\"", "\"\""}, "%@ GB\n"},
      {{"--locale", "de_DE", "KZMUtilitiesFormatNumber", R"({"decimals": 2})", "1234.5"}, "1.234,5\n"},
      {{"--time-zone", "Europe/Paris", "mpsToKph", "10"}, "36.0\n"},
      {{"mpsToKph", "10"}, "36.0\n"},
      {{"--set", "Weather.Global.Units.Pressure=2", "KZMUtilitiesFormatWeatherPressure", R"({"units": true})", "1013"},
       "1,013mb\n"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(run(line("call", c.words)), (Outcome{c.output, "", 0})) << testing::PrintToString(c.words);
  }
}

TEST(Call, DoublesAreTheirShortestText) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"2.7536714443987216e+20", "2.7536714443987216e+20\n"},
      {"275367144439872159744.5", "2.7536714443987216e+20\n"},
      {"36028797018963968.0", "36028797018963968.0\n"},
      {"-100000000000000000000", "-1e+20\n"},
      {"123456789012345680", "123456789012345680.0\n"},
      {"1234567890123456800", "1.2345678901234568e+18\n"},
      {"-12345678901234568", "-12345678901234568.0\n"},
      {"1000", "1000.0\n"},
      {"100000", "1e+05\n"},
      {"0.1", "0.1\n"},
      {"-0.0", "-0.0\n"},
      {"5e-324", "5e-324\n"},
  };
  for (const auto& [number, text] : cases) EXPECT_EQ(run({"call", "KZMMAXDouble", number, number}).output, text);
}

TEST(Call, NumbersBeyondTheTypesGoThroughAttributesUnread) {
  const Outcome outcome =
      run({"call", "KZMUtilitiesFormatPercentageWithAttributes",
           R"({"attributes-main":12345678901234567890123,"attributes-units":12345678901234567890124})", "5"});
  EXPECT_EQ(outcome.output, R"({"text": "5%", "runs": [{"text": "5", "attributes": 12345678901234567890123}, )"
                            R"({"text": "%", "attributes": 12345678901234567890124}]})"
                            "\n");
}

TEST(Call, RefusesInOneLine) {
  const Case cases[] = {
      {{"formatMemory", "{}", "1"}, "no function is named \"formatMemory\""},
      {{"KZMUtilitiesFormatMemory", "{}"},
       "wrong number of arguments (1) for KZMUtilitiesFormatMemory options:dictionary bytes:double"},
      {{"KZMUtilitiesFormatMemory", "{}", "1", "2"},
       "wrong number of arguments (3) for KZMUtilitiesFormatMemory options:dictionary bytes:double"},
      {{"KZMUtilitiesFormatMemory", "{", "1"}, "malformed JSON at byte 2"},
      {{"KZMUtilitiesFormatMemory", "{}", "1 2"}, "malformed JSON at byte 3"},
      {{"KZMUtilitiesFormatMemory", "{}", ""}, "malformed JSON at byte 1"},
      {{"KZMUtilitiesFormatMemory", "{}", "nan"}, "malformed JSON at byte 2"},
      {{"KZMUtilitiesFormatMemory", "{}", "\"nan\""},
       "expected a number, \"NaN\", \"Infinity\" or \"-Infinity\", not string"},
      {{"KZMUtilitiesFormatMemory", "{}", "true"},
       "expected a number, \"NaN\", \"Infinity\" or \"-Infinity\", not boolean"},
      {{"KZMUtilitiesFormatMemory", "[]", "1"}, "expected an object or null, not array"},
      {{"KZMUtilitiesDecimalFormatterWithMaximum", "1.0"}, "expected an integer, not number"},
      {{"KZMUtilitiesFormatMemory", "{}", "1e999"}, "a number in the JSON is out of range"},
      {{"KZMUtilitiesDecimalFormatterWithMaximum", "9223372036854775808"}, "the integer is out of range"},
      {{"KZMUtilitiesPosixLocale", "5"}, "expected a locale identifier, not number"},
  };
  for (const Case& c : cases) {
    const std::string errors = "kzmutil: " + std::string(c.output) + "\n";
    EXPECT_EQ(run(line("call", c.words)), (Outcome{"", errors, 2})) << testing::PrintToString(c.words);
  }
}

TEST(Call, EveryNameIsListedWithItsParameters) {
  const Outcome list = run({"list"});
  EXPECT_EQ(list.status, 0);
  for (const char* line : {"KZMUtilitiesFormatMemory options:dictionary bytes:double\n", "mpsToKph ",
                           "KZMLocalizedStringFromTableInBundle key:string table:string comment:string|null\n"}) {
    EXPECT_NE(list.output.find(line), std::string::npos) << line;
  }
}

TEST(Call, EveryNameIsListedInJsonWithAllThatIsKnown) {
  const Outcome list = run({"list", "--json"});
  const nlohmann::json callables = nlohmann::json::parse(list.output);
  EXPECT_EQ(callables.size(), std::count(list.output.begin(), list.output.end(), '\n'));
  const auto& first = callables[0];
  EXPECT_EQ(first["c"], "kzm_decimal_formatter_with_fractions");
  EXPECT_EQ(first["parameters"].dump(), R"([{"kind":"integer","name":"minimum"},{"kind":"integer","name":"maximum"}])");
  EXPECT_EQ(first["result"], "formatter");
}

}  // namespace
}  // namespace kzm::tests
