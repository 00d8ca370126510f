// The translator's desk as a program: its verbs, and what it says when it cannot do what is asked.
#include <gtest/gtest.h>
#include <string>

#include "tests/tools/strings/folder.h"

namespace kzm {
namespace {

constexpr const char* kEnglish = R"(/* English. */
/* source: own; reviewer: none */

/* Sensors */
"Units.Sensors.Off" = "Off";
)";
constexpr const char* kGerman = R"(/* German. */
/* source: own; reviewer: none */

/* Sensors */
"Units.Sensors.Off" = "Aus";
)";

class Desk : public tests::FolderTest {
 protected:
  void SetUp() override {
    FolderTest::SetUp();
    write("r/en.lproj/KZMUtilities.strings", kEnglish);
    write("r/de.lproj/KZMUtilities.strings", kGerman);
  }
  tests::Outcome desk(const std::string& arguments) { return run("'" KZM_STRINGS_DESK "' " + arguments); }
};

TEST_F(Desk, ChecksAllTablesOrOne) {
  EXPECT_EQ(desk("r check").output, "");
  EXPECT_EQ(desk("r check").exitCode, 0);
  write("r/fr.lproj/KZMUtilities.strings",
        "/* source: own; reviewer: none */\n\"Units.Sensors.Off\" = \"Arre\u0302t\";\n");
  write("r/it.lproj/KZMUtilities.strings", "/* source: own; reviewer: none */\n\"Units.Sensors.Off\" = \"Off\";\n");
  constexpr const char* kFrench =
      "r/fr.lproj/KZMUtilities.strings:2: the text of \"Units.Sensors.Off\" is not in normalization form C\n";
  constexpr const char* kItalian = "r/it.lproj/KZMUtilities.strings:2: \"Off\" is English\n";
  EXPECT_EQ(desk("r check").output, std::string(kFrench) + kItalian);
  EXPECT_EQ(desk("r check").exitCode, 1);
  EXPECT_EQ(desk("r check fr").output, kFrench);
  EXPECT_EQ(desk("r check it").output, kItalian);
  EXPECT_EQ(desk("r check de").output, "");
}

TEST_F(Desk, TextsGoOutAndComeBack) {
  EXPECT_EQ(desk("r export de de.po").output, "");
  EXPECT_EQ(desk("r import de de.po").output, "");
  EXPECT_EQ(read("r/de.lproj/KZMUtilities.strings"), kGerman);
  std::string po = read("de.po");
  po.replace(po.find("\"Aus\""), 5, "\"Halt\"");
  po.replace(po.find("Last-Translator: "), 17, "Last-Translator: A");
  write("de.po", po);
  EXPECT_EQ(desk("r import de de.po").output, "changed: \"Units.Sensors.Off\"\n");
  EXPECT_NE(read("r/de.lproj/KZMUtilities.strings").find("\"Halt\"; /* source: translator A */"), std::string::npos);
}

TEST_F(Desk, AnImportThatWouldBreakARuleIsReportedAtItsMessageAndWritesNothing) {
  EXPECT_EQ(desk("r export de de.po").output, "");
  std::string po = read("de.po");
  po.replace(po.find("\"Aus\""), 5, "\"Ausg.\"");
  po.replace(po.find("Last-Translator: "), 17, "Last-Translator: A");
  write("de.po", po);
  const tests::Outcome outcome = desk("r import de de.po");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.output, "de.po:15: \"Ausg.\" has a full stop or comma, which the option \"strip\" removes\n");
  EXPECT_EQ(read("r/de.lproj/KZMUtilities.strings"), kGerman);
}

TEST_F(Desk, ReportsOnAllTablesOrOne) {
  EXPECT_NE(desk("r report").output.find("\nen "), std::string::npos);
  EXPECT_NE(desk("r report").output.find("\nde "), std::string::npos);
  EXPECT_EQ(desk("r report de").output,
            "r/de.lproj/KZMUtilities.strings:5: \"Units.Sensors.Off\" = \"Aus\"  source: own; reviewer: none\n");
}

struct Refused {
  const char* arguments;
  const char* message;
};
constexpr Refused kRefused[] = {
    {"r check xx", "kzm_strings_desk: there is no table of the language \"xx\"\n"},
    {"r report xx", "kzm_strings_desk: there is no table of the language \"xx\"\n"},
    {"r export de no/such/folder.po", "kzm_strings_desk: no/such/folder.po cannot be written\n"},
    {"r import de none.po", "kzm_strings_desk: none.po cannot be read\n"},
    {"r import en none.po", "kzm_strings_desk: the English texts are the keys\n"},
    {"nowhere check", "kzm_strings_desk: nowhere is no folder\n"},
    {". check", "kzm_strings_desk: . has no table of the development language\n"},
    {"r import ../x none.po", "kzm_strings_desk: \"../x\" is no language tag\n"},
};

TEST_F(Desk, WhatItCannotDoIsOneLineAndAnExitCode) {
  for (const Refused& test : kRefused) {
    const tests::Outcome outcome = desk(test.arguments);
    EXPECT_EQ(outcome.output, test.message);
    EXPECT_EQ(outcome.exitCode, 1) << test.arguments;
  }
}

TEST_F(Desk, TablesThatCannotBeTakenApartAreReportedByEveryVerb) {
  write("r/it.lproj/KZMUtilities.strings", "/* source: own; reviewer: none */\n\"Off\" = \"Spenta\";\n");
  for (const char* arguments : {"r check", "r report", "r report it", "r export it it.po", "r import it it.po"}) {
    const tests::Outcome outcome = desk(arguments);
    EXPECT_EQ(outcome.exitCode, 1) << arguments;
    EXPECT_TRUE(outcome.output.starts_with("r/it.lproj/KZMUtilities.strings:2: the key \"Off\" is not")) << arguments;
  }
}

TEST_F(Desk, WithoutAVerbItSaysHowItIsUsed) {
  for (const char* arguments : {"", "r", "r paint", "r export", "r check a b", "r export de"}) {
    const tests::Outcome outcome = desk(arguments);
    EXPECT_EQ(outcome.exitCode, 2) << arguments;
    EXPECT_TRUE(outcome.output.starts_with("usage: kzm_strings_desk FOLDER VERB")) << arguments;
  }
}

}  // namespace
}  // namespace kzm
