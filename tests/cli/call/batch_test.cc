#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "tests/cli/program.h"

namespace kzm::tests {
namespace {

std::string answer(const std::string& line) {
  const Outcome outcome = run({"call", "--batch"}, line + "\n");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.status, 0);
  return outcome.output;
}

TEST(Batch, AnswersInOrder) {
  struct Case {
    const char* line;
    const char* answer;
  };
  const Case cases[] = {
      {R"({"call": "KZMUtilitiesFormatMemory", "args": [{}, 1024], "id": 7})", R"({"id": 7, "result": "1KB"})"},
      {R"({"call": "KZMUtilitiesFormatMemory", "args": [null, 1024]})", R"({"id": null, "result": "1KB"})"},
      {R"({"id": {"a": [1]}, "call": "mpsToKph", "args": [10]})", R"({"id": {"a":[1]}, "result": 36.0})"},
      {R"({"id": "x", "call": "nothing"})", R"({"id": "x", "error": "no function is named \"nothing\""})"},
      {R"({"id": 1, "call": 5})", R"({"id": 1, "error": "\"call\" must be a name"})"},
      {R"({"id": 1})", R"({"id": 1, "error": "\"call\" must be a name"})"},
      {R"({"id": 1, "call": "mpsToKph", "args": 10})", R"({"id": 1, "error": "\"args\" must be an array"})"},
      {R"({"id": 1, "call": "mpsToKph"})",
       R"({"id": 1, "error": "wrong number of arguments (0) for mpsToKph metersPerSecond:double"})"},
      {R"({"id": 1, "call": "mpsToKph", "args": [1, 2]})",
       R"({"id": 1, "error": "wrong number of arguments (2) for mpsToKph metersPerSecond:double"})"},
      {R"({"id": 1, "settings": [], "call": "mpsToKph", "args": [1]})",
       R"({"id": 1, "error": "\"settings\" must be an object"})"},
      {R"([1])", R"({"id": null, "error": "a batch line is one JSON object"})"},
      {R"({"id": 1, )", R"({"id": null, "error": "malformed JSON at byte 11"})"},
      {"", R"({"id": null, "error": "malformed JSON at byte 1"})"},
      {R"({"id": 2, "call": "mpsToKph", "args": ["NaN"]})", R"({"id": 2, "result": "NaN"})"},
      {R"({"id": 3, "call": "mpsToKph", "args": ["-Infinity"]})", R"({"id": 3, "result": "-Infinity"})"},
      {R"({"id": 4, "call": "mpsToKph", "args": [-0.0]})", R"({"id": 4, "result": -0.0})"},
  };
  std::string lines;
  std::string answers;
  for (const Case& c : cases) {
    lines.append(c.line).append("\n");
    answers.append(c.answer).append("\n");
  }
  const Outcome outcome = run({"call", "--batch"}, lines);
  EXPECT_EQ(outcome.output, answers);
  EXPECT_EQ(outcome.status, 0);
}

TEST(Batch, BytesAfterAZeroByteAreAnError) {
  const std::string_view line("{\"call\":\"mpsToKph\",\"args\":[1],\"id\":1}\0garbage]]]\n", 49);
  EXPECT_EQ(run({"call", "--batch"}, line).output, R"({"id": null, "error": "malformed JSON at byte 38"})"
                                                   "\n");
}

TEST(Batch, IdsComeBackAsTheyCame) {
  for (const char* id : {"12345678901234567890123", "-12345678901234567890123", "0.10000000000000000001", "1.50",
                         R"(["a",{"b":18446744073709551616}])", "18446744073709551615", "1E3", "0.1"}) {
    EXPECT_EQ(run({"call", "--batch"}, std::string(R"({"call":"mpsToKph","args":[1],"id":)") + id + "}\n").output,
              std::string(R"({"id": )") + id + R"(, "result": 3.6})" + "\n");
  }
}

TEST(Batch, AByteOrderMarkIsPassedOver) {
  EXPECT_EQ(run({"call", "--batch"}, "\xEF\xBB\xBF{\"call\":\"mpsToKph\",\"args\":[1],\"id\":1}\n").output,
            R"({"id": 1, "result": 3.6})"
            "\n");
}

TEST(Batch, ALineHasAnyLength) {
  const std::string spaces(std::size_t{20} << 20U, ' ');
  EXPECT_EQ(run({"call", "--batch"}, spaces + R"({"call":"mpsToKph","args":[1],"id":1})" + "\n").output,
            R"({"id": 1, "result": 3.6})"
            "\n");
}

