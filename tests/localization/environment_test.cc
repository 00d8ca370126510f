// The languages that a fresh process finds in its environment.
#include <gtest/gtest.h>
#include <string>

#include "tests/localization/command.h"

namespace kzm {
namespace {

struct Case {
  const char* why;
  const char* environment;
  const char* text;
};

constexpr Case kCases[] = {
    {"nothing set", "", "North East"},
    {"LANG", "LANG=de_CH.UTF-8", "Nordosten"},
    {"LC_MESSAGES before LANG", "LANG=de_DE LC_MESSAGES=fr_FR", "Nord-Est"},
    {"LC_ALL before LC_MESSAGES", "LC_ALL=it_IT LC_MESSAGES=fr_FR LANG=de_DE", "Nord-est"},
    {"LANGUAGE before them all", "LANGUAGE=ja:ko LC_ALL=it_IT", "北東"},
    {"first language that there is", "LANGUAGE=xx:ko LC_ALL=it_IT", "북동쪽"},
    {"C silences LANGUAGE", "LANGUAGE=ja LC_ALL=C", "North East"},
    {"C.UTF-8 does not", "LANGUAGE=ja LC_ALL=C.UTF-8", "北東"},
    {"Latin script", "LANG=sr_RS.UTF-8@latin", "Severoistok"},
    {"numbers have no say", "LANG=de_DE LC_NUMERIC=fr_FR", "Nordosten"},
    {"unknown language", "LANG=xx_YY", "North East"},
    {"garbage", "LANG=../../x LANGUAGE=%s:%n", "North East"},
};

TEST(LocalizationEnvironment, FirstTextsFollowItFromEveryThreadAndToTheVeryEnd) {
  for (const Case& test : kCases) {
    const tests::Outcome outcome =
        tests::run("env -u LANGUAGE -u LC_ALL -u LC_MESSAGES -u LANG " + std::string(test.environment) +
                   " '" KZM_LOOKUP_PROGRAM "' 'Units.Weather.North East'");
    EXPECT_EQ(outcome.exitCode, 0) << test.why;
    EXPECT_EQ(outcome.output, std::string(test.text) + "\nat the end: " + test.text + "\n") << test.why;
  }
}

}  // namespace
}  // namespace kzm
