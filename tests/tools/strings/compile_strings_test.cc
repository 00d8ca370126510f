// The program that embeds the string tables.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "tests/tools/strings/folder.h"

namespace kzm {
namespace {

class CompileStrings : public tests::FolderTest {
 protected:
  tests::Outcome compile(const std::string& tables) { return run("'" KZM_COMPILE_STRINGS "' out.cc " + tables); }
};

TEST_F(CompileStrings, FaultsAreReportedALineEachAndNothingIsWritten) {
  write("en.lproj/T.strings",
        "/* source: own; reviewer: none */\n\"Units.A.%@ km\" = \"%@ km\";\n\"Units.A.Off\" = \"Off\";\n");
  write("de.lproj/T.strings",
        "/* source: own; reviewer: none */\n\"Units.A.%@ km\" = \"km\";\n\"Units.A.Off\" = \"%@\";\n");
  const tests::Outcome outcome = compile("de.lproj/T.strings en.lproj/T.strings");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.output,
            "de.lproj/T.strings:2: the text of \"Units.A.%@ km\" has other slots than its key\n"
            "de.lproj/T.strings:3: the text of \"Units.A.Off\" has other slots than its key\n");
  EXPECT_FALSE(exists("out.cc"));
}

TEST_F(CompileStrings, FilesThatAreNotThereOrNotTablesAreReported) {
  write("en.lproj/T.strings", "/* source: own; reviewer: none */\n\"Units.A.Off\" = \"Off\";\n");
  write("de/T.strings", "");
  EXPECT_EQ(compile("fr.lproj/T.strings").output, "fr.lproj/T.strings: cannot be read\n");
  EXPECT_EQ(compile("de/T.strings").output, "de/T.strings: not of the form <language>.lproj/<name>.strings\n");
  EXPECT_EQ(run("'" KZM_COMPILE_STRINGS "' /no/such/folder/out.cc en.lproj/T.strings").output,
            "/no/such/folder/out.cc: cannot be written\n");
}

TEST_F(CompileStrings, WithoutTablesItSaysHowItIsUsed) {
  const tests::Outcome outcome = compile("");
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.output, "usage: kzm_compile_strings OUTPUT TABLE...\n");
}

TEST_F(CompileStrings, TablesAreWrittenAsListsAndLayersWithTheRowsOfTheirParents) {
  write("en.lproj/T.strings",
        "/* source: own; reviewer: none */\n\"Units.A.Off\" = \"Off\";\n\"Units.A.%@\\\"\" = \"%@\\\"\";\n"
        "\"Units.A.%@%%\" = \"%@%%\";\n\"Units.A.%@ \\\\\" = \"%@ \\\\\";\n");
  write("fr.lproj/T.strings",
        "/* source: own; reviewer: none */\n\"Units.A.Off\" = \"Arrêt\";\n\"Units.A.%@\\\"\" = \"″%@\";\n"
        "\"Units.A.%@%%\" = \"%@\u00A0%%\";\n\"Units.A.%@ \\\\\" = \"\\\\ %@\";\n");
  write("fr-CH.lproj/T.strings", "/* source: own; reviewer: none */\n\"Units.A.%@%%\" = \"%@%%\";\n");
  const tests::Outcome outcome = compile("en.lproj/T.strings fr.lproj/T.strings fr-CH.lproj/T.strings");
  EXPECT_EQ(outcome.output, "");
  ASSERT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(read("out.cc"), R"(// Written by tools/strings from the string tables; changes belong there.
#include <KZMUtilities/resources.h>

namespace kzm {
namespace {

constexpr char kList0[] =
    "Units.A.Off\0"
    "Units.A.%@\"\0"
    "Units.A.%@%%\0"
    "Units.A.%@ \\\0";

constexpr char kList1[] =
    "Off\0"
    "%@\"\0"
    "%@%%\0"
    "%@ \\\0";

constexpr char kList2[] =
    "Arrêt\0"
    "″%@\0"
    "%@ %%\0"
    "\\ %@\0";

constexpr char kList3[] =
    "Arrêt\0"
    "″%@\0"
    "%@%%\0"
    "\\ %@\0";

constexpr StringTable kTables[] = {
    {"en", "T", {kList0, sizeof kList0 - 1}, {kList1, sizeof kList1 - 1}},
    {"fr", "T", {kList0, sizeof kList0 - 1}, {kList2, sizeof kList2 - 1}},
    {"fr-CH", "T", {kList0, sizeof kList0 - 1}, {kList3, sizeof kList3 - 1}},
};

constexpr ResourceBundle kBundle{kBundleIdentifier, "en", kTables};

}  // namespace

const ResourceBundle* bundleWithIdentifier(std::string_view identifier) noexcept {
  return identifier == kBundleIdentifier ? &kBundle : nullptr;
}

}  // namespace kzm
)");
}

}  // namespace
}  // namespace kzm
