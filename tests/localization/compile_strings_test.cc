// The tool that embeds the string tables: what it lets pass, and what it tells of tables that are broken.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <unistd.h>

#include "tests/localization/command.h"

namespace kzm {
namespace {

namespace fs = std::filesystem;

constexpr const char* kEnglish = R"(/* Two units. */
"Units.A.%@ km" = "%@ km";
"Units.A.%@%%" = "%@%%";
"Units.A.Off" = "Off";
)";

/// A folder of tables that goes away with the test.
class CompileStrings : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::path(testing::TempDir()) / ("compile-strings-" + std::to_string(getpid()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  void write(const std::string& name, const std::string& content) {
    const fs::path path = folder_ / name;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
  }

  std::string written() {
    std::ifstream file(folder_ / "out.cc", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  tests::Outcome compile(const std::string& tables) {
    return tests::run("cd '" + folder_.string() + "' && '" KZM_COMPILE_STRINGS "' en out.cc " + tables);
  }

  fs::path folder_;
};

struct BadTable {
  const char* why;
  const char* table;
  const char* message;
};

constexpr BadTable kBadTables[] = {
    {"a stray byte", "\"Units.A.%@ km\" = \"%@ \xFF\";", "1: not valid UTF-8"},
    {"a cut sequence", "\n\n/* \xC3", "3: not valid UTF-8"},
    {"an overlong sequence", "/* \xC0\xAF */", "1: not valid UTF-8"},
    {"an overlong sequence of three", "/* \xE0\x80\xAF */", "1: not valid UTF-8"},
    {"an overlong sequence of four", "/* \xF0\x80\x80\xAF */", "1: not valid UTF-8"},
    {"a surrogate", "/* \xED\xA0\x80 */", "1: not valid UTF-8"},
    {"beyond the last character", "/* \xF4\x90\x80\x80 */", "1: not valid UTF-8"},
    {"a byte order mark", "\xEF\xBB\xBF/* */", "1: expected a key in double quotes"},
    {"no quotes", "Units.A.Off = \"Aus\";", "1: expected a key in double quotes"},
    {"no equals sign", "\n\"Units.A.Off\" \"Aus\";", "2: expected ="},
    {"no text", "\"Units.A.Off\" = ;", "1: expected a text in double quotes"},
    {"no semicolon", "\"Units.A.Off\" = \"Aus\"\n\"Units.A.B\" = \"B\";", "2: expected ;"},
    {"no end of the quotes", "\"Units.A.Off", "1: the quoted text has no end"},
    {"quotes over two lines", "\"Units.A.Off\" = \"A\nus\";",
     "1: a quoted text ends on its line and holds no control character"},
    {"a tabulator", "\"Units.A.Off\" = \"A\tus\";", "1: a quoted text ends on its line and holds no control character"},
    {"an escape that is none", "\"Units.A.Off\" = \"Aus\\n\";", "1: only \\\" and \\\\ are escapes"},
    {"a comment without an end", "\n/* Aus", "2: the comment has no end"},
    {"half a comment", "/ Aus */", "1: expected a key in double quotes"},
    {"a key twice", "\"Units.A.Off\" = \"Aus\";\n\"Units.A.Off\" = \"An\";", "2: \"Units.A.Off\" stands twice"},
    {"a key without a prefix", "\"Off\" = \"Aus\";", "1: the key \"Off\" is not \"Units.<family>.<template>\""},
    {"a key without a template", "\"Units.A.\" = \"Aus\";",
     "1: the key \"Units.A.\" is not \"Units.<family>.<template>\""},
    {"an empty text", "\"Units.A.Off\" = \"\";", "1: the text of \"Units.A.Off\" is empty"},
    {"the key as text", "\"Units.A.Off\" = \"Units.A.Off\";", "1: a key's prefix in the text of \"Units.A.Off\""},
    {"no slot", "\"Units.A.%@ km\" = \"km\";", "1: the text of \"Units.A.%@ km\" has other slots than its key"},
    {"two slots", "\"Units.A.%@ km\" = \"%@ %@\";", "1: the text of \"Units.A.%@ km\" has other slots than its key"},
    {"a slot where there is none", "\"Units.A.Off\" = \"%@\";",
     "1: the text of \"Units.A.Off\" has other slots than its key"},
    {"no percent sign", "\"Units.A.%@%%\" = \"%@\";", "1: the text of \"Units.A.%@%%\" has other slots than its key"},
    {"a percent sign too many", "\"Units.A.%@ km\" = \"%@%%\";",
     "1: the text of \"Units.A.%@ km\" has other slots than its key"},
    {"two percent signs", "\"Units.A.%@%%\" = \"%@%%٪\";",
     "1: the text of \"Units.A.%@%%\" has other slots than its key"},
    {"another script's, for nothing", "\"Units.A.%@ km\" = \"%@٪\";",
     "1: the text of \"Units.A.%@ km\" has other slots than its key"},
    {"another directive", "\"Units.A.%@ km\" = \"%@ %d\";",
     "1: a \"%\" other than %@ and %% in the text of \"Units.A.%@ km\""},
    {"a numbered slot", "\"Units.A.%@ km\" = \"%1$@ km\";",
     "1: a \"%\" other than %@ and %% in the text of \"Units.A.%@ km\""},
    {"a lone percent sign", "\"Units.A.%@%%\" = \"%@%\";",
     "1: a \"%\" other than %@ and %% in the text of \"Units.A.%@%%\""},
    {"a key that English lacks", "\"Units.A.%@ mi\" = \"%@ mi\";", "1: unknown key \"Units.A.%@ mi\""},
    {"a missing key", "\"Units.A.%@ km\" = \"%@ km\";\n\"Units.A.%@%%\" = \"%@ %%\";",
     "2: the key \"Units.A.Off\" is missing"},
    {"an empty table", "/* nothing */", "1: the key \"Units.A.%@ km\" is missing"},
    {"another order", "\"Units.A.%@ km\" = \"%@ km\";\n\"Units.A.Off\" = \"Aus\";\n\"Units.A.%@%%\" = \"%@%%\";",
     "2: out of order: \"Units.A.%@%%\" goes here"},
};

TEST_F(CompileStrings, BadTablesAreToldInOneLineAndNothingIsWritten) {
  write("en.lproj/T.strings", kEnglish);
  for (const BadTable& test : kBadTables) {
    write("de.lproj/T.strings", test.table);
    const tests::Outcome outcome = compile("de.lproj/T.strings en.lproj/T.strings");
    EXPECT_EQ(outcome.exitCode, 1) << test.why;
    EXPECT_EQ(outcome.output, std::string("de.lproj/T.strings:") + test.message + "\n") << test.why;
    EXPECT_FALSE(fs::exists(folder_ / "out.cc")) << test.why;
  }
}

constexpr BadTable kBadEnglish[] = {
    {"no entries", "/* nothing */", "en.lproj/T.strings:1: no entries"},
    {"a text of its own", "\"Units.A.Off\" = \"On\";",
     "en.lproj/T.strings:1: the text of \"Units.A.Off\" is not the template that the key ends in"},
    {"a key twice", "\"Units.A.Off\" = \"Off\";\n\n\"Units.A.Off\" = \"Off\";",
     "en.lproj/T.strings:3: \"Units.A.Off\" stands twice"},
};

TEST_F(CompileStrings, TheDevelopmentLanguageIsCheckedFirst) {
  write("de.lproj/T.strings", kEnglish);
  for (const BadTable& test : kBadEnglish) {
    write("en.lproj/T.strings", test.table);
    const tests::Outcome outcome = compile("de.lproj/T.strings en.lproj/T.strings");
    EXPECT_EQ(outcome.exitCode, 1) << test.why;
    EXPECT_EQ(outcome.output, std::string(test.message) + "\n") << test.why;
  }
}

TEST_F(CompileStrings, FilesThatAreNotThereOrNotTablesAreTold) {
  write("en.lproj/T.strings", kEnglish);
  write("de.lproj/T.strings", kEnglish);
  write("de.lproj/U.strings", kEnglish);
  write("de/T.strings", kEnglish);
  write("de.lproj/T.txt", kEnglish);
  const auto told = [&](const std::string& tables) { return compile(tables).output; };
  EXPECT_EQ(told("fr.lproj/T.strings en.lproj/T.strings"), "fr.lproj/T.strings: cannot be read\n");
  EXPECT_EQ(told("de/T.strings en.lproj/T.strings"), "de/T.strings: not of the form <language>.lproj/<name>.strings\n");
  EXPECT_EQ(told("de.lproj/T.txt"), "de.lproj/T.txt: not of the form <language>.lproj/<name>.strings\n");
  EXPECT_EQ(told("de.lproj/T.strings"), "de.lproj/T.strings: there is no such table in en\n");
  EXPECT_EQ(told("de.lproj/U.strings en.lproj/T.strings"), "de.lproj/U.strings: there is no such table in en\n");
  EXPECT_EQ(told("en.lproj/T.strings de.lproj/T.strings de.lproj/T.strings"),
            "de.lproj/T.strings: a second table of this language and name\n");
  EXPECT_EQ(tests::run("'" KZM_COMPILE_STRINGS "' en /no/such/folder/out.cc '" +
                       (folder_ / "en.lproj/T.strings").string() + "'")
                .output,
            "/no/such/folder/out.cc: cannot be written\n");
}

TEST_F(CompileStrings, WithoutTablesItSaysHowItIsUsed) {
  const tests::Outcome outcome = compile("");
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.output, "usage: compile_strings LANGUAGE OUTPUT TABLE...\n");
}

TEST_F(CompileStrings, GoodTablesAreWrittenSortedByKeyWithTheirTextsAsTheyStand) {
  write("en.lproj/T.strings",
        "\"Units.A.Off\"=\"Off\"; /* \"x\" = */ \"Units.A.%@\\\"\" = \"%@\\\"\" ;\r\n\"Units.A.%@\\\\\""
        "=\"%@\\\\\";\"Units.A.%@%%\" = \"%@%%\";");
  write("tr.lproj/T.strings",
        "\"Units.A.Off\" = \"Kapalı\";\n\"Units.A.%@\\\"\" = \"″%@\";\n\"Units.A.%@\\\\\" = "
        "\"\\\\%@\";\n\"Units.A.%@%%\" = \"%%%@\";\n");
  const tests::Outcome outcome = compile("en.lproj/T.strings tr.lproj/T.strings");
  EXPECT_EQ(outcome.output, "");
  ASSERT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(written(), R"(// Written by tools/compile_strings from the string tables; changes belong there.
#include <KZMUtilities/resources.h>

namespace kzm {
namespace {

constexpr LocalizedText kTexts0[] = {
    {"Units.A.%@\"", "%@\""},
    {"Units.A.%@%%", "%@%%"},
    {"Units.A.%@\\", "%@\\"},
    {"Units.A.Off", "Off"},
};

constexpr LocalizedText kTexts1[] = {
    {"Units.A.%@\"", "″%@"},
    {"Units.A.%@%%", "%%%@"},
    {"Units.A.%@\\", "\\%@"},
    {"Units.A.Off", "Kapalı"},
};

constexpr StringTable kTables[] = {
    {"en", "T", kTexts0},
    {"tr", "T", kTexts1},
};

constexpr ResourceBundle kBundle{kBundleIdentifier, "en", kTables};

}  // namespace

const ResourceBundle* bundleWithIdentifier(std::string_view identifier) noexcept {
  return identifier == kBundleIdentifier ? &kBundle : nullptr;
}

}  // namespace kzm
)");
}

TEST_F(CompileStrings, APercentSignMayBeThatOfAnotherScriptAndBeAnywhere) {
  write("en.lproj/T.strings", "\"Units.A.%@%%\" = \"%@%%\";");
  for (const char* text : {"%@%%", "%@\u00A0%%", "%%%@", "%@\u066A", "\u066A%@"}) {
    write("ar.lproj/T.strings", "\"Units.A.%@%%\" = \"" + std::string(text) + "\";");
    EXPECT_EQ(compile("en.lproj/T.strings ar.lproj/T.strings").output, "");
    EXPECT_NE(written().find("{\"Units.A.%@%%\", \"" + std::string(text) + "\"}"), std::string::npos) << text;
  }
}

}  // namespace
}  // namespace kzm
