// Tables out to PO files and back.
#include "tools/strings/exchange.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "tests/tools/strings/tables.h"

namespace kzm::strings {
namespace {

constexpr const char* kEnglish = R"(/* English. */
/* source: own; reviewer: none */

/* Sensors: no full stops */
/* a fan at rest */
"Units.Sensors.Off" = "Off";

/* Weather */
"Units.Weather.%@ km" = "%@ km";
"Units.Weather.%@ Days" = "%@ Days";
)";

constexpr const char* kGerman = R"(/* German. */
/* source: own; reviewer: none */

/* Sensors */
"Units.Sensors.Off" = "Aus";

/* Weather */
"Units.Weather.%@ km" = "%@ km"; /* source: symbol */
"Units.Weather.%@ Days" = "%@ Tg."; /* source: CLDR 42; reviewer: A */
)";

constexpr const char* kSwiss = R"(/* German, as in Switzerland. */
/* source: own; reviewer: none */

"Units.Weather.%@ Days" = "%@ d";
)";

Catalog catalog() {
  return {{parseTable("en.lproj/T.strings", kEnglish), parseTable("de.lproj/T.strings", kGerman),
           parseTable("de-CH.lproj/T.strings", kSwiss)}};
}

std::string exported(std::string_view language) {
  std::ostringstream out;
  writeCatalog(out, catalog(), language);
  return out.str();
}

/// The PO file of a language with one text replaced and a translator named.
std::string translated(std::string_view language, const std::string& from, const std::string& to) {
  std::string po = exported(language);
  for (const auto& [old, fresh] :
       {std::pair{from, to}, std::pair{std::string("Last-Translator: "), std::string("Last-Translator: A B <a@b>")}}) {
    po.replace(po.find(old), old.size(), fresh);
  }
  return po;
}

Import imported(std::string_view language, const std::string& po) {
  return importCatalog(catalog(), language, "T", "x.po", readMessages("x.po", po));
}

TEST(Export, SaysWhatATranslatorHasToKnow) {
  EXPECT_EQ(exported("de-CH"), R"(msgid ""
msgstr ""
"Project-Id-Version: KZMUtilities\n"
"Last-Translator: \n"
"Language: de_CH\n"
"MIME-Version: 1.0\n"
"Content-Type: text/plain; charset=UTF-8\n"
"Content-Transfer-Encoding: 8bit\n"

#. Sensors: no full stops
#. a fan at rest
#. at most 12 cells
#. in de: Aus
#: sensors/sensor_table.cc
msgctxt "Units.Sensors.Off"
msgid "Off"
msgstr ""

#. Weather
#. at most 10 cells beside the number
#. in de: %@ km
#: weather/weather_text.cc
msgctxt "Units.Weather.%@ km"
msgid "%@ km"
msgstr ""

#. Weather
#. at most 6 cells beside the number
#. source: own; reviewer: none
#. in de: %@ Tg.
#: weather/weather_text.cc
msgctxt "Units.Weather.%@ Days"
msgid "%@ Days"
msgstr "%@ d"

)");
}

TEST(Export, OfEnglishAndOfANewLanguageHasNoTexts) {
  for (const char* language : {"en", "tlh"}) {
    EXPECT_EQ(exported(language).find("msgstr \"%@"), std::string::npos) << language;
  }
}

TEST(Import, OfWhatWasExportedChangesNothing) {
  for (const auto& [language, content] : {std::pair{"de", kGerman}, std::pair{"de-CH", kSwiss}}) {
    const Import result = imported(language, exported(language));
    EXPECT_EQ(tests::lines(result.faults), "") << language;
    EXPECT_TRUE(result.changed.empty()) << language;
    EXPECT_EQ(result.content, content) << language;
  }
}

struct Change {
  const char* why;
  const char* language;
  const char* from;
  const char* to;
  const char* rowBefore;  // in the table; null: there is none
  const char* rowAfter;   // empty: it goes away
};

constexpr Change kChanges[] = {
    {"a text", "de", "msgstr \"Aus\"", "msgstr \"Halt\"", "\"Units.Sensors.Off\" = \"Aus\";\n",
     "\"Units.Sensors.Off\" = \"Halt\"; /* source: translator A B */\n"},
    {"a text with a source and a reviewer", "de", "msgstr \"%@ Tg.\"", "msgstr \"%@ \\\"d\\\"\"",
     "\"Units.Weather.%@ Days\" = \"%@ Tg.\"; /* source: CLDR 42; reviewer: A */\n",
     "\"Units.Weather.%@ Days\" = \"%@ \\\"d\\\"\"; /* source: translator A B */\n"},
    {"an empty text stays", "de", "msgstr \"Aus\"", "msgstr \"\"", "\"Units.Sensors.Off\" = \"Aus\";\n",
     "\"Units.Sensors.Off\" = \"Aus\";\n"},
    {"a layer's text", "de-CH", "msgstr \"%@ d\"", "msgstr \"%@ T\"", "\"Units.Weather.%@ Days\" = \"%@ d\";\n",
     "\"Units.Weather.%@ Days\" = \"%@ T\"; /* source: translator A B */\n"},
    {"an empty text of a layer", "de-CH", "msgstr \"%@ d\"", "msgstr \"\"", "\"Units.Weather.%@ Days\" = \"%@ d\";\n",
     ""},
    {"the parent's text", "de-CH", "msgstr \"%@ d\"", "msgstr \"%@ Tg.\"", "\"Units.Weather.%@ Days\" = \"%@ d\";\n",
     ""},
    {"a new row of a layer", "de-CH", "msgid \"Off\"\nmsgstr \"\"", "msgid \"Off\"\nmsgstr \"Uus\"",
     "\"Units.Weather.%@ Days\"",
     "\"Units.Sensors.Off\" = \"Uus\"; /* source: translator A B */\n\"Units.Weather.%@ Days\""},
};

