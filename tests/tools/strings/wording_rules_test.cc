// What a table's texts must be: a broken table for each rule, and the cases at its edges that are right.
#include <gtest/gtest.h>
#include <string>
#include <unicode/ulocdata.h>
#include <vector>

#include "tests/tools/strings/tables.h"

namespace kzm::strings {
namespace {

using tests::faultsIn;
using tests::Rows;

struct Case {
  const char* why;
  Rows rows;
  const char* faults;
  const char* language = "de";
};

void expect(const std::vector<Case>& cases) {
  for (const Case& test : cases) EXPECT_EQ(faultsIn(test.language, test.rows), test.faults) << test.why;
}

TEST(SlotRules, ATextHasTheSlotsOfItsKey) {
  expect({
      {"the number is missing",
       {{"Units.Weather.%@ km", "km"}},
       "2: the text of \"Units.Weather.%@ km\" has other slots than its key"},
      {"two numbers",
       {{"Units.Weather.%@ km", "%@ %@"}},
       "2: the text of \"Units.Weather.%@ km\" has other slots than its key"},
      {"a number where there is none",
       {{"Units.Sensors.Off", "%@"}},
       "2: the text of \"Units.Sensors.Off\" has other slots than its key"},
      {"no percent sign",
       {{"Units.Weather.%@%%", "%@"}},
       "2: the text of \"Units.Weather.%@%%\" has other slots than its key"},
      {"two percent signs",
       {{"Units.Weather.%@%%", "%@%%٪"}},
       "2: the text of \"Units.Weather.%@%%\" has other slots than its key"},
      {"a percent sign of no key",
       {{"Units.Weather.%@ km", "%@ ٪"}},
       "2: the text of \"Units.Weather.%@ km\" has other slots than its key"},
      {"another directive",
       {{"Units.Weather.%@ km", "%@ %d"}},
       "2: a \"%\" other than %@ and %% in the text of \"Units.Weather.%@ km\""},
      {"a numbered slot",
       {{"Units.Weather.%@ km", "%1$@ km"}},
       "2: a \"%\" other than %@ and %% in the text of \"Units.Weather.%@ km\""},
      {"a lone percent sign",
       {{"Units.Weather.%@%%", "%@%"}},
       "2: a \"%\" other than %@ and %% in the text of \"Units.Weather.%@%%\""},
      {"an empty text", {{"Units.Sensors.Off", ""}}, "2: the text of \"Units.Sensors.Off\" is empty"},
      {"the key as text",
       {{"Units.Sensors.Off", "Units.Off"}},
       "2: a key's prefix in the text of \"Units.Sensors.Off\""},
      {"the sign of another script", {{"Units.Weather.%@%%", "%@٪"}}, ""},
      {"the sign before the number", {{"Units.Weather.%@%%", "%%%@"}}, ""},
      {"a no-break space beside it", {{"Units.Weather.%@%%", "%%\u00A0%@"}}, ""},
  });
}

TEST(SpaceRules, ASpaceIsWhereTheKeyHasOneAndNowhereElse) {
  expect({
      {"before the text", {{"Units.Sensors.Off", " Aus"}}, "2: a space at the end of \" Aus\""},
      {"after the text", {{"Units.Weather.%@ km", "%@ km "}}, "2: a space at the end of \"%@ km \""},
      {"two of them", {{"Units.Weather.%@ km", "%@  km"}}, "2: two spaces in \"%@  km\""},
      {"lacking", {{"Units.Weather.%@ km", "%@km"}}, "2: \"%@km\" lacks the space that its key has"},
      {"lacking, unit first", {{"Units.Weather.%@ km", "km%@"}}, "2: \"km%@\" lacks the space that its key has"},
      {"too much", {{"Units.Weather.%@mm", "%@ mm"}}, "2: \"%@ mm\" has a space that its key lacks"},
      {"too much, unit first", {{"Units.Weather.%@mm", "mm %@"}}, "2: \"mm %@\" has a space that its key lacks"},
      {"no-break for a plain one",
       {{"Units.Weather.%@ km", "%@\u00A0km"}},
       "2: \"%@\u00A0km\" lacks the space that its key has"},
      {"no-break for none", {{"Units.Weather.%@mm", "%@\u00A0mm"}}, "2: \"%@\u00A0mm\" has a space that its key lacks"},
      {"plain before a percent sign", {{"Units.Weather.%@%%", "%@ %%"}}, "2: \"%@ %%\" has a space that its key lacks"},
      {"on both sides",
       {{"Units.Weather.%@ km", "ca. %@ km"}},
       "2: the unit is on both sides of the number in \"ca. %@ km\""},
      {"narrow, in a unit",
       {{"Units.Sensors.Off", "A\u202Fus"}},
       "2: the character U+202F in the text of \"Units.Sensors.Off\""},
      {"no-break, in a unit",
       {{"Units.Sensors.Off", "A\u00A0us"}},
       "2: the character U+00A0 in the text of \"Units.Sensors.Off\""},
      {"unit first", {{"Units.Weather.%@ km", "km %@"}, {"Units.Weather.%@mm", "mm%@"}}, ""},
      {"within a unit", {{"Units.Weather.North East", "Timur Laut"}}, ""},
  });
}

TEST(WordingRules, TwinsDifferInTheSpaceAlone) {
  expect({
      {"another unit",
       {{"Units.Weather.%@ mb", "%@ mbar"}, {"Units.Weather.%@mb", "%@mb"}},
       "3: \"Units.Weather.%@mb\" and \"Units.Weather.%@ mb\" differ in more than the space"},
      {"another order",
       {{"Units.Weather.%@ mb", "%@ mbar"}, {"Units.Weather.%@mb", "mbar%@"}},
       "3: \"Units.Weather.%@mb\" and \"Units.Weather.%@ mb\" differ in more than the space"},
      {"the same", {{"Units.Weather.%@ mb", "mbar %@"}, {"Units.Weather.%@mb", "mbar%@"}}, ""},
  });
}

TEST(WordingRules, UnitsThatDifferReadDifferently) {
  expect({
      {"bits like bytes",
       {{"Units.Network.%@ Mb", "%@ MB"}, {"Units.Network.%@ MB", "%@ MB"}},
       "3: \"Units.Network.%@ MB\" and \"Units.Network.%@ Mb\" read the same"},
      {"levels",
       {{"Units.Space.%@P", "%@ب"}, {"Units.Space.%@T", "%@ب"}},
       "3: \"Units.Space.%@T\" and \"Units.Space.%@P\" read the same",
       "ar"},
      {"directions",
       {{"Units.Weather.North", "Nord"}, {"Units.Weather.South", "Nord"}},
       "3: \"Units.Weather.South\" and \"Units.Weather.North\" read the same"},
      {"two names of lux", {{"Units.Sensors.%@ Lx", "%@ lx"}, {"Units.Sensors.%@ Lux", "%@ lx"}}, ""},
      {"two families", {{"Units.Space.%@K", "%@K"}, {"Units.Sensors.%@K", "%@K"}}, ""},
  });
}

TEST(WordingRules, AUnitHasOneSpelling) {
  expect({
      {"in two families",
       {{"Units.Network.%@ MB", "%@ Mo"}, {"Units.Space.%@ MB", "%@ MB"}},
       "3: \"Units.Space.%@ MB\" and \"Units.Network.%@ MB\" are one unit spelled two ways"},
      {"kelvin",
       {{"Units.Sensors.%@K", "%@K"}, {"Units.Weather.%@K", "%@Kel"}},
       "3: \"Units.Weather.%@K\" and \"Units.Sensors.%@K\" are one unit spelled two ways"},
      {"gigahertz, gigabyte", {{"Units.Network.%@G", "%@Г"}, {"Units.Sensors.%@G", "%@G"}}, "", "ru"},
  });
}

TEST(WordingRules, TheSecondIsWrittenInOneWay) {
  expect({
      {"wind and bytes",
       {{"Units.Network.%@ MB/s", "%@ MB/Sek."}, {"Units.Weather.%@ m/s", "%@ m/s"}},
       "3: \"Units.Weather.%@ m/s\" and \"Units.Network.%@ MB/s\" write the second in two ways"},
      {"no slash",
       {{"Units.Weather.%@ m/s", "%@ mps"}},
       "2: \"%@ mps\" is not the unit without time, a slash and the second"},
      {"another unit",
       {{"Units.Network.%@ MB", "%@ MB"}, {"Units.Network.%@ MB/s", "%@ Mo/s"}},
       "3: \"%@ Mo/s\" is not the unit without time, a slash and the second"},
      {"translated", {{"Units.Network.%@ MB/s", "%@ MB/Sek."}, {"Units.Weather.%@ m/s", "%@ m/Sek."}}, ""},
      {"unit first", {{"Units.Network.%@ MB", "MB %@"}, {"Units.Network.%@ MB/s", "MB/s %@"}}, ""},
  });
}

TEST(TextRules, SensorsTextsLoseNothingToStrip) {
  expect({
      {"a full stop",
       {{"Units.Sensors.Off", "Ausg."}},
       "2: \"Ausg.\" has a full stop or comma, which the option \"strip\" removes"},
      {"a comma",
       {{"Units.Sensors.Off", "A,s"}},
       "2: \"A,s\" has a full stop or comma, which the option \"strip\" removes"},
      {"elsewhere", {{"Units.Weather.%@ Days", "%@ Tg."}}, ""},
  });
}

TEST(TextRules, WordsAreTranslated) {
  expect({
      {"a word", {{"Units.Weather.North", "North"}}, "2: \"North\" is English"},
      {"a unit", {{"Units.Weather.%@ knots", "%@ knots"}}, "2: \"%@ knots\" is English"},
      {"a shared word", {{"Units.Weather.West", "West"}}, "", "nl"},
      {"the same elsewhere", {{"Units.Weather.West", "West"}}, "2: \"West\" is English", "af"},
      {"a symbol", {{"Units.Weather.%@ km", "%@ km"}}, ""},
  });
}

TEST(TextRules, MarksOfDirectionAreRefused) {
  for (const char* mark : {"\u061C", "\u200E", "\u200F", "\u202A", "\u202B", "\u202C", "\u202D", "\u202E", "\u2066",
                           "\u2067", "\u2068", "\u2069"}) {
    EXPECT_EQ(faultsIn("he", {{"Units.Sensors.Off", std::string("כבוי") + mark}}),
              "2: a mark of direction in the text of \"Units.Sensors.Off\"");
  }
}

TEST(UnicodeRules, CharactersAreLettersAndSignsInOneForm) {
  expect({
      {"a control character",
       {{"Units.Sensors.Off", "A\u0085us"}},
       "2: the character U+0085 in the text of \"Units.Sensors.Off\""},
      {"delete", {{"Units.Sensors.Off", "A\x7Fus"}}, "2: the character U+007F in the text of \"Units.Sensors.Off\""},
      {"a soft hyphen",
       {{"Units.Sensors.Off", "A\u00ADus"}},
       "2: the character U+00AD in the text of \"Units.Sensors.Off\""},
      {"a zero-width space",
       {{"Units.Sensors.Off", "A\u200Bus"}},
       "2: the character U+200B in the text of \"Units.Sensors.Off\""},
      {"a line separator",
       {{"Units.Sensors.Off", "A\u2028us"}},
       "2: the character U+2028 in the text of \"Units.Sensors.Off\""},
      {"for private use",
       {{"Units.Sensors.Off", "A\uE000us"}},
       "2: the character U+E000 in the text of \"Units.Sensors.Off\""},
      {"beyond the first plane",
       {{"Units.Sensors.Off", "A\U000F0000"}},
       "2: the character U+0F0000 in the text of \"Units.Sensors.Off\""},
      {"decomposed",
       {{"Units.Weather.South", "Su\u0308den"}},
       "2: the text of \"Units.Weather.South\" is not in normalization form C"},
      {"a joiner that Persian needs", {{"Units.Sensors.%@ mA", "%@ میلی\u200Cآمپر"}}, "", "fa"},
      {"a joiner that Sinhala needs", {{"Units.Sensors.Off", "අක්\u200Dරියයි"}}, "", "si"},
  });
}

TEST(UnicodeRules, AWordHasOneScript) {
  expect({
      {"a Latin M", {{"Units.Space.%@ MB", "%@ MБ"}}, "2: two scripts in the word \"MБ\"", "kk"},
      {"Latin after a mark", {{"Units.Sensors.%@ mV", "%@ मिV"}}, "2: two scripts in the word \"मिV\"", "mr"},
      {"two words", {{"Units.Network.%@ MB/s", "%@ MB/с"}}, "", "sr"},
      {"ideographs and kana", {{"Units.Weather.East", "東の"}}, "", "ja"},
      {"not in Chinese", {{"Units.Weather.East", "東の"}}, "2: two scripts in the word \"東の\"", "zh-Hant"},
      {"Hangul and Latin", {{"Units.Weather.East", "동E"}}, "2: two scripts in the word \"동E\"", "ko"},
  });
}

TEST(UnicodeRules, ATextFitsItsPlace) {
  expect({
      {"at the limit", {{"Units.Weather.%@ Days", "%@ Dagene"}}, "", "nb"},
      {"one cell too wide",
       {{"Units.Weather.%@ Days", "%@ Dagerne"}},
       "2: \"%@ Dagerne\" takes 7 cells; 6 is the limit",
       "nb"},
      {"wide characters",
       {{"Units.Sensors.%@ Lux", "%@ ルクス光"}},
       "2: \"%@ ルクス光\" takes 8 cells; 6 is the limit",
       "ja"},
      {"marks take none", {{"Units.Weather.%@ Days", "%@ दि\u0902नि\u0902"}}, "", "hi"},
      {"a new unit",
       {{"Units.Weather.%@ furlongs", "%@ Fur"}},
       "2: no limit of width for \"Units.Weather.%@ furlongs\""},
  });
}

TEST(UnicodeRules, TextsThatNameUnicodesDataAreInThem) {
  UVersionInfo version{};
  UErrorCode status = U_ZERO_ERROR;
  ulocdata_getCLDRVersion(version, &status);
  const std::string source = "CLDR " + std::to_string(version[0]);
  const auto faults = [&](const std::string& text) {
    const std::string head = "/* source: " + source + "; reviewer: none */\n";
    const std::string row = "\"Units.Weather.%@ km\" = \"" + text + "\";\n";
    return tests::lines(unicodeFaults(parseTable("ru.lproj/T.strings", head + row)));
  };
  EXPECT_EQ(faults("%@ км"), "");
  EXPECT_EQ(faults("%@ кмм"), "2: \"%@ кмм\" is not in the data of " + source);
}

}  // namespace
}  // namespace kzm::strings