TEST(Batch, SettingsHoldFromTheirLineOn) {
  const std::string pressure = R"("call": "KZMUtilitiesFormatWeatherPressure", "args": [{"units": true}, 1013])";
  const std::string lines = "{" + pressure + ", \"settings\": {\"Weather.Global.Units.Pressure\": 2}}\n" +  //
                            "{" + pressure + "}\n" +                                                        //
                            "{" + pressure + ", \"settings\": {\"Weather.Global.Units.Pressure\": 1}}\n" + "{" +
                            pressure + ", \"settings\": {}}\n";
  EXPECT_EQ(run({"call", "--locale", "de_DE", "--batch"}, lines).output,
            "{\"id\": null, \"result\": \"1.013mbar\"}\n"
            "{\"id\": null, \"result\": \"1.013mbar\"}\n"
            "{\"id\": null, \"result\": \"1.013hPa\"}\n"
            "{\"id\": null, \"result\": \"1.013hPa\"}\n");
}

// Whatever comes in, one readable answer goes out, and the next line is read as usual.
TEST(Batch, HostileLinesGetOneAnswerEach) {
  const std::string good = R"({"id": 1, "call": "mpsToKph", "args": [10]})";
  const std::string lines[] = {
      std::string(300, '['),
      std::string(200000, '['),
      "{\"id\": " + std::string(200000, '['),
      R"({"call": "KZMUtilitiesFormatMemory", "args": [{"a": ")" + std::string(100000, 'x') + R"("}, 1024]})",
      std::string("{\"call\": \"\xff\xfe\", \"args\": []}"),
      std::string("{\"call\": \"a\0b\"}", 15),
      std::string("\0\0\0", 3),
      R"({"call": "a\u0000b", "args": []})",
      R"({"call": "KZMUtilitiesFormatMemory", "args": [{"\ud800": 1}, 1]})",
      R"({"call": "KZMUtilitiesFormatMemory", "args": [{}, 1e999]})",
      R"({"call": "KZMLocalizedStringFromTableInBundle", "args": ["%s%n%@", "KZMUtilities", "%n"]})",
      R"({"call": "KZMUtilitiesDecimalFormatterWithMaximum", "args": [-9223372036854775808]})",
      "{\"id\": \"\x1b[31m\"}",
      "\r",
  };
  std::string input;
  for (const std::string& line : lines) input += line + "\n" + good + "\n";
  const Outcome outcome = run({"call", "--batch"}, input);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "");
  std::istringstream answers(outcome.output);
  std::string text;
  for (std::size_t i = 0; i < std::size(lines); ++i) {
    ASSERT_TRUE(std::getline(answers, text)) << i;
    const nlohmann::json json = nlohmann::json::parse(text, nullptr, false);
    EXPECT_TRUE(json.is_object() && json.contains("id") && (json.contains("error") || json.contains("result"))) << i;
    ASSERT_TRUE(std::getline(answers, text)) << i;
    EXPECT_EQ(text, R"({"id": 1, "result": 36.0})") << i;
  }
  EXPECT_FALSE(std::getline(answers, text));
}

TEST(Batch, DeepButReasonableNestingIsHandedThrough) {
  const std::string deep = std::string(200, '[') + std::string(200, ']');
  EXPECT_EQ(answer(R"({"call": "KZMUtilitiesFormatMemoryWithAttributes", "args": [{"attributes-main": )" + deep +
                   R"(}, 1024]})"),
            R"({"id": null, "result": {"text": "1KB", "runs": [{"text": "1", "attributes": )" + deep +
                R"(}, {"text": "KB", "attributes": null}]}})" + "\n");
}

TEST(Batch, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(run({"call", "--batch"}, R"({"call": "mpsToKph", "args": [10]})").output,
            "{\"id\": null, \"result\": 36.0}\n");
  EXPECT_EQ(run({"call", "--batch"}).output, "");
}

TEST(Batch, EndsWhenNobodyReads) {
  Pipe in;
  Pipe out;
  const pid_t process = started({"call", "--batch"}, in.reader(), out.writer(), STDERR_FILENO);
  out.closeReader();
  out.closeWriter();
  const std::string line = "{}\n{}\n";
  ASSERT_EQ(::write(in.writer(), line.data(), line.size()), static_cast<ssize_t>(line.size()));
  in.closeWriter();
  EXPECT_EQ(statusOf(process), 1);
}

}  // namespace
}  // namespace kzm::tests