TEST(Import, TakesTheTextsThatDifferAndNamesTheirTranslator) {
  for (const Change& test : kChanges) {
    const Import result = imported(test.language, translated(test.language, test.from, test.to));
    std::string expected = test.language == std::string("de") ? kGerman : kSwiss;
    expected.replace(expected.find(test.rowBefore), std::string(test.rowBefore).size(), test.rowAfter);
    EXPECT_EQ(tests::lines(result.faults), "") << test.why;
    EXPECT_EQ(result.content, expected) << test.why;
  }
}

TEST(Import, MakesTheTableOfANewLanguage) {
  const std::string po = translated("fr", "msgid \"Off\"\nmsgstr \"\"", "msgid \"Off\"\nmsgstr \"Arrêt\"");
  EXPECT_EQ(imported("fr", po).content, R"(/* fr. */
/* source: translator A B; reviewer: none */

/* Sensors */
"Units.Sensors.Off" = "Arrêt";
)");
  const std::string layer = translated("de-AT", "msgid \"Off\"\nmsgstr \"\"", "msgid \"Off\"\nmsgstr \"Abgedreht\"");
  EXPECT_EQ(imported("de-AT", layer).content, R"(/* de-AT. */
/* source: translator A B; reviewer: none */

"Units.Sensors.Off" = "Abgedreht";
)");
}

TEST(Import, FuzzyTextsWait) {
  const std::string po = translated("de", "#: sensors/sensor_table.cc", "#, fuzzy\n#: sensors/sensor_table.cc");
  std::string other = po;
  other.replace(other.find("\"Aus\""), 5, "\"Halt\"");
  EXPECT_EQ(imported("de", other).content, kGerman);
}

struct Refused {
  const char* why;
  const char* from;
  const char* to;
  const char* fault;
};

constexpr Refused kRefused[] = {
    {"another language", "Language: de", "Language: fr", "1: this is a catalog of the language fr"},
    {"an unknown key", "Sensors.Off", "Sensors.On", "16: unknown key \"Units.Sensors.On\""},
    {"another original", "msgid \"Off\"", "msgid \"On\"",
     "16: \"On\" is not the English text of \"Units.Sensors.Off\""},
    {"a key twice", "Weather.%@ km\"\nmsgid \"%@ km\"", "Sensors.Off\"\nmsgid \"Off\"",
     "24: \"Units.Sensors.Off\" is there twice"},
};

TEST(Import, RefusesWhatIsNotOfThisTable) {
  for (const Refused& test : kRefused) {
    EXPECT_EQ(tests::lines(imported("de", translated("de", test.from, test.to)).faults), test.fault) << test.why;
  }
}

TEST(Import, ATextNeedsATranslator) {
  std::string po = exported("de");
  po.replace(po.find("\"Aus\""), 5, "\"Halt\"");
  EXPECT_EQ(tests::lines(imported("de", po).faults), "1: the header does not say Last-Translator");
}

TEST(Exchange, OfTheLibrarysOwnTablesChangesNothing) {
  Faults faults;
  const Catalog own = readCatalog(tablePaths(KZM_SOURCES "/resources"), faults);
  ASSERT_EQ(tests::lines(faults), "");
  for (const Table& table : own.tables) {
    if (table.language == kDevelopmentLanguage) continue;
    std::ostringstream out;
    writeCatalog(out, own, table.language);
    const Import result = importCatalog(own, table.language, table.name, "x.po", readMessages("x.po", out.str()));
    EXPECT_EQ(tests::lines(result.faults), "") << table.language;
    EXPECT_EQ(result.content, table.content) << table.language;
  }
}

// The directions have one hint, at the first of them.
bool isDirection(std::string_view text) {
  return text.starts_with("North") || text.starts_with("South") || text == "East" || text == "West";
}

TEST(Exchange, TheLibrarysOwnRowsHaveHintsForTranslators) {
  for (const Entry& entry : readTable(KZM_SOURCES "/resources/en.lproj/KZMUtilities.strings").entries) {
    EXPECT_FALSE(entry.section.empty()) << entry.key;
    EXPECT_TRUE(!entry.hint.empty() || isDirection(entry.text)) << entry.key;
  }
  for (const Entry& entry : readTable(KZM_SOURCES "/resources/en.lproj/Words.strings").entries) {
    EXPECT_FALSE(entry.section.empty()) << entry.key;
  }
}

}  // namespace
}  // namespace kzm::strings
