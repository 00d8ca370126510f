// Every name of a system locale: the language that its texts are in, and the style of its numbers.
#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <unicode/uloc.h>
#include <unicode/uversion.h>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/resources.h>

#include "core/number_text.h"
#include "port/environment_locale.h"
#include "port/number_symbols.h"

namespace kzm {
namespace {

constexpr std::string_view kKey("Units.Test.language\0", 20);
constexpr double kNumber = -1234567.89;

struct Row {
  std::string name;
  std::string language;
  std::string number;
};

// The columns are separated by tabs: some languages have spaces in their numbers.
std::vector<Row> readRows() {
  std::ifstream file(KZM_SOURCES "/tests/localization/system_locales.tsv");
  std::vector<Row> rows;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('#')) continue;
    std::istringstream columns(line);
    Row& row = rows.emplace_back();
    for (std::string* column : {&row.name, &row.language, &row.number}) std::getline(columns, *column, '\t');
  }
  return rows;
}

/// A bundle in the library's own languages, whose only text is the language's tag.
const ResourceBundle& bundleOfTags() {
  static std::vector<std::string>& texts = *new std::vector<std::string>;
  static std::vector<StringTable>& tables = *new std::vector<StringTable>;
  static const ResourceBundle& bundle = *new ResourceBundle([] {
    const ResourceBundle* library = bundleWithIdentifier(kBundleIdentifier);
    for (const StringTable& table : library->tables) texts.push_back(std::string(table.language) + '\0');
    for (std::size_t i = 0; i < texts.size(); ++i) {
      tables.push_back({library->tables[i].language, library->tables[i].name, kKey, texts[i]});
    }
    return ResourceBundle{"org.kzm.tags", library->developmentLanguage, tables};
  }());
  return bundle;
}

std::string languageFound() {
  return KZMLocalizedStringFromTableInBundle(kKey.substr(0, kKey.size() - 1), "KZMUtilities", &bundleOfTags(), nullptr);
}

// Read afresh from ICU's data: what the process keeps would hide where they come from.
std::string numberIn(const std::string& locale) {
  const NumberSymbols symbols = port::numberSymbols(locale);
  const core::LongNumber number(core::decimalStyle(symbols, 2, 2), kNumber);
  std::string text(number.size(), ' ');
  number.writeTo(text.data());
  return text;
}

/// With LANG as the name.
void expectInTheEnvironment(const Row& row) {
  const auto environment = [&](const char* variable) {
    return std::string_view(variable) == "LANG" ? row.name.c_str() : nullptr;
  };
  KZMLocalizationSetLanguages(port::textLocales(environment));
  EXPECT_EQ(languageFound(), row.language) << row.name;
  EXPECT_EQ(numberIn(port::numberLocale(environment)), row.number) << row.name;
}

void expectChosenByTheHost(const Row& row) {
  KZMLocalizationSetLanguages({&row.name, 1});
  setCurrentLocale(row.name);
  EXPECT_EQ(languageFound(), row.language) << row.name;
  EXPECT_EQ(numberIn(currentLocale()), row.number) << row.name;
}

class SystemLocales : public testing::TestWithParam<const char*> {};

TEST_P(SystemLocales, HaveTheLanguageAndTheStyleOfTheirRowHoweverTheyAreChosen) {
  if (U_ICU_VERSION_MAJOR_NUM != 72) GTEST_SKIP() << "the table has the number styles of ICU 72";
  UErrorCode status = U_ZERO_ERROR;
  const std::string before = uloc_getDefault();
  uloc_setDefault(GetParam(), &status);
  for (const Row& row : readRows()) {
    expectInTheEnvironment(row);
    expectChosenByTheHost(row);
  }
  uloc_setDefault(before.c_str(), &status);
}
INSTANTIATE_TEST_SUITE_P(WhateverTheProcessStartedIn, SystemLocales, testing::Values("en_US", "de_DE", "ar_EG"));

TEST(SystemLocaleTable, HasEveryNameThatTheSystemKnows) {
  std::ifstream supported("/usr/share/i18n/SUPPORTED");
  if (!supported) GTEST_SKIP() << "this system has no list of its locales";
  std::set<std::string> names;
  for (const Row& row : readRows()) names.insert(row.name);
  for (std::string line; std::getline(supported, line);) {
    const std::string name = line.substr(0, line.find(' '));
    const std::size_t at = std::min(name.find('@'), name.size());
    EXPECT_TRUE(names.contains(name.substr(0, std::min(name.find('.'), at)) + name.substr(at))) << name;
  }
}

}  // namespace
}  // namespace kzm
