// Which rows a table must have, and what layers may hold.
#include <gtest/gtest.h>
#include <string>

#include "tests/tools/strings/tables.h"

namespace kzm::strings {
namespace {

using tests::lines;
using tests::table;

const tests::Rows kEnglish{{"Units.A.%@ km", "%@ km"}, {"Units.A.%@%%", "%@%%"}, {"Units.A.Off", "Off"}};

std::string faults(const std::string& language, const tests::Rows& rows) {
  return lines(plainFaults({{table("en", kEnglish), table(language, rows)}}));
}

struct Case {
  const char* why;
  tests::Rows rows;
  const char* faults;
};

const Case kTables[] = {
    {"all rows", {{"Units.A.%@ km", "%@ km"}, {"Units.A.%@%%", "%@%%"}, {"Units.A.Off", "Aus"}}, ""},
    {"a key twice",
     {{"Units.A.%@ km", "%@ km"}, {"Units.A.%@%%", "%@%%"}, {"Units.A.Off", "Aus"}, {"Units.A.Off", "An"}},
     "5: \"Units.A.Off\" is there twice"},
    {"no prefix",
     {{"Units.A.%@ km", "%@ km"}, {"Units.A.%@%%", "%@%%"}, {"Units.A.Off", "Aus"}, {"On", "An"}},
     "5: the key \"On\" is not \"Units.<family>.<template>\" or \"Words.<family>.<word>\"\n5: unknown key \"On\""},
    {"an unknown key",
     {{"Units.A.%@ km", "%@ km"}, {"Units.A.%@ mi", "%@ mi"}, {"Units.A.%@%%", "%@%%"}, {"Units.A.Off", "Aus"}},
     "3: unknown key \"Units.A.%@ mi\""},
    {"a missing key", {{"Units.A.%@ km", "%@ km"}, {"Units.A.%@%%", "%@%%"}}, "3: the key \"Units.A.Off\" is missing"},
    {"no rows",
     {},
     "1: the key \"Units.A.%@ km\" is missing\n1: the key \"Units.A.%@%%\" is missing\n"
     "1: the key \"Units.A.Off\" is missing"},
    {"another order",
     {{"Units.A.%@ km", "%@ km"}, {"Units.A.Off", "Aus"}, {"Units.A.%@%%", "%@%%"}},
     "4: \"Units.A.%@%%\" is out of order"},
};

TEST(StructureRules, ATableHasAllRowsInOrder) {
  for (const Case& test : kTables) EXPECT_EQ(faults("de", test.rows), test.faults) << test.why;
}

TEST(StructureRules, ALanguageMayLackWords) {
  const tests::Rows english{{"Words.A.On", "On"}, {"Words.A.Off", "Off"}, {"Words.A.Idle", "Idle"}};
  const auto faultsOf = [&](const tests::Rows& rows) {
    return lines(plainFaults({{table("en", english, "Words"), table("de", rows, "Words")}}));
  };
  EXPECT_EQ(faultsOf({{"Words.A.Off", "Aus"}}), "");
  EXPECT_EQ(faultsOf({{"Words.A.Off", "Aus"}, {"Words.A.On", "An"}}), "3: \"Words.A.On\" is out of order");
  EXPECT_EQ(faultsOf({{"Words.A.Off", "Off"}}), "2: \"Off\" is English");
}

TEST(StructureRules, EnglishTextsAreTheTemplates) {
  const auto english = [](const tests::Rows& rows) { return lines(plainFaults({{table("en", rows)}})); };
  EXPECT_EQ(english(kEnglish), "");
  EXPECT_EQ(english({}), "1: no entries");
  EXPECT_EQ(english({{"Units.A.Off", "On"}}),
            "2: the text of \"Units.A.Off\" is not the template that the key ends in");
  EXPECT_EQ(english({{"Units.A.Off", "Off"}, {"Units.A.Off", "Off"}}), "3: \"Units.A.Off\" is there twice");
}

TEST(StructureRules, EveryTableHasAnEnglishOneAndIsTheOnlyOne) {
  const Table german = table("de", kEnglish);
  EXPECT_EQ(lines(plainFaults({{german}})), "0: there is no such table in en");
  EXPECT_EQ(lines(plainFaults({{table("en", kEnglish), table("en", kEnglish)}})),
            "0: a second table of this language and name");
}

const Case kLayers[] = {
    {"one row differs", {{"Units.A.Off", "Uus"}}, ""},
    {"two rows, in order", {{"Units.A.%@%%", "%@\u00A0%%"}, {"Units.A.Off", "Uus"}}, ""},
    {"a row that does not differ", {{"Units.A.Off", "Aus"}}, "2: the text of \"Units.A.Off\" is the same in de"},
    {"another order", {{"Units.A.Off", "Uus"}, {"Units.A.%@%%", "%@\u00A0%%"}}, "3: \"Units.A.%@%%\" is out of order"},
    {"an unknown key", {{"Units.A.On", "An"}}, "2: unknown key \"Units.A.On\""},
    {"no rows", {}, "1: no row differs from de"},
};

TEST(StructureRules, ALayerHasTheRowsThatDiffer) {
  tests::Rows german = kEnglish;
  german[2].text = "Aus";
  for (const Case& test : kLayers) {
    const Catalog catalog{{table("en", kEnglish), table("de", german), table("de-CH", test.rows)}};
    EXPECT_EQ(lines(plainFaults(catalog)), test.faults) << test.why;
  }
  EXPECT_EQ(faults("de-CH", {{"Units.A.Off", "Uus"}}), "1: a layer, but there is no table for de");
}

struct NoteCase {
  const char* why;
  const char* content;
  const char* faults;
};

constexpr NoteCase kNotes[] = {
    {"both members", "/* source: own; reviewer: A */\n\"Units.A.Off\" = \"Aus\";", ""},
    {"a translator", "/* source: translator A; reviewer: B */\n\"Units.A.Off\" = \"Aus\";", ""},
    {"a source of the row", "/* source: own; reviewer: none */\n\"Units.A.Off\" = \"Aus\"; /* source: CLDR 42 */", ""},
    {"none", "/* A */\n\"Units.A.Off\" = \"Aus\";", "1: the head does not say \"source: ...; reviewer: ...\""},
    {"no reviewer", "/* source: own */\n\"Units.A.Off\" = \"Aus\";",
     "1: the head does not say \"source: ...; reviewer: ...\""},
    {"an unknown source", "/* source: A; reviewer: none */\n\"Units.A.Off\" = \"Aus\";", "1: unknown source \"A\""},
    {"an unknown source of the row", "/* source: own; reviewer: none */\n\"Units.A.Off\" = \"Aus\"; /* source: A */",
     "2: unknown source \"A\""},
    {"the head's source again", "/* source: own; reviewer: none */\n\"Units.A.Off\" = \"Aus\"; /* source: own */",
     "2: the head says the source already"},
    {"a symbol that is none", "/* source: own; reviewer: none */\n\"Units.A.Off\" = \"Aus\"; /* source: symbol */",
     "2: \"Aus\" is no international symbol"},
};

TEST(StructureRules, EveryTextHasASourceAndAReviewerOrTheNoteThatThereIsNone) {
  const Table english = table("en", {{"Units.A.Off", "Off"}});
  for (const NoteCase& test : kNotes) {
    const Catalog catalog{{english, parseTable("de.lproj/T.strings", test.content)}};
    EXPECT_EQ(lines(plainFaults(catalog)), test.faults) << test.why;
  }
}

struct TagCase {
  const char* language;
  const char* parent;  // null: no layer
};
constexpr TagCase kTags[] = {
    {"pt-PT", "pt"},      {"zh-Hant-HK", "zh-Hant"}, {"es-419", "es"},   {"sr-Latn", nullptr},
    {"zh-Hant", nullptr}, {"fil", nullptr},          {"pt-pt", nullptr}, {"", nullptr},
};

TEST(Catalog, ALanguageTagWithARegionIsALayerOverTheTagWithout) {
  for (const TagCase& test : kTags) {
    EXPECT_EQ(withoutRegion(test.language).value_or("none"), test.parent == nullptr ? "none" : test.parent);
  }
}

TEST(Catalog, ALayerIsCompletedWithTheRowsOfItsParent) {
  const Catalog catalog{{table("en", kEnglish), table("pt", kEnglish), table("pt-PT", {{"Units.A.Off", "Desligada"}})}};
  const Table whole = completed(catalog, catalog.tables[2]);
  ASSERT_EQ(whole.entries.size(), 3U);
  EXPECT_EQ(whole.language, "pt-PT");
  EXPECT_EQ(whole.entries[0].key, "Units.A.%@ km");
  EXPECT_EQ(whole.entries[2].text, "Desligada");
  EXPECT_TRUE(whole.entries[0].isInherited);
  EXPECT_FALSE(whole.entries[2].isInherited);
}

}  // namespace
}  // namespace kzm::strings
