#include "port/environment_locale.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "port/canonical_locale.h"

namespace kzm::port {
namespace {

/// An environment of "NAME=value" words.
Environment environmentOf(const std::string& words) {
  std::map<std::string, std::string> variables;
  std::istringstream stream(words);
  for (std::string word; stream >> word;) variables[word.substr(0, word.find('='))] = word.substr(word.find('=') + 1);
  return [variables](const char* name) -> const char* {
    const auto found = variables.find(name);
    return found == variables.end() ? nullptr : found->second.c_str();
  };
}

struct NameCase {
  const char* why;
  const char* name;
  const char* identifier;
};

const NameCase kNames[] = {
    {"codeset dropped", "de_CH.UTF-8", "de_CH"},
    {"a script that ICU has no data for", "be_BY@latin", "be_BY"},
    {"the same with keywords", "ru-Latn-RU-u-nu-arab", "ru_RU@numbers=arab"},
    {"the language's own script", "be_Cyrl_BY", "be_Cyrl_BY"},
    {"a script of Chinese", "zh_Hant_HK", "zh_Hant_HK"},
    {"codeset of another kind", "ja_JP.eucJP", "ja_JP"},
    {"no codeset", "fr_FR", "fr_FR"},
    {"language alone", "eo", "eo"},
    {"region of digits", "es_419", "es_419"},
    {"latin is a script", "sr_RS@latin", "sr_Latn_RS"},
    {"script after a codeset", "sr_RS.UTF-8@latin", "sr_Latn_RS"},
    {"cyrillic is a script", "uz_UZ@cyrillic", "uz_Cyrl_UZ"},
    {"devanagari is a script", "ks_IN@devanagari", "ks_Deva_IN"},
    {"script without a region", "sr@latin", "sr_Latn"},
    {"the modifier overrules the script", "sr_Cyrl_RS@latin", "sr_Latn_RS"},
    {"valencia stays as a variant", "ca_ES@valencia", "ca_ES_VALENCIA"},
    {"valencia after a codeset", "ca_ES.UTF-8@valencia", "ca_ES_VALENCIA"},
    {"valencia without a region", "ca@valencia", "ca__VALENCIA"},
    {"euro dropped", "de_DE@euro", "de_DE"},
    {"unknown modifier dropped", "aa_ER@saaho", "en_001"},
    {"unknown modifier of a known language", "de_DE@phonebook", "de_DE"},
    {"Tatar in Latin letters", "tt_RU@iqtelif", "tt_RU"},
    {"empty modifier", "de_DE@", "de_DE"},
    {"empty codeset", "de_DE.", "de_DE"},
    {"keyword kept", "hi_IN@numbers=deva", "hi_IN@numbers=deva"},
    {"keyword after a codeset", "hi_IN.UTF-8@numbers=deva", "hi_IN@numbers=deva"},
    {"region override kept", "en_US@rg=gbzzzz", "en_US@rg=gbzzzz"},
    {"language tag", "de-CH", "de_CH"},
    {"language tag with script", "zh-Hant-TW", "zh_Hant_TW"},
    {"language tag with extension", "hi-IN-u-nu-deva", "hi_IN@numbers=deva"},
    {"identifier with script", "zh_Hant_TW", "zh_Hant_TW"},
    {"variant", "en_US_POSIX", "en_US_POSIX"},
    {"variant without a region", "de__POSIX", "de__POSIX"},
    {"former code of Hebrew", "iw_IL", "he_IL"},
    {"former code of Indonesian", "in_ID.UTF-8", "id_ID"},
    {"Norwegian without a written form", "no_NO", "no_NO"},
    {"Serbo-Croatian", "sh_YU", "sr_Latn_RS"},
    {"letter case is put right", "DE_ch", "de_CH"},
    {"English outside its countries", "en_DK.UTF-8", "en_DK"},
    {"unknown region of a known language", "de_XX", "de_XX"},
    {"C", "C", "en_001"},
    {"C with a codeset", "C.UTF-8", "en_001"},
    {"C with another spelling", "C.utf8", "en_001"},
    {"POSIX", "POSIX", "en_001"},
    {"C with a variant", "C_POSIX", "en_001"},
    {"empty", "", "en_001"},
    {"unknown language", "xx_YY", "en_001"},
    {"unknown language with keywords", "xx@numbers=deva", "en_001"},
    {"no language", "_US", "en_001"},
    {"undetermined language", "und_DE", "en_001"},
    {"root", "root", "en_001"},
    {"a path", "../../x", "en_001"},
    {"a path after a language", "de/../../x", "en_001"},
    {"a path as keyword", "de_DE@numbers=../../x", "en_001"},
    {"marks", "garbage!!", "en_001"},
    {"a word", "garbage", "en_001"},
    {"one letter", "d_DE", "en_001"},
    {"a codeset alone", ".UTF-8", "en_001"},
    {"a modifier alone", "@latin", "en_001"},
    {"keywords alone", "@numbers=deva", "en_001"},
    {"separator at the end", "de_", "en_001"},
    {"separator before the keywords", "de_DE_@numbers=latn", "en_001"},
    {"broken keywords", "de_DE@=;", "en_001"},
    {"a space", " de_DE", "en_001"},
    {"line break", "de_DE\n", "en_001"},
    {"not ASCII", "d\xC3\xA9_FR", "en_001"},
    {"not even UTF-8", "\xFF\xFE", "en_001"},
    {"percent directives", "%s%n", "en_001"},
    {"the longest subtag", "de_DE_abcdefgh", "de_DE_ABCDEFGH"},
    {"over-long subtag", "de_DE_abcdefghi", "en_001"},
};

TEST(EnvironmentLocale, NamesBecomeIdentifiersThatIcuHasDataFor) {
  for (const NameCase& test : kNames) EXPECT_EQ(usableLocale(test.name), test.identifier) << test.why;
}

TEST(EnvironmentLocale, OverlongNamesAndNullCharactersAreMalformed) {
  EXPECT_EQ(usableLocale(std::string_view("de\0DE", 5)), "en_001");
  EXPECT_EQ(usableLocale(std::string(100000, 'd')), "en_001");
  EXPECT_EQ(usableLocale("de" + std::string(200, '_')), "en_001");
  EXPECT_EQ(usableLocale("de@numbers=" + std::string(300, 'a')), "en_001");
}

TEST(EnvironmentLocale, NamesMayBeAsLongAsAnIdentifier) {
  const std::string name = "de_DE@currency=";
  const std::string longest = name + std::string(kLongestIdentifier - name.size(), 'a');
  EXPECT_EQ(localeIdentifier(longest).substr(0, 5), "de_DE");
  EXPECT_EQ(localeIdentifier(longest + "a"), "");
}

TEST(EnvironmentLocale, IdentifiersNeedNoData) {
  EXPECT_EQ(localeIdentifier("xx_YY.UTF-8"), "xx_YY");
  EXPECT_EQ(localeIdentifier("sr_RS@latin"), "sr_Latn_RS");
  EXPECT_EQ(localeIdentifier("be_BY@latin"), "be_Latn_BY");
  EXPECT_EQ(localeIdentifier("tt_RU@iqtelif"), "tt_Latn_RU");
  EXPECT_EQ(localeIdentifier("C.UTF-8"), "");
  EXPECT_EQ(localeIdentifier(""), "");
  EXPECT_EQ(localeIdentifier("garbage!!"), "");
}

struct CategoryCase {
  const char* why;
  const char* variables;
  const char* numbers;
  const char* measurement;
};

const CategoryCase kCategories[] = {
    {"nothing set", "", "en_001", "en_001"},
    {"LANG alone", "LANG=de_CH.UTF-8", "de_CH", "de_CH"},
    {"own category before LANG", "LANG=en_US LC_NUMERIC=de_DE", "de_DE", "en_US"},
    {"the other category", "LANG=en_US LC_MEASUREMENT=en_GB", "en_US", "en_GB"},
    {"LC_ALL before both", "LC_ALL=fr_FR LANG=en_US LC_NUMERIC=de_DE LC_MEASUREMENT=de_DE", "fr_FR", "fr_FR"},
    {"empty LC_ALL counts as unset", "LC_ALL= LANG=de_DE", "de_DE", "de_DE"},
    {"empty categories count as unset", "LC_NUMERIC= LC_MEASUREMENT= LANG=de_DE", "de_DE", "de_DE"},
    {"empty LANG", "LANG=", "en_001", "en_001"},
    {"LC_ALL=C hides the rest", "LC_ALL=C LANG=de_DE", "en_001", "en_001"},
    {"LC_NUMERIC=C hides LANG", "LC_NUMERIC=C LANG=de_DE", "en_001", "de_DE"},
    {"unusable LC_ALL hides LANG", "LC_ALL=xx_YY LANG=de_DE", "en_001", "en_001"},
    {"messages have no say", "LC_MESSAGES=fr_FR LANG=en_US", "en_US", "en_US"},
    {"LANGUAGE has no say", "LANGUAGE=es:fr LANG=en_US", "en_US", "en_US"},
    {"modifier", "LANG=sr_RS.UTF-8@latin", "sr_Latn_RS", "sr_Latn_RS"},
};

TEST(EnvironmentLocale, CategoriesFollowThePosixOrder) {
  for (const CategoryCase& test : kCategories) {
    EXPECT_EQ(numberLocale(environmentOf(test.variables)), test.numbers) << test.why;
    EXPECT_EQ(measurementLocale(environmentOf(test.variables)), test.measurement) << test.why;
  }
}

struct TextCase {
  const char* why;
  const char* variables;
  const char* identifiers;
};

const TextCase kTexts[] = {
    {"nothing set", "", ""},
    {"LANG", "LANG=de_CH.UTF-8", "de_CH"},
    {"LC_MESSAGES before LANG", "LANG=en_US LC_MESSAGES=fr_FR", "fr_FR"},
    {"LC_ALL before LC_MESSAGES", "LC_ALL=it_IT LC_MESSAGES=fr_FR", "it_IT"},
    {"empty LC_ALL and LC_MESSAGES count as unset", "LC_ALL= LC_MESSAGES= LANG=de_DE", "de_DE"},
    {"LANGUAGE goes first", "LANG=en_US LANGUAGE=es:fr", "es fr en_US"},
    {"LANGUAGE before LC_ALL too", "LC_ALL=en_US LANGUAGE=es", "es en_US"},
    {"LANGUAGE alone has no say", "LANGUAGE=es:fr", ""},
    {"LANGUAGE has none beside C", "LANG=C LANGUAGE=es", ""},
    {"but beside C.UTF-8", "LANG=C.UTF-8 LANGUAGE=es", "es"},
    {"C.UTF-8 alone", "LANG=C.UTF-8", ""},
    {"nor beside POSIX", "LC_ALL=POSIX LANG=de LANGUAGE=es", ""},
    {"empty LANGUAGE", "LANG=de_DE LANGUAGE=", "de_DE"},
    {"empty entries", "LANG=de_DE LANGUAGE=:es::fr:", "es fr de_DE"},
    {"malformed entries are left out", "LANG=de_DE LANGUAGE=../x:fr:!!:.:@latin", "fr de_DE"},
    {"C ends the list in English", "LANG=de_DE LANGUAGE=es:C:fr", "es en"},
    {"scripts in the list", "LANG=de_DE LANGUAGE=sr@latin:sr", "sr_Latn sr de_DE"},
    {"malformed message locale", "LANG=!! LANGUAGE=fr", "fr"},
    {"unknown languages are the chooser's to pass over", "LANG=de_DE LANGUAGE=xx", "xx de_DE"},
    {"numbers have no say", "LANG=de_DE LC_NUMERIC=fr_FR", "de_DE"},
};

std::string joined(const std::vector<std::string>& identifiers) {
  std::string text;
  for (const std::string& identifier : identifiers) text += (text.empty() ? "" : " ") + identifier;
  return text;
}

TEST(EnvironmentLocale, TextsFollowLanguageAndTheMessageLocale) {
  for (const TextCase& test : kTexts) {
    EXPECT_EQ(joined(textLocales(environmentOf(test.variables))), test.identifiers) << test.why;
  }
}

TEST(EnvironmentLocale, AnEndlessLanguageListIsSurvived) {
  const std::string list(1000000, ':');
  EXPECT_EQ(joined(textLocales(environmentOf("LANG=de_DE LANGUAGE=" + list))), "de_DE");
}

TEST(EnvironmentLocale, TheProcessEnvironmentIsTheDefault) {
  ASSERT_EQ(setenv("LC_ALL", "gl_ES.UTF-8", 1), 0);
  EXPECT_EQ(numberLocale(), "gl_ES");
  EXPECT_EQ(measurementLocale(), "gl_ES");
  EXPECT_EQ(joined(textLocales()), "gl_ES");
  ASSERT_EQ(unsetenv("LC_ALL"), 0);
}

}  // namespace
}  // namespace kzm::port
